#include "dibujo/form3.h"

#include "comun/fallo.h"
#include "dibujo/capas.h"

namespace calvento {

// The print button carries the key "imprime", which no command has: it does nothing in this window, and that is meant.
Form3::Form3(DesignState& estado, const Form2& parametros, Navegador& navegador)
    : MarcoDibujo("Form3",
                  {"todo", "max", "min", "tanque", "planta", "scontrol", "seccion", "Trayectoria", "Reporte", "imprime",
                   "Copiar", "Exportar"},
                  estado, navegador),
      parametros_(parametros) {
  pasandoFallos([this] { Form_Load(); });
}

void Form3::Form_Load() {
  DesignState& e = estado_;
  e.progresivaFinPoza = e.progresivaInicio + e.longRapida + e.xTrayectoria +
                        (e.cotaTrayectoria - e.cotaPoza) * e.zRampaEntrada + e.longPoza +
                        (e.cotaAbajo - e.cotaPoza) * e.zRampaSalida;
  planta_ = plantaRapida(e);
  abrir(estructura());
}

Real Form3::finFigura() const {
  const DesignState& e = estado_;
  return e.longRapida + e.xTrayectoria + (e.cotaTrayectoria - e.cotaPoza) * e.zRampaEntrada + e.longPoza +
         (e.cotaAbajo - e.cotaPoza) * e.zRampaSalida + e.longTransSalida;
}

std::vector<MarcoDibujo::VistaFija> Form3::vistasFijas() const {
  const DesignState& e = estado_;
  return {
      {"vistaTodo",
       [this, &e] {
         return Vista{-e.longTransEntrada - 5, finFigura() + 5, e.cotaPoza - 0.6,
                      planta_.eje + planta_.anchoMaximo + 0.15};
       }},
      {"vistaTanque",
       [this, &e] {
         return Vista{e.longRapida - 1.5, finFigura() + 1.3, e.cotaPoza,
                      e.cotaFin + e.yFin + cuadrado(e.vFin) / (2 * 9.81)};
       }},
      {"vistaPlanta",
       [this, &e] {
         return Vista{e.longRapida - 1.5, finFigura() + 1.3, planta_.eje - e.espejoPoza, planta_.eje + e.espejoPoza};
       }},
      {"vistaControl",
       [this, &e] {
         return Vista{-e.longTransEntrada - 3, 3, e.cotaInicio - 2,
                      planta_.eje + (2 * Real(e.zArriba) * e.hArriba + e.bArriba) / 2 + 1};
       }},
  };
}

MarcoDibujo::Estructura Form3::estructura() const {
  using Figura = FiguraRapida;
  using C = Capa<Figura>;
  const C POLIGONO{"POLIGONO", &Figura::POLIGONO}, PLANTA{"PLANTA", &Figura::PLANTA}, RAPIDA{"RAPIDA", &Figura::RAPIDA},
      CANAL{"CANAL", &Figura::CANAL}, CANALB{"CANALB", &Figura::CANALB}, COTAS{"COTAS", &Figura::COTAS},
      EJESDIMENSION{"EJESDIMENSION", &Figura::EJESDIMENSION},
      EJESDIMENSIONPLANTA{"EJESDIMENSIONPLANTA", &Figura::EJESDIMENSIONPLANTA},
      textrotate{"textrotate", &Figura::textrotate}, DIMENSIONES{"DIMENSIONES", &Figura::DIMENSIONES},
      DIBUJACANAL{"DIBUJACANAL", &Figura::DIBUJACANAL};
  const C DIBUBABLOCKS{"DIBUBABLOCKS", [this](const Figura& f, Lienzo& lienzo) {
                         f.DIBUBABLOCKS(lienzo, minimoBloques(parametros_.Check1, parametros_.Text11));
                       }};
  const std::function<Figura()> figura = [this] {
    return Figura(estado_, Real(planta_.eje).valor(), Real(planta_.anchoMaximo).valor());
  };
  Estructura s;
  s.vistas = vistasFijas();
  s.ordenPrincipal = rutinas(figura, {POLIGONO, PLANTA, DIBUBABLOCKS, RAPIDA, CANAL, CANALB, COTAS, EJESDIMENSION,
                                      EJESDIMENSIONPLANTA, textrotate, DIMENSIONES, DIBUJACANAL});
  s.ordenVistas = rutinas(figura, {POLIGONO, PLANTA, DIBUBABLOCKS, RAPIDA, CANAL, CANALB, COTAS, DIMENSIONES,
                                   textrotate, EJESDIMENSION, EJESDIMENSIONPLANTA, DIBUJACANAL});
  s.ventanas = {{"seccion", "Form19"}, {"Trayectoria", "Form8"}, {"Reporte", "Form11"}, {"Exportar", "Form12"}};
  return s;
}

}  // namespace calvento
