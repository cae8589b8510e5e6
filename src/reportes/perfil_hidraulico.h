#pragma once

#include "modelo/design_state.h"
#include "plataforma/rejilla.h"

namespace calvento {

/// Depth of water with entrained air on a chute, m, from the depth y and velocity V in a section of width b and side
/// slope z: the bulking grows exponentially with the Froude number from 1.6 on, and more steeply from 8.2 on. At
/// exactly these two numbers it is 0, and meant to be. Fails for a section without area or width.
Real YA(Real y, Real V, Real b, Real z);

/// The chute from the upstream canal to the downstream one: station, bed elevation, velocity, energy elevation, depth,
/// depth with air and the name of the place; twenty sections of the computed profile stand between. Fails where the
/// chute has not been calculated.
void tablaPerfil(Rejilla& tabla, const DesignState& estado);

}  // namespace calvento
