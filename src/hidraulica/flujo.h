#pragma once

#include "hidraulica/solvers.h"

namespace calvento {

/// Flow of a discharge through a section at one depth.
struct Flujo {
  Real area;             ///< m²
  Real espejo;           ///< top width, m
  Real perimetro;        ///< wetted perimeter, m
  Real radio;            ///< hydraulic radius, m
  Real velocidad;        ///< m/s
  Real alturaVelocidad;  ///< velocity head v²/2g, m
};

/// Flow of Q (m³/s) at depth y (m). Fails for a section without area or perimeter.
Flujo flujoEn(const Seccion& seccion, Real Q, Real y);

/// Slope of the energy line by Manning's relation, (n v / R^(2/3))²; m/m. At the critical depth it is the critical
/// slope. Fails for a hydraulic radius of 0 or less.
Real pendienteFriccion(Real n, Real velocidad, Real radio);

}  // namespace calvento
