#pragma once

#include "dibujo/geometria_rapida.h"
#include "plataforma/lienzo.h"
#include "poza/reglas_bloques.h"

namespace calvento {

/// The sheet of a chute: longitudinal section and, above it on the same stations, the plan. Each routine paints one
/// layer on a canvas whose scale is set; the window calls them in its order of redrawing. Every call reads the record
/// anew, and a record that is half computed gives a figure without the parts that cannot be placed.
class FiguraRapida {
 public:
  /// ejePlanta is the world Y of the plan's axis, anchoMaximo the widest water surface, m.
  FiguraRapida(const DesignState& estado, double ejePlanta, double anchoMaximo)
      : estado_(estado), ejePlanta_(ejePlanta), anchoMaximo_(anchoMaximo) {}

  void POLIGONO(Lienzo& lienzo) const;  ///< clears the canvas; water of the section
  void PLANTA(Lienzo& lienzo) const;    ///< water and walls of the plan
  /// blocks of the basin in section and plan
  void DIBUBABLOCKS(Lienzo& lienzo, const MinimoBloques& minimo) const;
  void RAPIDA(Lienzo& lienzo) const;               ///< concrete of trajectory, ramps and basin
  void CANAL(Lienzo& lienzo) const;                ///< lining of upstream canal, sill and chute
  void CANALB(Lienzo& lienzo) const;               ///< lining of the downstream canal
  void COTAS(Lienzo& lienzo) const;                ///< control points
  void EJESDIMENSION(Lienzo& lienzo) const;        ///< dimension lines of the section, plan widths
  void EJESDIMENSIONPLANTA(Lienzo& lienzo) const;  ///< dimension chain of the plan
  void textrotate(Lienzo& lienzo) const;           ///< slanted and vertical labels
  void DIMENSIONES(Lienzo& lienzo) const;          ///< upright labels
  void DIBUJACANAL(Lienzo& lienzo) const;          ///< top of lining, hatch, plan lines, energy line

 private:
  /// Lower edge of the plan, from which its dimensions hang.
  double pieDePlanta() const { return ejePlanta_ - anchoMaximo_ / 2; }
  void rotulosEntrada(Lienzo& lienzo, const GeometriaRapida& g) const;
  void rotulosTramos(Lienzo& lienzo, const GeometriaRapida& g) const;
  void rotulosPoza(Lienzo& lienzo, const GeometriaRapida& g) const;
  void rotulosLongitudes(Lienzo& lienzo, const GeometriaRapida& g) const;
  void rotulosAnchos(Lienzo& lienzo, const GeometriaRapida& g) const;

  const DesignState& estado_;
  double ejePlanta_;
  double anchoMaximo_;
};

}  // namespace calvento
