#pragma once

#include "modelo/design_state.h"

namespace calvento {

/// What the jump calculation finds beyond the fields of the record.
struct Salto {
  Real F1, F2;  ///< Froude numbers before and after the jump
  Real E1, E2;  ///< specific energies, m
};

/// Depth that holds the balance of momentum with depth y1, m: in closed form for a rectangular section (z = 0), else by
/// Newton's iteration on M(y) = (b/2 + z y/3) y² + Q v/g from ten times y1. The iteration leaves v1, v2 and
/// espejoAbajo of its last round in the record. Fails for y1 = 0, for an empty section and where it does not converge.
Real Y(DesignState& estado, Real Q, Real y1, Real b, Real z);

/// The jump from the discharge and the upstream depth of the record (Q, y1) in a section of side slope z and width b.
/// Writes y2, v1, v2, espejoArriba, espejoAbajo and, as longRapida, the length of the jump. What was written before a
/// failure stays.
Salto calcularSalto(DesignState& estado, Real z, Real b);

}  // namespace calvento
