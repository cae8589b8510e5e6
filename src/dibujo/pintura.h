#pragma once

#include <span>
#include <vector>

#include "dibujo/geometria_poza.h"

// How the parts of the figures are painted, the same for every structure.

namespace calvento {

/// Clears the canvas and paints the water of the section. The pen's colour set here stands for all texts and all lines
/// of the figure without a colour of their own.
void pintarAguaSeccion(Lienzo& lienzo, std::vector<Punto> puntos);
void pintarConcreto(Lienzo& lienzo, std::vector<Punto> puntos);
/// Water and both walls of the plan between the half widths of their inner and outer sides.
void pintarPlanta(Lienzo& lienzo, std::span<const AnchoEn> dentro, std::span<const AnchoEn> fuera, double eje);
/// Black squares on the control points of the bed.
void pintarPuntosControl(Lienzo& lienzo, const std::vector<Punto>& puntos);

/// The lines of the canal: top of the lining in red, the others in grey; all but the hatch dash-dotted.
struct LineasCanal {
  std::vector<Punto> corona;
  std::vector<Segmento> rayado;
  std::vector<Segmento> transversales;
  std::vector<std::vector<Punto>> bordes;
  std::vector<Punto> energia;
};
void pintarLineasCanal(Lienzo& lienzo, const LineasCanal& lineas);

}  // namespace calvento
