#include "dibujo/planta.h"

#include "hidraulica/solvers.h"

namespace calvento {

Planta plantaRapida(const DesignState& e) {
  Planta p;
  p.anchoMaximo = MAYOR(MAYOR(e.espejoArriba, e.espejoAbajo), MAYOR(e.espejoRapida, e.espejoPoza));
  p.eje = ((5 + Real(e.longTransEntrada)) * e.sArriba + e.cotaInicio + e.hArriba) + cuadrado(e.vArriba) / (2 * 9.81) +
          e.sobreelevacion + p.anchoMaximo / 2 + 0.15;
  return p;
}

}  // namespace calvento
