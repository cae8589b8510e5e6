#include "dibujo/form3.h"

#include <initializer_list>

#include "comun/fallo.h"

namespace calvento {

// The print button carries the key "imprime", which no command has: it does nothing in this window, and that is meant.
Form3::Form3(DesignState& estado, Navegador& navegador)
    : MarcoDibujo("Form3",
                  {"todo", "max", "min", "tanque", "planta", "scontrol", "seccion", "Trayectoria", "Reporte", "imprime",
                   "Copiar", "Exportar"},
                  estado, navegador) {
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
  using Metodo = void (Figura::*)(Lienzo&) const;
  struct Capa {
    std::string_view nombre;
    Metodo metodo;
  };
  constexpr Capa POLIGONO{"POLIGONO", &Figura::POLIGONO}, PLANTA{"PLANTA", &Figura::PLANTA},
      RAPIDA{"RAPIDA", &Figura::RAPIDA}, CANAL{"CANAL", &Figura::CANAL}, CANALB{"CANALB", &Figura::CANALB},
      COTAS{"COTAS", &Figura::COTAS}, EJESDIMENSION{"EJESDIMENSION", &Figura::EJESDIMENSION},
      EJESDIMENSIONPLANTA{"EJESDIMENSIONPLANTA", &Figura::EJESDIMENSIONPLANTA},
      textrotate{"textrotate", &Figura::textrotate}, DIMENSIONES{"DIMENSIONES", &Figura::DIMENSIONES},
      DIBUJACANAL{"DIBUJACANAL", &Figura::DIBUJACANAL};
  const auto rutinas = [this](std::initializer_list<Capa> capas) {
    std::vector<Rutina> r;
    for (const Capa& c : capas)
      r.push_back({c.nombre, [this, m = c.metodo](Lienzo& lienzo) {
                     (FiguraRapida(estado_, Real(planta_.eje).valor(), Real(planta_.anchoMaximo).valor()).*m)(lienzo);
                   }});
    return r;
  };
  Estructura s;
  s.vistas = vistasFijas();
  s.ordenPrincipal = rutinas({POLIGONO, PLANTA, RAPIDA, CANAL, CANALB, COTAS, EJESDIMENSION, EJESDIMENSIONPLANTA,
                              textrotate, DIMENSIONES, DIBUJACANAL});
  s.ordenVistas = rutinas({POLIGONO, PLANTA, RAPIDA, CANAL, CANALB, COTAS, DIMENSIONES, textrotate, EJESDIMENSION,
                           EJESDIMENSIONPLANTA, DIBUJACANAL});
  s.ventanas = {{"seccion", "Form19"}, {"Trayectoria", "Form8"}, {"Reporte", "Form11"}, {"Exportar", "Form12"}};
  return s;
}

}  // namespace calvento
