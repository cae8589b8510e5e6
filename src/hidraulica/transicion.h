#pragma once

#include "comun/numeros.h"

namespace calvento {

/// Length of a transition between two top widths that flares by `angulo` degrees on each side, m; off the grid.
/// Fails for an angle of 0.
inline Real longitudTransicion(Real espejo1, Real espejo2, Real angulo) {
  return Abs(espejo2 - espejo1) * 0.5 / Tan(angulo * piCorto / 180);
}

/// Outlet transition of the structures with a jump balance: a length under 0.15 m is built as 0.5 m, then the grid.
inline void ajustarTransicionSalida(Single& longitud) {
  if (longitud < Single(0.15)) longitud = 0.5;
  longitud = enRejilla(longitud);
}

}  // namespace calvento
