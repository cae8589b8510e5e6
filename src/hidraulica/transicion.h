#pragma once

#include "comun/numeros.h"

namespace calvento {

/// Length of a transition between two top widths that flares by `angulo` degrees on each side, m; off the grid.
/// Fails for an angle of 0.
inline Real longitudTransicion(Real espejo1, Real espejo2, Real angulo) {
  return Abs(espejo2 - espejo1) * 0.5 / Tan(angulo * piCorto / 180);
}

}  // namespace calvento
