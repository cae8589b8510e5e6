#pragma once

#include <bit>
#include <cfloat>
#include <cmath>
#include <concepts>
#include <cstdint>

#include "comun/fallo.h"

namespace calvento {

/// An 8-byte number whose operations never give an infinity or a NaN: they throw FalloAritmetico instead, in the
/// statement where it happens. A formula written with Real reads like the formula.
class Real {
 public:
  constexpr Real() = default;
  constexpr Real(double v) : v_(v) {}  // NOLINT: literals stand in formulas as they are
  template <std::integral Entero>
  constexpr Real(Entero v) : v_(static_cast<double>(v)) {}  // NOLINT

  /// The bare number, for code that leaves the checked arithmetic (drawing, printing).
  constexpr double valor() const { return v_; }

  Real& operator+=(Real b);
  Real& operator-=(Real b);
  Real& operator*=(Real b);
  Real& operator/=(Real b);

 private:
  double v_ = 0;
};

namespace detalle {

/// True for every number that is neither infinite nor a NaN: those have all bits of the exponent set. On the bits it is
/// cheaper than a comparison of numbers, which would compete with the arithmetic itself.
constexpr bool utilizable(double v) { return (std::bit_cast<std::uint64_t>(v) << 1) < (std::uint64_t{0x7FF} << 53); }

inline Real comprobado(double v, Motivo motivo = Motivo::desbordamiento) {
  if (!utilizable(v)) [[unlikely]]
    fallar(motivo);
  return Real(v);
}

}  // namespace detalle

inline Real operator+(Real a, Real b) { return detalle::comprobado(a.valor() + b.valor()); }
inline Real operator-(Real a, Real b) { return detalle::comprobado(a.valor() - b.valor()); }
inline Real operator*(Real a, Real b) { return detalle::comprobado(a.valor() * b.valor()); }
inline Real operator/(Real a, Real b) {
  const double cociente = a.valor() / b.valor();
  if (!detalle::utilizable(cociente)) [[unlikely]]
    fallar(b.valor() == 0 ? Motivo::divisionPorCero : Motivo::desbordamiento);
  return Real(cociente);
}
inline Real operator-(Real a) { return Real(-a.valor()); }
inline Real operator+(Real a) { return a; }

inline bool operator<(Real a, Real b) { return a.valor() < b.valor(); }
inline bool operator>(Real a, Real b) { return a.valor() > b.valor(); }
inline bool operator<=(Real a, Real b) { return a.valor() <= b.valor(); }
inline bool operator>=(Real a, Real b) { return a.valor() >= b.valor(); }
inline bool operator==(Real a, Real b) { return a.valor() == b.valor(); }

inline Real& Real::operator+=(Real b) { return *this = *this + b; }
inline Real& Real::operator-=(Real b) { return *this = *this - b; }
inline Real& Real::operator*=(Real b) { return *this = *this * b; }
inline Real& Real::operator/=(Real b) { return *this = *this / b; }

/// Square root; fails for a negative.
inline Real Sqr(Real x) {
  if (x.valor() < 0) [[unlikely]]
    fallar(Motivo::argumentoNoValido);
  return Real(std::sqrt(x.valor()));
}

/// base^exponente; fails for a fractional power of a negative, for 0 to a negative power and on overflow.
inline Real potencia(Real base, Real exponente) {
  const double r = std::pow(base.valor(), exponente.valor());
  if (!detalle::utilizable(r)) [[unlikely]]
    fallar(base.valor() < 0 ? Motivo::argumentoNoValido
                            : (base.valor() == 0 ? Motivo::divisionPorCero : Motivo::desbordamiento));
  return Real(r);
}

inline Real Abs(Real x) { return Real(std::fabs(x.valor())); }
inline Real Atn(Real x) { return Real(std::atan(x.valor())); }
inline Real Sin(Real x) { return Real(std::sin(x.valor())); }
inline Real Cos(Real x) { return Real(std::cos(x.valor())); }
inline Real Tan(Real x) { return detalle::comprobado(std::tan(x.valor())); }
inline Real Exp(Real x) { return detalle::comprobado(std::exp(x.valor())); }
/// The whole part, cut towards zero.
inline Real Fix(Real x) { return Real(std::trunc(x.valor())); }
/// x² and x³, written out so that powers of whole order stay plain products.
inline Real cuadrado(Real x) { return x * x; }
inline Real cubo(Real x) { return x * x * x; }

/// A 4-byte store. Assigning rounds to 4 bytes and fails on overflow; reading gives a Real.
class Single {
 public:
  constexpr Single() = default;
  Single(Real v) : v_(aCuatroBytes(v)) {}               // NOLINT
  Single(double v) : Single(detalle::comprobado(v)) {}  // NOLINT
  template <std::integral Entero>
  Single(Entero v) : v_(static_cast<float>(v)) {}  // NOLINT
  static constexpr Single deFloat(float v) {
    Single s;
    s.v_ = v;
    return s;
  }

  operator Real() const { return Real(static_cast<double>(v_)); }  // NOLINT
  /// The stored 4-byte number, for printing and comparison bit by bit.
  constexpr float valor() const { return v_; }

  Single& operator+=(Real b) { return *this = Single(Real(*this) + b); }
  Single& operator-=(Real b) { return *this = Single(Real(*this) - b); }

 private:
  static float aCuatroBytes(Real v) {
    const float f = static_cast<float>(v.valor());
    if (!(std::fabs(f) <= FLT_MAX)) [[unlikely]]
      fallar(Motivo::desbordamiento);
    return f;
  }
  float v_ = 0;
};

/// A 2-byte whole number: ties to even, fails outside -32768 … 32767.
std::int16_t enteroCorto(Real v);

/// Gravity and the short value of pi that all formulas of the program use.
inline constexpr double gravedad = 9.81;
inline constexpr double dosG = 19.62;
inline constexpr double piCorto = 3.1415;
/// Wall and slab thickness, m.
inline constexpr double espesorMuro = 0.15;

}  // namespace calvento
