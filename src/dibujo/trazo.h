#pragma once

#include <cmath>
#include <limits>
#include <vector>

#include "plataforma/lienzo.h"

namespace calvento {

/// a / b, and not a number where b is 0: an infinity would pass through an arctangent and give a wrong but usable
/// coordinate.
inline double entre(double a, double b) { return b == 0 ? std::numeric_limits<double>::quiet_NaN() : a / b; }

/// A line between two world points.
struct Segmento {
  Punto a, b;
  friend bool operator==(const Segmento&, const Segmento&) = default;
};

/// The points of an outline in their order. A coordinate that cannot be computed keeps that of the point before it (of
/// the first usable one, at the head of the outline), so that the number of points never changes.
class Trazo {
 public:
  Trazo& punto(double x, double y) {
    const Punto anterior = puntos_.empty() ? Punto{nada, nada} : puntos_.back();
    puntos_.push_back({std::isfinite(x) ? x : anterior.x, std::isfinite(y) ? y : anterior.y});
    return *this;
  }
  Trazo& punto(Punto p) { return punto(p.x, p.y); }
  /// Ends the outline where it began.
  Trazo& cerrar() {
    if (!puntos_.empty()) punto(puntos_.front());
    return *this;
  }

  /// The finished outline.
  std::vector<Punto> puntos() const {
    std::vector<Punto> p = puntos_;
    Punto usable{nada, nada};
    for (std::size_t i = p.size(); i-- > 0;) {
      if (std::isfinite(p[i].x)) usable.x = p[i].x;
      if (std::isfinite(p[i].y)) usable.y = p[i].y;
      p[i] = usable;
    }
    return p;
  }

 private:
  static constexpr double nada = std::numeric_limits<double>::quiet_NaN();
  std::vector<Punto> puntos_;
};

}  // namespace calvento
