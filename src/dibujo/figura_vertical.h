#pragma once

#include <string>

#include "dibujo/geometria_vertical.h"
#include "poza/reglas_bloques.h"

namespace calvento {

/// The sheet of a vertical drop: longitudinal section with the falling nappe and, above it on the same stations, the
/// plan. Each routine paints one layer, as those of the chute's sheet do.
class FiguraVertical {
 public:
  /// ejePlanta is the world Y of the plan's axis, m.
  FiguraVertical(DesignState& estado, double ejePlanta) : estado_(estado), ejePlanta_(ejePlanta) {}

  /// Clears the canvas and paints the water of the section. It computes xTrayectoria anew and leaves it in the record.
  void POLIGONO(Lienzo& lienzo) const;
  void PLANTA(Lienzo& lienzo) const;  ///< water and walls of the plan
  /// obstacles in section and plan
  void DIBUBABLOCKS(Lienzo& lienzo, const MinimoBloques& minimo) const;
  void RAPIDA(Lienzo& lienzo) const;  ///< concrete of drop and basin
  void CANAL(Lienzo& lienzo) const;   ///< lining of the upstream canal
  void CANALB(Lienzo& lienzo) const;  ///< lining of the downstream canal
  void COTAS(Lienzo& lienzo) const;   ///< control points
  /// Dimension lines of the section, plan widths, notes of the obstacles and of the ventilation; `pulgadas` is the
  /// diameter of the vent pipes as it was chosen.
  void EJESDIMENSION(Lienzo& lienzo, const MinimoBloques& minimo, const std::string& pulgadas) const;
  void textrotate(Lienzo& lienzo) const;   ///< slanted and vertical labels
  void DIMENSIONES(Lienzo& lienzo) const;  ///< upright labels
  void DIBUJACANAL(Lienzo& lienzo) const;  ///< top of lining, hatch, plan lines, energy line

 private:
  DesignState& estado_;
  double ejePlanta_;
};

}  // namespace calvento
