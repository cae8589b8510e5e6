#include "cad/form12.h"

#include "comun/numeros.h"
#include "dibujo/planta.h"
#include "dibujo/rotulos_poza.h"
#include "dibujo/rotulos_rapida.h"

namespace calvento {

MarcoExportar::Cuadricula Form12::cuadricula() const {
  const DesignState& e = estado();
  return {metroEntero(e.progresivaInicio - e.longTransEntrada - 5),
          metroEntero(e.progresivaFinPoza + e.longTransSalida + 5), metroEntero(e.cotaPoza), metroEntero(e.cotaInicio)};
}

HojaCad Form12::hoja() const {
  const GeometriaRapida g(estado());
  const Planta planta = plantaRapida(estado());
  const double eje = Real(planta.eje).valor();
  const std::vector<ParEstacion> pares = paresEstacion(g);
  const auto finTramos = pares.begin() + 1 + static_cast<std::ptrdiff_t>(g.tramos().size());

  HojaCad h = hojaDe(g);
  h.textos = {{{{pares[0]}, {pendienteArriba(g)}},
               {{pares.begin() + 1, finTramos}, pendientesTramos(g)},
               {{finTramos[0]}, {}},
               {{finTramos[1]}, {}},
               {{finTramos[2]}, {pendienteAbajo(g.valores(), g.estaciones())}}}};
  ponerPlanta(h, g.planta(), eje);
  h.superficie = g.superficie();
  h.cadenas.insert(h.cadenas.begin(), cadenaEntrada(g));
  h.cadenas.push_back(cadenaPlanta(g, (planta.eje - planta.anchoMaximo / 2).valor()));
  h.bloques = bloquesDePoza(g.valores(), g.estaciones(), estado().bPoza, eje,
                            minimoBloques(parametros_.Check1, parametros_.Text11));
  return h;
}

}  // namespace calvento
