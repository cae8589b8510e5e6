#pragma once

#include "dibujo/capas.h"
#include "dibujo/planta.h"

namespace calvento {

/// What the drawing windows of both drops have in common: buttons, views and the two orders of redrawing.
class MarcoCaida : public MarcoDibujo {
 protected:
  MarcoCaida(std::string_view nombre, DesignState& estado, Navegador& navegador);

  /// The views over the figure from so much under the basin floor up. The ends of the figure, in m from the crest, are
  /// asked anew with each view.
  std::vector<VistaFija> vistasFijas(Real bajoPoza, std::function<Real()> finTodo,
                                     std::function<Real()> finTanque) const;

  /// Both orders of redrawing: they differ in when the upright labels and the dimension lines are drawn.
  template <class Figura>
  static void ponerOrdenes(Estructura& s, const std::function<Figura()>& figura, const Capa<Figura>& DIBUBABLOCKS,
                           const Capa<Figura>& EJESDIMENSION) {
    using C = Capa<Figura>;
    const C POLIGONO{"POLIGONO", &Figura::POLIGONO}, PLANTA{"PLANTA", &Figura::PLANTA},
        RAPIDA{"RAPIDA", &Figura::RAPIDA}, CANAL{"CANAL", &Figura::CANAL}, CANALB{"CANALB", &Figura::CANALB},
        COTAS{"COTAS", &Figura::COTAS}, textrotate{"textrotate", &Figura::textrotate},
        DIMENSIONES{"DIMENSIONES", &Figura::DIMENSIONES}, DIBUJACANAL{"DIBUJACANAL", &Figura::DIBUJACANAL};
    s.ordenPrincipal = rutinas(figura, {POLIGONO, PLANTA, DIBUBABLOCKS, RAPIDA, CANAL, CANALB, COTAS, EJESDIMENSION,
                                        textrotate, DIBUJACANAL, DIMENSIONES});
    s.ordenVistas = rutinas(figura, {POLIGONO, PLANTA, DIBUBABLOCKS, RAPIDA, CANAL, CANALB, COTAS, DIMENSIONES,
                                     textrotate, DIBUJACANAL, EJESDIMENSION});
  }

  Planta planta_;
};

}  // namespace calvento
