#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <random>

#include "apoyo/dialogos_guion.h"
#include "hidraulica/raiz_cubica.h"
#include "hidraulica/solvers.h"

namespace calvento {
namespace {

using Largo = long double;

/// Root of a growing function above 0, by bisection in long double.
Largo raiz(const std::function<Largo(Largo)>& f, Largo bajo, Largo alto) {
  for (int i = 0; i < 150; ++i) {
    const Largo medio = (bajo + alto) / 2;
    (f(medio) < 0 ? bajo : alto) = medio;
  }
  return alto;
}

/// How far a solver may stop from the root. It stops on a step under 0.001; Newton's error then is about
/// (m - 1) / 2y · step² for a relation that grows as y^m (m at most 8), and the result is a 4-byte value. Within a few
/// steps of zero the iteration only creeps, y(1 - 1/m) each time, and stops up to (m - 1) steps away.
Largo desvioPermitido(Largo y) {
  const Largo cuatroBytes = y * 6.0e-8L;
  return y < 0.03L ? 0.0075L : 4.5e-6L / y + cuatroBytes;
}

TEST(Solvers, RootsOfRandomSections) {
  std::mt19937 azar(20240611);
  const auto entre = [&](double a, double b) {  // evenly over the orders of magnitude
    return std::exp(std::uniform_real_distribution<double>(std::log(a), std::log(b))(azar));
  };
  int profundos = 0;
  int someros = 0;
  for (int i = 0; i < 6000; ++i) {
    // canals of practice, then the tiny and the huge, the narrow and the wide
    const bool extremo = i % 2 == 1;
    const double Q = extremo ? entre(1e-6, 1e4) : entre(0.01, 500);
    const double z = i % 5 == 0 ? 0 : (extremo ? entre(0.01, 50) : entre(0.25, 4));
    const double b = i % 7 == 0 && z > 0 ? 0 : (extremo ? entre(0.01, 1e5) : entre(0.2, 40));
    const double n = entre(0.008, 0.15);
    const double S = entre(1e-6, 1);
    SCOPED_TRACE(testing::Message() << "Q " << Q << " b " << b << " z " << z << " n " << n << " S " << S);

    const auto area = [&](Largo y) { return (b + z * y) * y; };
    const Largo yc =
        raiz([&](Largo y) { return area(y) * area(y) * area(y) * 9.81L / (b + 2 * z * y) - Largo(Q) * Q; }, 0, 1e12L);
    const Largo yn = raiz(
        [&](Largo y) {
          const Largo perimetro = b + 2 * y * std::sqrt(1 + Largo(z) * z);
          return area(y) * std::pow(area(y) / perimetro, 2.0L / 3) * std::sqrt(Largo(S)) / n - Q;
        },
        0, 1e12L);
    EXPECT_NEAR(static_cast<double>(YCRITICO(Q, b, z).valor()), static_cast<double>(yc),
                static_cast<double>(desvioPermitido(yc)));
    EXPECT_NEAR(static_cast<double>(YNORMAL(Q, b, z, n, S).valor()), static_cast<double>(yn),
                static_cast<double>(desvioPermitido(yn)));
    profundos += yc > 300 || yn > 300 ? 1 : 0;
    someros += yc < 0.03L || yn < 0.03L ? 1 : 0;
  }
  EXPECT_GT(profundos, 100);
  EXPECT_GT(someros, 100);
}

TEST(Solvers, WithoutFlowTheIterationStopsAFewStepsAboveZero) {
  // A³/T grows as y³ in a rectangle and as y⁵ in a triangle, A⁵/P² as y⁸ in a triangle, so each round keeps 2/3, 4/5
  // and 7/8 of the depth: from 1 m, the first step under 0.001 is the 16th, the 25th and the 38th
  EXPECT_NEAR(static_cast<double>(YCRITICO(0, 2, 0).valor()), std::pow(2.0 / 3, 16), 1e-8);
  EXPECT_NEAR(static_cast<double>(YCRITICO(0, 0, 1.5).valor()), std::pow(0.8, 25), 1e-8);
  EXPECT_NEAR(static_cast<double>(YNORMAL(3, 0, 1.5, 0, 0.001).valor()), std::pow(0.875, 38), 1e-8);
  // one step is taken at least, though the start of 1 m is within the tolerance already
  EXPECT_NEAR(static_cast<double>(YCRITICO(Sqr(9.81 * std::pow(1.0005, 3)), 1, 0).valor()), 1.0005, 5e-7);
}

TEST(Solvers, FailWhereTheSectionOrTheSlopeHasNoDepth) {
  const struct {
    std::function<void()> calculo;
    Motivo motivo;
  } casos[] = {
      {[] { YCRITICO(1, 0, 0); }, Motivo::divisionPorCero},  // no section
      {[] { YNORMAL(1, 0, 0, 0.014, 0.001); }, Motivo::divisionPorCero},
      {[] { YNORMAL(1, 1, 1, 0.014, 0); }, Motivo::divisionPorCero},  // level bed
      {[] { YNORMAL(1, 1, 1, 0, 0); }, Motivo::divisionPorCero},
      {[] { YNORMAL(1, 1, 1, 0.014, -0.001); }, Motivo::argumentoNoValido},
      {[] { YCRITICO(1e30, 1, 0); }, Motivo::desbordamiento},
      // in a triangle A⁵/P² grows as y⁸, which is never negative: the iteration wanders for ever
      {[] { YNORMAL(-1, 0, 1, 0.02, 0.001); }, Motivo::sinConvergencia},
  };
  for (const auto& c : casos) {
    std::optional<Motivo> motivo;
    try {
      c.calculo();
    } catch (const FalloAritmetico& fallo) {
      motivo = fallo.motivo();
    }
    EXPECT_EQ(motivo, c.motivo) << &c - casos;
  }
}

TEST(Mayor, OfAnyTwo) {
  EXPECT_EQ(MAYOR(2, 5).valor(), 5);
  EXPECT_EQ(MAYOR(-1, -3).valor(), -1);
  EXPECT_NEAR(MAYOR(-1e6, 0.1).valor(), 0.1, 1e-9);
}

/// Depth below a chute end with all energy E in its elevation.
Real conEnergia(Real E, Real Q, Real B, Dialogos& dialogos) { return Y1RESALTO(Q, 0, 0, 100 + E, 100, B, dialogos); }

TEST(Y1Resalto, HoldsTheEnergyButForTheShortPi) {
  std::mt19937 azar(7);
  const auto entre = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(azar); };
  DialogosGuion dialogos;
  for (int i = 0; i < 3000; ++i) {
    const double y = entre(0.05, 2);
    const double v = entre(1, 20);
    const double caida = entre(0, 8);
    const double B = entre(0.5, 20);
    const Largo E = caida + y + Largo(v) * v / 19.62L;
    // q < 0: under half of what the energy can carry at most, 4/27 E³
    const Largo c = 4.0L / 27 * E * E * E * Largo(entre(0.001, 0.499));
    const double Q = static_cast<double>(std::sqrt(c * 19.62L) * B);
    // the energy falls with the depth up to 2/3 E; the smaller root lies below
    const Largo exacto = raiz([&](Largo x) { return E - x - c / (x * x); }, 0, 2 * E / 3);
    // 3.1415 for pi, four times in a third of an angle, turns the cosine a little
    const Largo radio = 2 * E / 3;
    const Largo coseno = (exacto - E / 3) / radio;
    const Largo giro = 4.0L / 3 * (3.14159265358979324L - 3.1415L);
    const Largo desvio = -radio * std::sqrt(1 - coseno * coseno) * giro;
    const Real nuestro = Y1RESALTO(Q, y, v, 50 + caida, 50, B, dialogos);
    EXPECT_NEAR(static_cast<double>(nuestro.valor() - exacto), static_cast<double>(desvio),
                static_cast<double>(E) * 1e-8)
        << "Q " << Q << " y " << y << " v " << v << " drop " << caida << " B " << B;
  }
}

TEST(Y1Resalto, BranchesOfTheCubic) {
  DialogosGuion dialogos;
  const auto caudal = [](double c) { return std::sqrt(c * 19.62); };  // with B = 1 and E = 3: y³ - 3y² + c = 0
  // c = 1: t³ - 3t - 1 = 0 has the root -0.34730 for the smaller depth
  EXPECT_NEAR(conEnergia(3, caudal(1), 1, dialogos).valor(), 0.65270, 3e-4);
  // c = 3, so q > 0: the plain arctangent misses the smaller depth 1.34730 and gives 2/3 E less the larger, 2.53209
  EXPECT_NEAR(conEnergia(3, caudal(3), 1, dialogos).valor(), 2 - 2.53209, 3e-4);
  // without discharge the two lesser roots fall together at 0: the reduced root 2/3 E comes back, unshifted
  EXPECT_NEAR(conEnergia(3, 0, 1, dialogos).valor(), 2, 1e-12);
  EXPECT_EQ(conEnergia(0, 0, 1, dialogos).valor(), 0);
  // critical flow: the double root is taken from a negative number, which fails
  EXPECT_THROW(conEnergia(3, 8.858893836140041, 1, dialogos), FalloAritmetico);
  EXPECT_THROW(conEnergia(3, 5, 0, dialogos), FalloAritmetico);
  EXPECT_TRUE(dialogos.dichas.empty());
}

TEST(Y1Resalto, TooLittleEnergyIsToldOnceAndGivesZero) {
  DialogosGuion dialogos;
  dialogos.esperaAviso("NO ES POSIBLE CALCULAR TIRANTE CONJUGADO MENOR DEL RESALTO, CORREGIR ENTRADA DE DATOS");
  EXPECT_EQ(conEnergia(3, 9, 1, dialogos).valor(), 0);  // 8.859 is the most that 3 m can carry
}

TEST(RaizCubica, ItsInverseGivesTheNumberBackWhateverItsSize) {
  for (double x = 5e-324; x < 1.7e308; x = x < 1e-300 ? x * 2 : x * 1.0137) {
    const Largo u = inversaRaizCubica(x);
    ASSERT_NEAR(static_cast<double>(u * u * u * x), 1, 4e-15) << x;
  }
}

}  // namespace
}  // namespace calvento
