#pragma once

#include <array>

#include "dibujo/trazo.h"

namespace calvento {

/// One point of the drawn jump: its station as a fraction of the basin, its depth as parts of y1 and of y2.
struct PuntoResalto {
  double f;
  double deY1;
  double deY2;
};

/// The chosen picture of a hydraulic jump behind its toe. It is a picture, not a computed surface: the dip under y1 and
/// the fall between f = 0.07 and f = 0.15 where y1 exceeds 0.3 y2 are meant.
inline constexpr std::array<PuntoResalto, 14> resaltoDibujo = {{
    {0.015, 0.84, 0},
    {0.03, 0.75, 0},
    {0.05, 0.8, 0},
    {0.07, 1, 0},
    {0.15, 0, 0.3},
    {0.2, 0, 0.4},
    {0.25, 0, 0.51},
    {0.3, 0, 0.61},
    {0.34, 0, 0.7},
    {0.36, 0, 0.74},
    {0.43, 0, 0.86},
    {0.47, 0, 0.96},
    {0.48, 0, 0.98},
    {0.5, 0, 1},
}};

/// Adds the toe at x0 and the fourteen points behind it. Lengths in m, fondo is the elevation of the basin floor.
inline void trazarResalto(Trazo& trazo, double x0, double fondo, double longPoza, double y1, double y2) {
  trazo.punto(x0, fondo + y1);
  for (const auto& r : resaltoDibujo) trazo.punto(x0 + r.f * longPoza, fondo + r.deY1 * y1 + r.deY2 * y2);
}

}  // namespace calvento
