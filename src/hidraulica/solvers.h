#pragma once

#include "comun/real.h"
#include "plataforma/dialogos.h"

namespace calvento {

/// Geometry of a trapezoidal section of bottom width b and side slope z (horizontal per vertical) at depth y.
struct Seccion {
  Real b, z;
  Real area(Real y) const { return (b + z * y) * y; }
  Real espejo(Real y) const { return b + 2 * z * y; }
  Real perimetro(Real y) const { return b + 2 * y * Sqr(1 + z * z); }
  Real radio(Real y) const { return area(y) / perimetro(y); }
  /// v / sqrt(g A / T)
  Real froude(Real Q, Real y) const { return Q / area(y) / Sqr(gravedad * area(y) / espejo(y)); }
};

/// Critical depth of a trapezoidal section, A³/T = Q²/g, by Newton's iteration from 1 m; m.
/// The iterate is a 4-byte value; stops when it moves less than 0.001 m. Fails for an empty section.
Single YCRITICO(Real Q, Real b, Real z);

/// Normal depth by Manning's relation, A⁵/P² = (Q n / sqrt(S))³, by Newton's iteration from 1 m; m.
/// Precision and failures as YCRITICO; a slope of 0 or less fails too.
Single YNORMAL(Real Q, Real b, Real z, Real n, Real S);

/// The larger of two numbers, as half the sum of their sum and distance.
Real MAYOR(Real a, Real c);

/// Depth on the floor of a rectangular basin of width B at elevation cotaB that has the energy of the section of depth
/// y and velocity v at elevation cotaA, with no loss; m. When the energy is too small for the discharge it
/// tells so in one message and returns 0: the caller goes on with that.
Real Y1RESALTO(Real Q, Real y, Real v, Real cotaA, Real cotaB, Real B, Dialogos& dialogos);

}  // namespace calvento
