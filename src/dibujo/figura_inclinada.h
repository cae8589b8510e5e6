#pragma once

#include "dibujo/geometria_inclinada.h"
#include "poza/reglas_bloques.h"

namespace calvento {

/// The sheet of an inclined drop: longitudinal section and, above it on the same stations, the plan. Each routine
/// paints one layer, as those of the chute's sheet do.
class FiguraInclinada {
 public:
  /// ejePlanta is the world Y of the plan's axis, m.
  FiguraInclinada(const DesignState& estado, double ejePlanta) : estado_(estado), ejePlanta_(ejePlanta) {}

  void POLIGONO(Lienzo& lienzo) const;  ///< clears the canvas; water of the section
  void PLANTA(Lienzo& lienzo) const;    ///< water and walls of the plan
  /// blocks of the basin in section and plan
  void DIBUBABLOCKS(Lienzo& lienzo, const MinimoBloques& minimo) const;
  void RAPIDA(Lienzo& lienzo) const;         ///< concrete of crest, curve, ramps and basin
  void CANAL(Lienzo& lienzo) const;          ///< lining of the upstream canal and sill
  void CANALB(Lienzo& lienzo) const;         ///< lining of the downstream canal
  void COTAS(Lienzo& lienzo) const;          ///< control points
  void EJESDIMENSION(Lienzo& lienzo) const;  ///< dimension lines of the section, plan widths
  void textrotate(Lienzo& lienzo) const;     ///< slanted and vertical labels
  void DIMENSIONES(Lienzo& lienzo) const;    ///< upright labels
  void DIBUJACANAL(Lienzo& lienzo) const;    ///< top of lining, hatch, plan lines, energy line

 private:
  const DesignState& estado_;
  double ejePlanta_;
};

}  // namespace calvento
