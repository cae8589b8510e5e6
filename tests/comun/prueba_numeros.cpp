#include <cfloat>
#include <functional>
#include <limits>
#include <map>

#include "apoyo/tablas.h"
#include "comun/numeros.h"

namespace calvento {
namespace {

/// What a statement gives as text, or why it fails.
std::string resultado(const std::function<Real()>& f) {
  try {
    return texto(f());
  } catch (const FalloAritmetico& fallo) {
    return fallo.motivo() == Motivo::divisionPorCero     ? "division por cero"
           : fallo.motivo() == Motivo::desbordamiento    ? "desbordamiento"
           : fallo.motivo() == Motivo::argumentoNoValido ? "argumento no válido"
                                                         : "otro motivo";
  }
}

TEST(Numeros, AreReadAndWrittenAsTheTablesTell) {
  const auto cada = [](const char* seccion, auto f) { porCadaFila("numeros.txt", seccion, f); };
  cada("Val", [](const FilaTabla& f) {
    if (f[1] == "falla")
      EXPECT_THROW(Val(f[0]), FalloAritmetico);
    else
      EXPECT_EQ(Val(f[0]).valor(), std::strtod(f[1].c_str(), nullptr));
  });
  EXPECT_EQ(Val("\t 7 8").valor(), 7);
  EXPECT_TRUE(esNumero(" -3\t"));
  cada("esNumero", [](const FilaTabla& f) { EXPECT_EQ(esNumero(f[0]), f.si(1)); });
  cada("conPuntoDecimal", [](const FilaTabla& f) { EXPECT_EQ(conPuntoDecimal(f[0]), f[1]); });
  const std::string larguisimo(1 << 20, '1');
  EXPECT_EQ(conPuntoDecimal(larguisimo + ",5"), larguisimo + ".5");
  cada("Round", [](const FilaTabla& f) { EXPECT_EQ(Round(Real(f.num(0)), std::stoi(f[1])).valor(), f.num(2)); });
  EXPECT_EQ(enRejilla(Real(0.975)).valor(), 0.05 * 20);  // 19.5 steps: the even 20
  EXPECT_EQ(Round(Single(2.34567), 3).valor(), 2.346F);
  cada("texto", [](const FilaTabla& f) { EXPECT_EQ(texto(Real(f.num(0))), f[1]); });
  cada("texto de 4 bytes", [](const FilaTabla& f) { EXPECT_EQ(texto(Single(f.num(0))), f[1]); });
  cada("formato", [](const FilaTabla& f) { EXPECT_EQ(formato(f.num(0), f[1]), f[2]); });
}

TEST(Real, FailsInTheStatementThatHasNoResult) {
  porCadaFila("numeros.txt", "Real", [](const FilaTabla& f) {
    std::istringstream palabras(f[0]);
    double a = 0, b = 0;
    std::string que;
    palabras >> a >> que >> b;
    const std::map<std::string, std::function<Real()>> cuentas = {{"/", [&] { return Real(a) / b; }},
                                                                  {"*", [&] { return Real(a) * b; }},
                                                                  {"+", [&] { return Real(a) + b; }},
                                                                  {"-", [&] { return Real(a) - b; }},
                                                                  {"^", [&] { return potencia(a, b); }},
                                                                  {"raíz", [&] { return Sqr(a); }},
                                                                  {"exp", [&] { return Exp(a); }},
                                                                  {"single", [&] { return Real(Single(Real(a))); }},
                                                                  {"corto", [&] { return Real(enteroCorto(a)); }},
                                                                  {"fix", [&] { return Fix(Real(a)); }}};
    const std::string da = resultado(cuentas.at(que));
    if (std::isdigit(static_cast<unsigned char>(f[1].back())) != 0)
      EXPECT_NEAR(std::stod(da) / f.num(1), 1, 1e-6) << da;
    else
      EXPECT_EQ(da, f[1]);
  });
}

TEST(Real, TakesEveryFiniteNumberAndNoOther) {
  using Limites = std::numeric_limits<double>;
  for (const double v :
       {0.0, -0.0, 1.0, -1.0, DBL_MAX, -DBL_MAX, DBL_MIN, Limites::denorm_min(), -Limites::denorm_min()})
    EXPECT_EQ((Real(v) * 1).valor(), v);
  for (const double v : {Limites::infinity(), -Limites::infinity(), Limites::quiet_NaN(), -Limites::quiet_NaN()})
    EXPECT_THROW(Real(v) * 1, FalloAritmetico) << v;
}

TEST(Single, EveryStoreRoundsToFourBytes) {
  Single y = 1.2345678;
  EXPECT_NE(Real(y).valor(), 1.2345678);
  EXPECT_EQ(Real(y).valor(), static_cast<double>(1.2345678F));
  y = Real(y) / 3;
  EXPECT_EQ(y.valor(), static_cast<float>(static_cast<double>(1.2345678F) / 3));
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
