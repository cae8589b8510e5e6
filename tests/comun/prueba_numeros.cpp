#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "comun/numeros.h"

namespace calvento {
namespace {

TEST(Val, ReadsTheNumberAtTheStart) {
  const struct {
    const char* texto;
    double valor;
  } casos[] = {
      {"2.5", 2.5}, {"  -3", -3},  {"+.5x", 0.5}, {"1.2e3m", 1200},    {"1e", 1},  {"", 0},
      {"abc", 0},   {"2,5", 2},    {"inf", 0},    {"nan", 0},          {"-", 0},   {".", 0},
      {"0x10", 0},  {"5.", 5},     {"\t 7 8", 7}, {"1.5.2", 1.5},      {"--2", 0}, {"1e-400", 0},
      {"+-2", 0},   {"1e+2", 100}, {"e5", 0},     {"2e-310x", 2e-310},
  };
  for (const auto& c : casos) EXPECT_EQ(Val(c.texto).valor(), c.valor) << '"' << c.texto << '"';
  EXPECT_THROW(Val("1e400"), FalloAritmetico);
  EXPECT_THROW(Val("-" + std::string(400, '9')), FalloAritmetico);
}

TEST(EsNumero, IsOneFromEndToEnd) {
  for (const char* si : {"2.5", " -3\t", "+.5", "1e-3", "5."}) EXPECT_TRUE(esNumero(si)) << si;
  for (const char* no : {"", "-", "2,5", "3 m", "1.2.3", "inf", "nan", "0x1F", "+-2", "1e", "1e400"})
    EXPECT_FALSE(esNumero(no)) << no;
}

TEST(PuntoDecimal, TakesTheCommaOfASpanishKeyboard) {
  const struct {
    const char* tecleado;
    const char* leido;
  } casos[] = {
      {"2,5", "2.5"},
      {"2.5", "2.5"},
      {"", ""},
      {",5", ".5"},
      {"1.234,56", "1234.56"},
      {"1,234.56", "1234.56"},
      {"-1.234.567,8", "-1234567.8"},
      {"1,234", "1.234"},
      {"12,34.5", "12.34.5"},
      {"1.234,", "1234."},
      {"abc", "abc"},
  };
  for (const auto& c : casos) EXPECT_EQ(conPuntoDecimal(c.tecleado), c.leido) << c.tecleado;
  const std::string larguisimo(1 << 20, '1');
  EXPECT_EQ(conPuntoDecimal(larguisimo + ",5"), larguisimo + ".5");
}

TEST(Round, TiesGoToTheEvenDigit) {
  EXPECT_EQ(Round(Real(2.5), 0).valor(), 2);
  EXPECT_EQ(Round(Real(3.5), 0).valor(), 4);
  EXPECT_EQ(Round(Real(-2.5), 0).valor(), -2);
  EXPECT_EQ(Round(Real(0.125), 2).valor(), 0.12);
  EXPECT_EQ(Round(Real(0.375), 2).valor(), 0.38);
  EXPECT_EQ(Round(Real(1e300), 3).valor(), 1e300);
  EXPECT_EQ(enRejilla(Real(0.975)).valor(), 0.05 * 20);  // 19.5 steps: the even 20
  EXPECT_EQ(Round(Single(2.34567), 3).valor(), 2.346F);
}

TEST(Texto, PlainNumbersHaveNoLocaleAndNoTrailingZeros) {
  EXPECT_EQ(texto(Real(0.1) + 0.2), "0.3");
  EXPECT_EQ(texto(Real(-1234.5)), "-1234.5");
  EXPECT_EQ(texto(Real(1e15)), "1E+15");
  EXPECT_EQ(texto(Real(123456789012345.0)), "123456789012345");
  EXPECT_EQ(texto(Real(0.00001)), "0.00001");
  EXPECT_EQ(texto(Single(91.2)), "91.2");
  EXPECT_EQ(texto(Single(2522.9834)), "2522.983");
  EXPECT_EQ(texto(Single(16777216)), "1.677722E+07");
  EXPECT_EQ(texto(Real(0)), "0");
  EXPECT_EQ(texto(Real(-0.0)), "0");
  EXPECT_EQ(texto(Real(20)), "20");
}

TEST(Formato, FillsThePatternAndRoundsTiesAway) {
  const struct {
    double valor;
    const char* patron;
    const char* texto;
  } casos[] = {
      {1234.5, "0+000.00", "1+234.50"},  {125, "0+000.00", "0+125.00"},
      {-5, "0+000.00", "-0+005.00"},     {12345678.9, "0+000.00", "12345+678.90"},
      {0.125, "0.00", "0.13"},           {2.345, "0.00", "2.35"},
      {-0.0004, "0.000", "0.000"},       {999.9996, "0.000", "1000.000"},
      {0.0005, "0.000", "0.001"},        {7.7889013, "0.0000", "7.7889"},
      {1250, "0+000", "1+250"},          {0, "0.00", "0.00"},
      {999.995, "0+000.00", "1+000.00"}, {-0.02899224, "0.000000", "-0.028992"},
  };
  for (const auto& c : casos) EXPECT_EQ(formato(c.valor, c.patron), c.texto) << c.valor << ' ' << c.patron;
}

TEST(Real, FailsInTheStatementThatHasNoResult) {
  const auto motivo = [](auto f) {
    try {
      f();
    } catch (const FalloAritmetico& fallo) {
      return fallo.motivo();
    }
    ADD_FAILURE() << "no failure";
    return Motivo::subindice;
  };
  EXPECT_EQ(motivo([] { return Real(1) / 0; }), Motivo::divisionPorCero);
  EXPECT_EQ(motivo([] { return Real(0) / 0; }), Motivo::divisionPorCero);
  EXPECT_EQ(motivo([] { return Real(1e308) * 10; }), Motivo::desbordamiento);
  EXPECT_EQ(motivo([] { return Real(DBL_MAX) + DBL_MAX; }), Motivo::desbordamiento);
  EXPECT_EQ(motivo([] { return Sqr(-1e-300); }), Motivo::argumentoNoValido);
  EXPECT_EQ(motivo([] { return potencia(-8, 1.0 / 3); }), Motivo::argumentoNoValido);
  EXPECT_EQ(motivo([] { return potencia(0, -1); }), Motivo::divisionPorCero);
  EXPECT_EQ(motivo([] { return Real(Single(Real(1e39))); }), Motivo::desbordamiento);
  EXPECT_EQ(motivo([] { return Real(enteroCorto(40000)); }), Motivo::desbordamiento);
  EXPECT_EQ(potencia(-2, 3).valor(), -8);
}

TEST(Real, TakesEveryFiniteNumberAndNoOther) {
  using Limites = std::numeric_limits<double>;
  for (const double v :
       {0.0, -0.0, 1.0, -1.0, DBL_MAX, -DBL_MAX, DBL_MIN, Limites::denorm_min(), -Limites::denorm_min()})
    EXPECT_EQ((Real(v) * 1).valor(), v);
  for (const double v : {Limites::infinity(), -Limites::infinity(), Limites::quiet_NaN(), -Limites::quiet_NaN()})
    EXPECT_THROW(Real(v) * 1, FalloAritmetico) << v;
  for (const double v : {std::nextafter(double{FLT_MAX}, 0.0), double{FLT_MAX}, -double{FLT_MAX}})
    EXPECT_NO_THROW(Single(Real(v))) << v;
  EXPECT_THROW(Single(Real(double{FLT_MAX} * 1.0000001)), FalloAritmetico);
  EXPECT_THROW(enteroCorto(-32769), FalloAritmetico);
  EXPECT_EQ(enteroCorto(Real(-32768.4)), -32768);
  EXPECT_THROW(potencia(1e200, 2), FalloAritmetico);
  EXPECT_THROW(Exp(1000), FalloAritmetico);
  EXPECT_EQ(Fix(Real(-2.9)).valor(), -2);
}

TEST(Single, EveryStoreRoundsToFourBytes) {
  Single y = 1.2345678;
  EXPECT_NE(Real(y).valor(), 1.2345678);
  EXPECT_EQ(Real(y).valor(), static_cast<double>(1.2345678F));
  y = Real(y) / 3;
  EXPECT_EQ(y.valor(), static_cast<float>(static_cast<double>(1.2345678F) / 3));
  EXPECT_EQ(enteroCorto(Real(2.5)), 2);
}

TEST(PassingFailuresOver, KeepsTheFormerValue) {
  Single h = 3;
  EXPECT_FALSE(pasandoFallos([&] { h = Real(1) / 0; }));
  EXPECT_EQ(h.valor(), 3);
  Vueltas vueltas(2);
  vueltas.una();
  vueltas.una();
  EXPECT_THROW(vueltas.una(), FalloAritmetico);
}

}  // namespace
}  // namespace calvento
