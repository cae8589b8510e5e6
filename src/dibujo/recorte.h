#pragma once

#include <optional>
#include <vector>

#include "plataforma/lienzo.h"

namespace calvento {

using Puntos = std::vector<Punto>;

struct Raya {
  Punto a, b;
  friend bool operator==(const Raya&, const Raya&) = default;
};

/// A rectangle of a sheet or a screen, y downwards.
struct Marco {
  double izquierda = 0, arriba = 0, derecha = 0, abajo = 0;

  double ancho() const { return derecha - izquierda; }
  double alto() const { return abajo - arriba; }
  Marco crecido(double margen) const { return {izquierda - margen, arriba - margen, derecha + margen, abajo + margen}; }
  bool contiene(Punto p) const { return p.x >= izquierda && p.x <= derecha && p.y >= arriba && p.y <= abajo; }
  bool contiene(const Marco& m) const {
    return m.izquierda >= izquierda && m.derecha <= derecha && m.arriba >= arriba && m.abajo <= abajo;
  }
  bool toca(const Marco& m) const {
    return m.izquierda <= derecha && m.derecha >= izquierda && m.arriba <= abajo && m.abajo >= arriba;
  }
  friend bool operator==(const Marco&, const Marco&) = default;
};

/// The smallest rectangle around the points; there is at least one.
Marco alrededor(const Puntos& puntos);

/// Painters lose coordinates of millions of pixels, which a drawing has as soon as one zooms into it. So what lies far
/// outside the visible rectangle is cut off beforehand.

/// The part of the line inside the rectangle; nothing where there is none.
std::optional<Raya> recortar(const Raya& linea, const Marco& marco);
/// The part of the closed polygon inside the rectangle.
Puntos recortar(const Puntos& poligono, const Marco& marco);

/// The same points with each level or upright edge moved by at most half a pixel, so that a line of so many whole
/// pixels along it covers pixels whole instead of two rows by halves. Slanted edges follow their ends; an edge on the
/// border of the sheet stays on it.
Puntos sobrePixeles(Puntos puntos, int grosor, bool cerrado, const Marco& hoja);

/// The strokes of a diagonal cross hatch inside a closed polygon (even-odd rule), so many pixels apart along both axes;
/// strokes of all polygons lie on one common grid that starts at the origin.
std::vector<Raya> rayadoCruzado(const Puntos& poligono, Punto origen, double paso);

}  // namespace calvento
