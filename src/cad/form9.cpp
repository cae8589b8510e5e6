#include "cad/form9.h"

#include "dibujo/planta.h"
#include "dibujo/rotulos_inclinada.h"
#include "dibujo/rotulos_poza.h"

namespace calvento {

HojaCad Form9::hoja() const {
  const GeometriaInclinada g(estado());
  const double eje = Real(plantaInclinada(estado()).eje).valor();
  const std::vector<ParEstacion> pares = paresEstacion(g);

  HojaCad h = hojaDe(g);
  // a drop has no reaches
  h.textos = {{{{pares[0]}, {pendienteArriba(g)}},
               {},
               {{pares[1]}, {}},
               {{pares[2]}, {}},
               {{pares[3]}, {pendienteAbajo(g.valores(), g.estaciones())}}}};
  ponerPlanta(h, g.planta(), eje);
  h.superficie = g.superficie();
  h.bloques = bloquesDePoza(g.valores(), g.estaciones(), estado().bPozaCaida, eje,
                            minimoBloques(parametros_.Check1, parametros_.Text11));
  return h;
}

}  // namespace calvento
