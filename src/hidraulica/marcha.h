#pragma once

#include "comun/real.h"
#include "hidraulica/raiz_cubica.h"

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
    if (!(R > 0)) fallar(R < 0 ? Motivo::argumentoNoValido : Motivo::divisionPorCero);
    const double u = inversaRaizCubica(R.valor());
    const double u2 = u * u;  // R^(-2/3)
    const double raizSf = n * v * u2;
    const double F = v * v / dosG + y + 0.5 * ds * (raizSf * raizSf) - H;
    const double dF = 1 - cociente(T * v * v, gravedad * A) -
                      comprobado(0.5 * ds * n * n * (u * u2 * u2 * u2)).valor() *  // R^(-7/3)
                          (2 * R.valor() * T * v * v / A + cociente(4, 3 * P * P) * v * v * (T * P - 2 * A * W));
    return {comprobado(y - cociente(F, dF)), v, A, comprobado(T), raizSf};
  }

 private:
  static double cociente(double a, double divisor) { return (Real(a) / comprobado(divisor)).valor(); }

  double Q, b, z, n, ds, W;
};

}  // namespace detalle

/// Water surface of a reach by the standard step method in energy form, downstream in 100 equal steps from the depth y
/// at its head. The energy of the first step carries no friction term of the section at the head. Fails for a slope of
/// 0 and where a step has no depth. It advances by single Newton rounds, so that marches that do not depend on each
/// other can take turns: a round is a long chain of divisions, and the processor works on several chains at once.
class Marcha {
 public:
  Marcha(const TramoMarcha& t, Real y)
      : t_(t),
        dz_((t.cotaA - t.cotaB) / pasosPorTramo),
        ds_(Sqr(t.S * t.S + 1) * ((t.cotaA - t.cotaB) / t.S) / pasosPorTramo),
        paso_(t, ds_),
        vueltas_(t.limiteVueltas) {
    const Real v0 = t.Q / ((t.b + t.z * y) * y);
    H_ = dz_ + y + v0 * v0 / dosG;
    y_ = y / 2;
  }

  /// One Newton round; calls `enEstacion` where it ends a station. False once the last station has ended.
  template <class EnEstacion>
  bool ronda(EnEstacion&& enEstacion) {
    vueltas_.una();
    r_ = y_;
    const detalle::Vuelta vuelta = paso_.corregir(y_.valor(), H_.valor());
    y_ = vuelta.y;
    if (!(Abs(y_ - r_) < 0.00001)) return true;
    const Real v = vuelta.v;
    enEstacion(EstacionMarcha{dz_ / t_.S, dz_, y_, v, vuelta.A, vuelta.T});
    H_ = dz_ + y_ + v * v / dosG - ds_ * cuadrado(vuelta.raizSf) / 2;
    y_ = t_.amortiguacion * y_;
    vueltas_ = Vueltas(t_.limiteVueltas);
    return ++estaciones_ < pasosPorTramo;
  }

  /// Depth at the end of the reach: the iterate before the last correction, as a 4-byte value.
  Single final() const { return r_; }

 private:
  TramoMarcha t_;
  Real dz_, ds_;
  detalle::PasoMarcha paso_;
  Vueltas vueltas_;
  Real H_, y_;
  Single r_;
  int estaciones_ = 0;
};

/// The whole march of a reach; calls `enEstacion` after each step and returns the depth at its end.
template <class EnEstacion>
Single marchar(const TramoMarcha& t, Real y, EnEstacion&& enEstacion) {
  Marcha marcha(t, y);
  while (marcha.ronda(enEstacion)) {
  }
  return marcha.final();
}

}  // namespace calvento
