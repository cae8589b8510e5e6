#pragma once

#include <cmath>

#include "comun/real.h"

// The equations of the flow in bare numbers, for checks that must not share the routines they check. What has no value
// comes out as no number and holds nowhere.

namespace calvento::ecuaciones {

/// Trapezoidal canal: width, side slope, Manning's n, bottom slope.
struct Canal {
  double b, z, n = 0, S = 0;
  double area(double y) const { return (b + z * y) * y; }
  double espejo(double y) const { return b + 2 * z * y; }
  double radio(double y) const { return area(y) / (b + 2 * y * std::sqrt(1 + z * z)); }
  double velocidad(double Q, double y) const { return Q / area(y); }
  double froude(double Q, double y) const { return velocidad(Q, y) / std::sqrt(gravedad * area(y) / espejo(y)); }
  double energia(double Q, double y) const { return y + velocidad(Q, y) * velocidad(Q, y) / dosG; }
  /// Discharge of uniform flow (Manning), m³/s.
  double caudalUniforme(double y) const { return area(y) * std::pow(radio(y), 2.0 / 3) * std::sqrt(S) / n; }
  /// Q²T/(gA³), which is 1 at the critical depth.
  double condicionCritica(double Q, double y) const { return Q * Q * espejo(y) / (gravedad * std::pow(area(y), 3)); }
  /// Momentum function b y²/2 + z y³/3 + Q²/(gA), m³.
  double momento(double Q, double y) const { return b * y * y / 2 + z * y * y * y / 3 + Q * Q / (gravedad * area(y)); }
};

/// A root of f between a and b, whose values there have opposite signs, by halving; no number where they have not.
template <class Funcion>
double raiz(Funcion&& f, double a, double b) {
  const bool sube = f(a) < 0;
  if (!((sube && f(b) > 0) || (f(a) > 0 && f(b) < 0))) return std::nan("");
  for (int i = 0; i < 60; ++i) {
    const double medio = (a + b) / 2;
    ((f(medio) < 0) == sube ? a : b) = medio;
  }
  return (a + b) / 2;
}

/// Width of a section of side slope z in which the discharge Q passes critically with the energy E: there the rise of
/// a control section is 0. At the critical depth A = 2 (E - y) T, which gives the width by the depth.
inline double anchoCritico(double Q, double E, double z) {
  if (z == 0) return Q / std::sqrt(gravedad * std::pow(2 * E / 3, 3));
  const auto ancho = [&](double y) { return z * y * (4 * E - 5 * y) / (3 * y - 2 * E); };
  const double y = raiz(
      [&](double t) {
        return Canal{ancho(t), z}.condicionCritica(Q, t) - 1;
      },
      2 * E / 3 * (1 + 1e-9), 0.8 * E);
  return ancho(y);
}

}  // namespace calvento::ecuaciones
