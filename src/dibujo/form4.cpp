#include "dibujo/form4.h"

#include "comun/fallo.h"
#include "dibujo/figura_inclinada.h"

namespace calvento {

Form4::Form4(DesignState& estado, const Form2& parametros, Navegador& navegador)
    : MarcoCaida("Form4", estado, navegador), parametros_(parametros) {
  pasandoFallos([this] { Form_Load(); });
}

void Form4::Form_Load() {
  using Figura = FiguraInclinada;
  estado_.progresivaFinPoza = estado_.progresivaInicio + finFigura();
  planta_ = plantaInclinada(estado_);
  Estructura s;
  const auto fin = [this] { return finFigura(); };
  s.vistas = vistasFijas(0.8, fin, fin);
  const std::function<Figura()> figura = [this] { return Figura(estado_, Real(planta_.eje).valor()); };
  const auto bloques = [this](const Figura& f, Lienzo& lienzo) {
    f.DIBUBABLOCKS(lienzo, minimoBloques(parametros_.Check1, parametros_.Text11));
  };
  ponerOrdenes<Figura>(s, figura, {"DIBUBABLOCKS", bloques}, {"EJESDIMENSION", &Figura::EJESDIMENSION});
  s.ventanas = {{"seccion", "Form20"}, {"Exportar", "Form9"}};
  abrir(std::move(s));
}

Real Form4::finFigura() const {
  const DesignState& e = estado_;
  return e.xTrayectoria + (e.cotaTrayectoria - e.cotaPoza) * e.zRampaEntrada + e.longPoza +
         (e.cotaAbajo - e.cotaPoza) * e.zRampaSalida + e.longTransSalida;
}

}  // namespace calvento
