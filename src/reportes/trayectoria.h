#pragma once

#include "modelo/design_state.h"
#include "plataforma/lienzo.h"
#include "plataforma/rejilla.h"

namespace calvento {

/// Coordinates of the trajectory y = trayB x + trayA x² from the end of the chute, with their elevations: at a step
/// that goes with its length, and once more its end. Fails for a trajectory longer than the table (48 m).
void tablaTrayectoria(Rejilla& tabla, const DesignState& estado);

/// What the plot of the trajectory shows: distances from 0 to x2, heights over the end of the chute from y1 to y2, m.
struct LimitesTrayectoria {
  Real x2, y1, y2;
};
LimitesTrayectoria limitesTrayectoria(const DesignState& estado);

/// Draws the parabola with its equation and the elevations of its two ends, setting the canvas's scale.
void DIBUJATRAYECTORIA(Lienzo& lienzo, const DesignState& estado);

}  // namespace calvento
