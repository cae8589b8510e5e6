#include "dibujo/form17.h"

#include "comun/fallo.h"
#include "dibujo/figura_vertical.h"

namespace calvento {

Form17::Form17(DesignState& estado, const Form25& parametros, Navegador& navegador)
    : MarcoCaida("Form17", estado, navegador), parametros_(parametros) {
  pasandoFallos([this] { Form_Load(); });
}

void Form17::Form_Load() {
  using Figura = FiguraVertical;
  DesignState& e = estado_;
  e.progresivaFinPoza = e.progresivaInicio + e.longRapida + e.zRampaSalida * e.profPoza + e.longTransSalida;
  planta_ = plantaVertical(e);
  Estructura s;
  // one view takes the depth of the basin from both elevations, the other from its field: meant so
  s.vistas = vistasFijas(
      1.1, [&e] { return (e.cotaAbajo - e.cotaPoza) * e.zRampaSalida + e.longRapida + e.longTransSalida; },
      [&e] { return e.zRampaSalida * e.profPoza + e.longRapida + e.longTransSalida; });
  const std::function<Figura()> figura = [this] { return Figura(estado_, Real(planta_.eje).valor()); };
  const auto minimo = [this] { return minimoBloques(parametros_.Check1, parametros_.Text11); };
  ponerOrdenes<Figura>(
      s, figura, {"DIBUBABLOCKS", [minimo](const Figura& f, Lienzo& lienzo) { f.DIBUBABLOCKS(lienzo, minimo()); }},
      {"EJESDIMENSION", [this, minimo](const Figura& f, Lienzo& lienzo) {
         f.EJESDIMENSION(lienzo, minimo(), parametros_.Combo2.Text());
       }});
  s.ventanas = {{"seccion", "Form24"}, {"Exportar", "Form18"}};
  abrir(std::move(s));
}

}  // namespace calvento
