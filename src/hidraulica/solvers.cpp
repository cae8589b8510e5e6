#include "hidraulica/solvers.h"

namespace calvento {

namespace {

/// Newton's iteration on a depth, from 1 m until a step is under 0.001 m; `correccion` gives the step at a depth.
template <class Correccion>
Single tirantePorNewton(Correccion correccion) {
  Single y = 1.0;
  Single anterior = 0.0;
  for (Vueltas vueltas; !(Abs(y - anterior) < 0.001);) {
    vueltas.una();
    const Real paso = correccion(Real(y));
    anterior = y;
    y = y - paso;
  }
  return y;
}

}  // namespace

Single YCRITICO(Real Q, Real b, Real z) {
  const Real K = Q * Q / gravedad;
  return tirantePorNewton([&](Real y) {
    const Real A = (b + z * y) * y;
    const Real T = b + 2 * z * y;
    const Real F = A * A * A / T - K;
    const Real dF = 3 * A * A - 2 * z * A * A * A / (T * T);
    return F / dF;
  });
}

Single YNORMAL(Real Q, Real b, Real z, Real n, Real S) {
  const Real W = Sqr(1 + z * z);
  const Real K = cubo(Q * n / Sqr(S));
  return tirantePorNewton([&](Real y) {
    const Real A = (b + z * y) * y;
    const Real P = b + 2 * y * W;
    const Real T = b + 2 * z * y;
    const Real A4 = A * A * A * A;
    const Real A5 = A4 * A;
    const Real F = A5 / (P * P) - K;
    const Real dF = (5 * P * T * A4 - 4 * W * A5) / (P * P * P);
    return F / dF;
  });
}

Real MAYOR(Real a, Real c) { return (Abs(a - c) + a + c) / 2; }

Real Y1RESALTO(Real Q, Real y, Real v, Real cotaA, Real cotaB, Real B, Dialogos& dialogos) {
  // y³ + a y² + c = 0, reduced to t³ + p t + q = 0 by y = t - a/3
  const Real a = -((cotaA + y - cotaB) + v * v / dosG);
  const Real c = Q * Q / (dosG * B * B);
  const Real p = -a * a / 3;
  const Real q = (2 * a * a * a + 27 * c) / 27;
  const Real discriminante = q * q / 4 + p * p * p / 27;
  if (discriminante > 0) {
    dialogos.aviso("NO ES POSIBLE CALCULAR TIRANTE CONJUGADO MENOR DEL RESALTO, CORREGIR ENTRADA DE DATOS");
    return 0;
  }
  // the double root: the root of the reduced cubic is meant here, without the shift -a/3
  if (discriminante == 0) return potencia(-4 * q, 1.0 / 3.0);
  const Real c0 = -0.5 * q / Sqr(-cubo(p / 3));
  // the plain arctangent is meant, without a correction of the quadrant
  const Real theta = Atn(Sqr(1 - c0 * c0) / c0);
  constexpr int k = 2;  // the smallest positive root
  return 2 * Sqr(-p / 3) * Cos((theta + 2 * k * piCorto) / 3) - a / 3;
}

}  // namespace calvento
