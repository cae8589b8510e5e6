#include "dibujo/planta.h"

#include "hidraulica/solvers.h"

namespace calvento {

namespace {

Single masAncho(const DesignState& e, Real poza) {
  return MAYOR(MAYOR(e.espejoArriba, e.espejoAbajo), MAYOR(e.espejoRapida, poza));
}

/// Over the energy line at the upstream end of a drop's figure.
Planta plantaCaida(const DesignState& e, Real poza, Real sobreelevacion) {
  Planta p;
  p.anchoMaximo = masAncho(e, poza);
  p.eje = ((5 + Real(e.longTransEntrada) + e.longControl) * e.sArriba + e.cotaFin + e.ynArriba) +
          cuadrado(e.vArriba) / (2 * 9.81) + sobreelevacion + p.anchoMaximo / 2 + 0.6;
  return p;
}

}  // namespace

Planta plantaRapida(const DesignState& e) {
  Planta p;
  p.anchoMaximo = masAncho(e, e.espejoPoza);
  p.eje = ((5 + Real(e.longTransEntrada)) * e.sArriba + e.cotaInicio + e.hArriba) + cuadrado(e.vArriba) / (2 * 9.81) +
          e.sobreelevacion + p.anchoMaximo / 2 + 0.15;
  return p;
}

Planta plantaInclinada(const DesignState& e) { return plantaCaida(e, e.espejoPoza, e.sobreelevacion); }

Planta plantaVertical(const DesignState& e) { return plantaCaida(e, e.espejoPoza + e.longTransVert, 0); }

}  // namespace calvento
