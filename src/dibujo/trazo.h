#pragma once

#include <utility>
#include <vector>

#include "plataforma/lienzo.h"

namespace calvento {

/// a / b, and no value where b is 0: an infinity would pass through an arctangent and give a wrong but usable
/// coordinate.
inline double entre(double a, double b) { return b == 0 ? sinValor : a / b; }

/// A line between two world points.
struct Segmento {
  Punto a, b;
  friend bool operator==(const Segmento&, const Segmento&) = default;
};

/// Collects the points of an outline in their order. A coordinate that cannot be computed keeps that of the point
/// before it, so that the number of points never changes.
class Trazo {
 public:
  Trazo& punto(double x, double y) { return punto({x, y}); }
  Trazo& punto(Punto p) {
    puntos_.push_back(p);
    return *this;
  }
  /// Ends the outline where it began.
  Trazo& cerrar() { return puntos_.empty() ? *this : punto(Punto(puntos_.front())); }

  /// The finished outline.
  std::vector<Punto> puntos() const {
    std::vector<Punto> p = puntos_;
    completar(p);
    return p;
  }

 private:
  std::vector<Punto> puntos_;
};

}  // namespace calvento
