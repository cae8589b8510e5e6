#pragma once

#include "dibujo/figura_rapida.h"
#include "dibujo/marco_dibujo.h"

namespace calvento {

/// The drawing of the chute.
class Form3 : public MarcoDibujo {
 public:
  Form3(DesignState& estado, Navegador& navegador);

 private:
  void Form_Load();
  /// Downstream end of the figure, m from the start of the chute.
  Real finFigura() const;
  std::vector<VistaFija> vistasFijas() const;
  Estructura estructura() const;

  Single anchoMaximo_;  ///< widest water surface, m
  Single ejePlanta_;    ///< world Y of the plan's axis, above the highest point of the section
};

}  // namespace calvento
