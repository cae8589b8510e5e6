#pragma once

#include "comun/real.h"
#include "hidraulica/carriles.h"

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

/// One Newton round of a station: the corrected depth, and the flow at the depth before it. N is a number, or several
/// that go through the same operations at once.
template <class N>
struct Vuelta {
  N y, v, A, T;
  N raizSf;  ///< square root of the friction slope
  N P, dF;   ///< wetted perimeter and derivative, which tell whether a round is sound
};

/// The rounds are the bulk of a chute's calculation. Their sums and products are bare numbers: an infinity in them
/// stays one up to the end of the statement. Only what divides, is raised to a power or leaves the round is checked.
class PasoMarcha {
 public:
  PasoMarcha(const TramoMarcha& t, Real paso)
      : b(t.b.valor()), z(t.z.valor()), n(t.n.valor()), ds(paso.valor()), W(Sqr(1 + t.z * t.z).valor()) {}

  template <class N>
  Vuelta<N> corregir(N Q, N y, N H) const {
    const N T = b + 2 * z * y;
    const N A = comoNumero((b + z * y) * y);
    const N v = cociente(Q, A);
    const N P = comoNumero(b + 2.0 * y * W);
    const N R = positivo(cociente(A, P));
    const N u = inversaRaizCubica(R);
    const N u2 = u * u;  // R^(-2/3)
    const N raizSf = n * v * u2;
    const N F = v * v / dosG + y + 0.5 * ds * (raizSf * raizSf) - H;
    const N dF = 1.0 - cociente(T * v * v, gravedad * A) -
                 comoNumero(0.5 * ds * n * n * (u * u2 * u2 * u2)) *  // R^(-7/3)
                     (2.0 * R * T * v * v / A + cociente(4, 3.0 * P * P) * v * v * (T * P - 2.0 * A * W));
    return {comoNumero(y - cociente(F, dF)), v, A, comoNumero(T), raizSf, P, dF};
  }

 private:
  double b, z, n, ds, W;
};

}  // namespace detalle

/// Water surface of a reach by the standard step method in energy form, downstream in 100 equal steps from the depth y
/// at its head. The energy of the first step carries no friction term of the section at the head. Fails for a slope of
/// 0 and where a step has no depth. It advances by single Newton rounds, so that several marches can go
/// side by side.
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
    empezarRonda();
    return acabarRonda(paso_.corregir(t_.Q.valor(), y_.valor(), H_.valor()), enEstacion);
  }

  /// Depth at the end of the reach: the iterate before the last correction, as a 4-byte value.
  Single final() const { return r_; }

 private:
  template <class EnEstacion>
  friend class MarchasALaVez;

  void empezarRonda() {
    vueltas_.una();
    r_ = y_;
  }
  template <class EnEstacion>
  bool acabarRonda(const detalle::Vuelta<double>& vuelta, EnEstacion&& enEstacion) {
    y_ = vuelta.y;
    return !(Abs(y_ - r_) < tolerancia) || acabarEstacion(vuelta, enEstacion);
  }
  template <class EnEstacion>
  bool acabarEstacion(const detalle::Vuelta<double>& vuelta, EnEstacion&& enEstacion) {
    const Real v = vuelta.v;
    enEstacion(EstacionMarcha{dz_ / t_.S, dz_, y_, v, vuelta.A, vuelta.T});
    H_ = dz_ + y_ + v * v / dosG - ds_ * cuadrado(vuelta.raizSf) / 2;
    y_ = t_.amortiguacion * y_;
    vueltas_ = Vueltas(t_.limiteVueltas);
    return ++estaciones_ < pasosPorTramo;
  }

  static constexpr double tolerancia = 0.00001;  ///< of two depths that follow each other, m

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
