#include <cmath>
#include <gtest/gtest.h>
#include <iterator>

#include "ejemplos.h"

namespace calvento::lote {
namespace {

class Ejemplo : public testing::TestWithParam<std::string> {};

TEST_P(Ejemplo, IsASoundDesign) {
  const Corrida c = correr({"--json", GetParam()});
  ASSERT_EQ(c.estado, 0) << c.errores;
  const auto d = c.objetos().at(0);
  const auto valor = [&](const char* nombre) { return d["estado"][nombre].get<double>(); };
  EXPECT_TRUE(d["mensajes"].empty()) << d["mensajes"];

  const double tipo = valor("tipoTanque");
  ASSERT_TRUE(tipo >= 1 && tipo <= 6);
  EXPECT_EQ(d["ventana"]["Grid1"][static_cast<std::size_t>(tipo)][2], "Factible");
  // a control section that neither throttles the canal nor stands high above its bed
  const double sobreelevacion = std::stod(d["ventana"]["etiquetas"]["Label27"].get<std::string>());
  EXPECT_GE(sobreelevacion, 0);
  EXPECT_LT(sobreelevacion, 0.1);
  EXPECT_LT(valor("frArriba"), 0.8);
  EXPECT_GT(valor("frFin"), 1.5);
  // a ramp as they are built, a basin no narrower than the chute, deep enough and walled above the jump
  EXPECT_GE(valor("zRampaEntrada"), 1.5);
  EXPECT_LE(valor("zRampaEntrada"), 3);
  EXPECT_GE(valor("bPoza"), valor("bRapida"));
  EXPECT_GT(valor("profPoza"), 0.1);
  EXPECT_GT(valor("hPoza"), valor("y2") + 0.2);
  // the tail water holds the jump: its level over the basin floor reaches the conjugate depth, or nearly so where the
  // outlet transition gives back velocity head
  const double aguaAbajo = valor("cotaAbajo") + valor("ynAbajo") - valor("cotaPoza");
  EXPECT_GT(aguaAbajo, 0.98 * valor("y2"));
  // momentum of the jump, in a basin with side slope z: z y³/3 + b y²/2 + Q²/(g A)
  const auto momento = [&](double y) {
    const double b = valor("bPoza");
    const double z = valor("zPoza");
    return z * y * y * y / 3 + b * y * y / 2 + valor("Q") * valor("Q") / (9.81 * y * (b + z * y));
  };
  EXPECT_NEAR(momento(valor("y1")) / momento(valor("y2")), 1, 2e-3);
}

INSTANTIATE_TEST_SUITE_P(, Ejemplo, testing::ValuesIn(ejemplos(".cvr")), nombreEjemplo);

TEST(Ejemplos, AreWrittenAsTheProgramWrites) {
  for (const auto& [extension, lineas] : {std::pair{".cvr", 37}, {".cvi", 28}, {".cvv", 24}})
    for (const std::string& archivo : ejemplos(extension)) {
      std::ifstream f(archivo, std::ios::binary);
      const std::string s((std::istreambuf_iterator<char>(f)), {});
      EXPECT_EQ(std::count(s.begin(), s.end(), '\n'), lineas) << archivo;
      EXPECT_EQ(std::count(s.begin(), s.end(), '\r'), lineas) << archivo;
      EXPECT_EQ(s.substr(s.size() - 2), "\r\n") << archivo;
    }
}

TEST(Ejemplos, CoverReachesBasinsAndDischarges) {
  std::vector<std::string> argumentos = ejemplos(".cvr");
  ASSERT_GE(argumentos.size(), 6U);
  argumentos.insert(argumentos.begin(), "--json");
  std::map<int, int> tramos;
  double menor = 1e9;
  double mayor = 0;
  bool trapezoidal = false;
  const auto todos = correr(argumentos).objetos();
  for (const auto& d : todos) {
    const auto& e = d["estado"];
    ++tramos[e["numTramos"].get<int>()];
    menor = std::min(menor, e["Q"].get<double>());
    mayor = std::max(mayor, e["Q"].get<double>());
    trapezoidal |= e["zPoza"].get<double>() > 0;
  }
  EXPECT_EQ(tramos.size(), 3U);
  EXPECT_LE(menor, 0.3001);
  EXPECT_GE(mayor, 12);
  EXPECT_TRUE(trapezoidal);
}

}  // namespace
}  // namespace calvento::lote
