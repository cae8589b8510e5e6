#pragma once

#include "hidraulica/solvers.h"
#include "modelo/design_state.h"

namespace calvento {

/// What the jump calculation finds beyond the fields of the record.
struct Salto {
  Real F1, F2;  ///< Froude numbers before and after the jump
  Real E1, E2;  ///< specific energies, m
};

/// Depth that holds the balance of momentum with depth y1 in a section with side slopes, m, by Newton's iteration on
/// M(y) = (b/2 + z y/3) y² + Q v/g from ten times y1. The velocities and the top width of the last round are left in
/// v1, v2 and espejo, and go through them: 4-byte or 8-byte stores. Fails for an empty section and where it does not
/// converge.
template <class Valor>
Real conjugadoTrapezoidal(Real Q, Real y1, const Seccion& seccion, Valor& v1, Valor& v2, Valor& espejo) {
  const auto c = [&](Real y) { return 0.5 * (seccion.b + 2 * seccion.z * y / 3); };
  Real y = 10 * y1;
  Real anterior = 0;
  v1 = Q / seccion.area(y1);
  const Real M1 = c(y1) * cuadrado(y1) + Q * v1 / gravedad;
  for (Vueltas vueltas; !(Abs(y - anterior) < 0.0001);) {
    vueltas.una();
    v2 = Q / seccion.area(y);
    espejo = seccion.espejo(y);
    const Real F = c(y) * cuadrado(y) + Q * v2 / gravedad - M1;
    const Real dF = seccion.z * cuadrado(y) / 3 + 2 * y * c(y) - cuadrado(v2) * espejo / gravedad;
    anterior = y;
    y = y - F / dF;
  }
  return y;
}

/// Depth that holds the balance of momentum with depth y1, m: in closed form for a rectangular section (z = 0), else by
/// Newton's iteration on M(y) = (b/2 + z y/3) y² + Q v/g from ten times y1. The iteration leaves v1, v2 and
/// espejoAbajo of its last round in the record. Fails for y1 = 0, for an empty section and where it does not converge.
Real Y(DesignState& estado, Real Q, Real y1, Real b, Real z);

/// The jump from the discharge and the upstream depth of the record (Q, y1) in a section of side slope z and width b.
/// Writes y2, v1, v2, espejoArriba, espejoAbajo and, as longRapida, the length of the jump. What was written before a
/// failure stays.
Salto calcularSalto(DesignState& estado, Real z, Real b);

}  // namespace calvento
