#pragma once

#include "comun/real.h"

namespace calvento {

/// One reach of constant slope: section, roughness and bottom elevations at its head and end.
struct TramoMarcha {
  Real Q, b, z, n, S;
  Real cotaA, cotaB;
  /// Where the Newton start of the next station lies, as a part of the depth of this one.
  double amortiguacion;
};

/// What is known at the end of a station of the march.
struct EstacionMarcha {
  Real dx;       ///< horizontal step, m
  Real dz;       ///< fall of the bed in the step, m
  Real y;        ///< depth after the last correction, m
  Real v, A, T;  ///< velocity, area and top width of the last Newton round, whose depth is one correction older
};

inline constexpr int pasosPorTramo = 100;

/// Water surface of a reach by the standard step method in energy form, downstream in 100 equal steps from the depth y
/// at its head; calls `enEstacion` after each step. Returns the iterate before the last correction, as a 4-byte value.
/// The energy of the first step carries no friction term of the section at the head. Fails for a slope of 0 and where a
/// step has no depth.
template <class EnEstacion>
Single marchar(const TramoMarcha& t, Real y, EnEstacion&& enEstacion) {
  const Real L = (t.cotaA - t.cotaB) / t.S;
  const Real dz = (t.cotaA - t.cotaB) / pasosPorTramo;
  const Real ds = Sqr(t.S * t.S + 1) * L / pasosPorTramo;
  const Real W = Sqr(1 + t.z * t.z);
  Real A = (t.b + t.z * y) * y;
  Real v = t.Q / A;
  Real H = dz + y + v * v / dosG;
  y = y / 2;
  Single r = 0;
  for (int i = 0; i < pasosPorTramo; ++i) {
    Real T, R;
    Vueltas vueltas;
    do {
      vueltas.una();
      r = y;
      T = t.b + 2 * t.z * y;
      A = (t.b + t.z * y) * y;
      v = t.Q / A;
      const Real P = t.b + 2 * y * W;
      R = A / P;
      const Real F = v * v / dosG + y + 0.5 * ds * cuadrado(t.n * v / potencia(R, 2.0 / 3.0)) - H;
      const Real dF = 1 - T * v * v / (gravedad * A) -
                      (0.5 * ds * t.n * t.n / potencia(R, 7.0 / 3.0)) *
                          (2 * R * T * v * v / A + (4 / (3 * P * P)) * v * v * (T * P - 2 * A * W));
      y = y - F / dF;
    } while (!(Abs(y - r) < 0.00001));
    enEstacion(EstacionMarcha{dz / t.S, dz, y, v, A, T});
    const Real Sf = cuadrado(t.n * v / potencia(R, 2.0 / 3.0));
    H = dz + y + v * v / dosG - ds * Sf / 2;
    y = t.amortiguacion * y;
  }
  return r;
}

}  // namespace calvento
