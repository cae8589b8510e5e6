#pragma once

#include <cstddef>

#include "comun/real.h"
#include "hidraulica/raiz_cubica.h"

namespace calvento::detalle {

/// Four numbers that go through the same operations at once, two in each of the processor's; two operations at a time
/// keep it from waiting for the one before. Nothing is checked: whoever uses them looks at what comes out.
class Carriles {
 public:
  static constexpr std::size_t cuantos = 4;

  Carriles(double v) : a_{v, v}, b_{v, v} {}  // NOLINT: literals stand in formulas as they are
  /// Each is what `valor` gives for its place. They do not go through memory, where the processor would wait for them.
  template <class DarValor>
  static Carriles deCada(DarValor&& valor) {
    return {Par{valor(0U), valor(1U)}, Par{valor(2U), valor(3U)}};
  }
  double operator[](std::size_t i) const { return i < 2 ? a_[i] : b_[i - 2]; }

  friend Carriles operator+(Carriles x, Carriles y) { return {x.a_ + y.a_, x.b_ + y.b_}; }
  friend Carriles operator-(Carriles x, Carriles y) { return {x.a_ - y.a_, x.b_ - y.b_}; }
  friend Carriles operator*(Carriles x, Carriles y) { return {x.a_ * y.a_, x.b_ * y.b_}; }
  friend Carriles operator/(Carriles x, Carriles y) { return {x.a_ / y.a_, x.b_ / y.b_}; }

  /// Puts one of them. A place that is told by a variable would go through memory.
  void poner(std::size_t i, double v) {
    if (i == 0) a_ = Par{v, a_[1]};
    if (i == 1) a_ = Par{a_[0], v};
    if (i == 2) b_ = Par{v, b_[1]};
    if (i == 3) b_ = Par{b_[0], v};
  }

  /// The numbers as a 4-byte store keeps them.
  Carriles enCuatroBytes() const { return {enCuatroBytes(a_), enCuatroBytes(b_)}; }

  /// Whether all lie between two bounds.
  bool entre(double menor, double mayor) const {
    const auto dentro = (a_ > menor) & (a_ < mayor) & (b_ > menor) & (b_ < mayor);
    return (dentro[0] & dentro[1]) != 0;
  }

  /// Which are nearer to zero than the bound: a bit each.
  unsigned casiCero(double limite) const {
    const auto a = (a_ > -limite) & (a_ < limite), b = (b_ > -limite) & (b_ < limite);
    return static_cast<unsigned>((a[0] & 1) | (a[1] & 2) | (b[0] & 4) | (b[1] & 8));
  }

 private:
  using Par = double __attribute__((vector_size(2 * sizeof(double))));
  using ParCorto = float __attribute__((vector_size(2 * sizeof(float))));
  Carriles(Par a, Par b) : a_(a), b_(b) {}
  static Par enCuatroBytes(Par v) { return __builtin_convertvector(__builtin_convertvector(v, ParCorto), Par); }

  Par a_, b_;
};

// The checks of a formula that is written once for a number and for several at a time.
inline double comoNumero(double v) { return comprobado(v).valor(); }
inline double positivo(double R) {
  if (!(R > 0)) fallar(R < 0 ? Motivo::argumentoNoValido : Motivo::divisionPorCero);
  return R;
}
inline double cociente(double a, double divisor) { return (Real(a) / comprobado(divisor)).valor(); }
using calvento::inversaRaizCubica;

inline Carriles comoNumero(Carriles v) { return v; }
inline Carriles positivo(Carriles R) { return R; }
inline Carriles cociente(Carriles a, Carriles divisor) { return a / divisor; }
inline Carriles inversaRaizCubica(Carriles x) {
  return afinarInversaRaizCubica(x, Carriles::deCada([&](std::size_t i) { return semillaInversaRaizCubica(x[i]); }));
}

}  // namespace calvento::detalle
