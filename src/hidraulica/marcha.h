#pragma once

#include "comun/real.h"

namespace calvento {

/// One reach of constant slope: section, roughness and bottom elevations at its head and end.
struct TramoMarcha {
  Real Q, b, z, n, S;
  Real cotaA, cotaB;
  /// Where the Newton start of the next station lies, as a part of the depth of this one.
  double amortiguacion;
  int limiteVueltas = Vueltas::limiteSimple;  ///< most Newton rounds of a station
};

/// What is known at the end of a station of the march.
struct EstacionMarcha {
  Real dx;       ///< horizontal step, m
  Real dz;       ///< fall of the bed in the step, m
  Real y;        ///< depth after the last correction, m
  Real v, A, T;  ///< velocity, area and top width of the last Newton round, whose depth is one correction older
};

inline constexpr int pasosPorTramo = 100;

namespace detalle {

/// One Newton round of a station: the corrected depth, and the flow at the depth before it.
struct Vuelta {
  Real y, v, A, T;
  Real raizSf;  ///< square root of the friction slope
};

/// The rounds are the bulk of a chute's calculation. Their sums and products are bare numbers: an infinity in them
/// stays one up to the end of the statement. Only what divides, is raised to a power or leaves the round is checked.
class PasoMarcha {
 public:
  PasoMarcha(const TramoMarcha& t, Real paso)
      : Q(t.Q.valor()),
        b(t.b.valor()),
        z(t.z.valor()),
        n(t.n.valor()),
        ds(paso.valor()),
        W(Sqr(1 + t.z * t.z).valor()) {}

  Vuelta corregir(double y, double H) const {
    const double T = b + 2 * z * y;
    const double A = comprobado((b + z * y) * y).valor();
    const double v = (Real(Q) / A).valor();
    const double P = comprobado(b + 2 * y * W).valor();
    const Real R = Real(A) / P;
    const double raizSf = (Real(n * v) / potencia(R, 2.0 / 3.0)).valor();
    const double F = v * v / dosG + y + 0.5 * ds * (raizSf * raizSf) - H;
    const double dF = 1 - cociente(T * v * v, gravedad * A) -
                      cociente(0.5 * ds * n * n, potencia(R, 7.0 / 3.0).valor()) *
                          (2 * R.valor() * T * v * v / A + cociente(4, 3 * P * P) * v * v * (T * P - 2 * A * W));
    return {comprobado(y - cociente(F, dF)), v, A, comprobado(T), raizSf};
  }

 private:
  static double cociente(double a, double divisor) { return (Real(a) / comprobado(divisor)).valor(); }

  double Q, b, z, n, ds, W;
};

}  // namespace detalle

/// Water surface of a reach by the standard step method in energy form, downstream in 100 equal steps from the depth y
/// at its head; calls `enEstacion` after each step. Returns the iterate before the last correction, as a 4-byte value.
/// The energy of the first step carries no friction term of the section at the head. Fails for a slope of 0 and where a
/// step has no depth.
template <class EnEstacion>
Single marchar(const TramoMarcha& t, Real y, EnEstacion&& enEstacion) {
  const Real L = (t.cotaA - t.cotaB) / t.S;
  const Real dz = (t.cotaA - t.cotaB) / pasosPorTramo;
  const Real ds = Sqr(t.S * t.S + 1) * L / pasosPorTramo;
  const Real v0 = t.Q / ((t.b + t.z * y) * y);
  Real H = dz + y + v0 * v0 / dosG;
  y = y / 2;
  Single r = 0;
  const detalle::PasoMarcha paso(t, ds);
  for (int i = 0; i < pasosPorTramo; ++i) {
    detalle::Vuelta vuelta;
    Vueltas vueltas(t.limiteVueltas);
    do {
      vueltas.una();
      r = y;
      vuelta = paso.corregir(y.valor(), H.valor());
      y = vuelta.y;
    } while (!(Abs(y - r) < 0.00001));
    const Real v = vuelta.v;
    enEstacion(EstacionMarcha{dz / t.S, dz, y, v, vuelta.A, vuelta.T});
    H = dz + y + v * v / dosG - ds * cuadrado(vuelta.raizSf) / 2;
    y = t.amortiguacion * y;
  }
  return r;
}

}  // namespace calvento
