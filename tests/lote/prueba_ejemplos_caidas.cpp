// The drops among the examples: designs that an engineer would sign.
#include <cmath>
#include <gtest/gtest.h>

#include "ejemplos.h"

namespace calvento::lote {
namespace {

struct Diseno {
  explicit Diseno(std::vector<std::string> argumentos) {
    argumentos.insert(argumentos.begin(), "--json");
    const Corrida c = correr(argumentos);
    EXPECT_EQ(c.estado, 0) << c.errores;
    json = c.objetos().at(0);
    EXPECT_TRUE(json["mensajes"].empty()) << json["mensajes"];
  }
  double operator[](const char* nombre) const { return json["estado"][nombre].get<double>(); }
  std::string rotulo(const char* nombre) const { return json["ventana"]["etiquetas"][nombre].get<std::string>(); }
  nlohmann::ordered_json json;
};

class EjemploInclinada : public testing::TestWithParam<std::string> {};

TEST_P(EjemploInclinada, IsASoundDesign) {
  const Diseno d({GetParam()});
  ASSERT_TRUE(d["tipoTanque"] >= 1 && d["tipoTanque"] <= 6);
  EXPECT_EQ(d.json["ventana"]["Grid1"][static_cast<std::size_t>(d["tipoTanque"])][2], "Factible");
  if (d["frArriba"] < 1) {
    EXPECT_GE(d["sobreelevacion"], 0);
    EXPECT_LT(d["sobreelevacion"], 0.1);
    EXPECT_LT(d["frArriba"], 0.8);
  } else {
    EXPECT_EQ(d["sobreelevacion"], 0);
  }
  EXPECT_GT(d["cotaFin"], d["cotaAbajo"]);
  EXPECT_GT(d["profPoza"], 0.1);
  EXPECT_GT(d["hPoza"], d["y2"] + 0.2);
  // the tail water reaches the conjugate depth over the basin floor
  EXPECT_GT(d["cotaAbajo"] + d["ynAbajo"] - d["cotaPoza"], 0.98 * d["y2"]);
  // momentum of the jump, in a basin with side slope z: z y³/3 + b y²/2 + Q²/(g A)
  const auto momento = [&](double y) {
    const double b = d["bPozaCaida"];
    const double z = d["zPozaCaida"];
    return z * y * y * y / 3 + b * y * y / 2 + d["Q"] * d["Q"] / (9.81 * y * (b + z * y));
  };
  EXPECT_NEAR(momento(d["y1"]) / momento(d["y2"]), 1, 2e-3);
}

INSTANTIATE_TEST_SUITE_P(, EjemploInclinada, testing::ValuesIn(ejemplos(".cvi")), nombreEjemplo);

TEST(EjemplosInclinada, CoverRegimesAndBasins) {
  bool trapezoidal = false;
  int lentos = 0;
  int rapidos = 0;
  for (const std::string& archivo : ejemplos(".cvi")) {
    const Diseno d({archivo});
    trapezoidal |= d["zPozaCaida"] > 0;
    ++(d["frArriba"] > 1 ? rapidos : lentos);
  }
  EXPECT_TRUE(trapezoidal);
  EXPECT_GE(lentos, 2);
  EXPECT_GE(rapidos, 2);
}

TEST(EjemplosInclinada, SupercriticalOneKeepsItsOutletInItsRegime) {
  const std::string archivo = std::string(RAIZ_PROYECTO) + "/ejemplos/13-inclinada-supercritica.cvi";
  const Diseno abierto({archivo});
  const Diseno super({"--campo", "Form1.mnsuper=1", archivo});
  // it was saved with the outlet that the supercritical regime finds, on the canal's grade line
  EXPECT_NEAR(super["cotaAbajo"], abierto["cotaAbajo"], 0.001);
  const double largo = (super["cotaTrayectoria"] - super["cotaPoza"]) * super["zRampaEntrada"] + super["xTrayectoria"] +
                       super["longPoza"] + (super["cotaAbajo"] - super["cotaPoza"]) * super["zRampaSalida"];
  EXPECT_NEAR((super["cotaFin"] - super["cotaAbajo"]) / largo, super["sArriba"], 1e-4);
  EXPECT_EQ(super.json["ventana"]["Grid1"][static_cast<std::size_t>(super["tipoTanque"])][2], "Factible");
}

class EjemploVertical : public testing::TestWithParam<std::string> {};

TEST_P(EjemploVertical, IsASoundDesign) {
  const Diseno d({GetParam()});
  EXPECT_LT(d["frArriba"], 0.8);
  const double sobreelevacion = std::stod(d.rotulo("Label48"));
  EXPECT_GE(sobreelevacion, 0);
  EXPECT_LT(sobreelevacion, 0.1);
  // the width that a crest weir of the canal's energy asks for, Q = 1.48 B H^1.5, give or take a tenth
  const double H = d["ynArriba"] + d["vArriba"] * d["vArriba"] / 19.62;
  EXPECT_NEAR(d["bPozaCaida"], d["Q"] / (1.48 * std::pow(H, 1.5)), 0.1 * d["bPozaCaida"]);
  // the basin's floor lies as deep as the tail water needs to hold the jump, to the nearest 0.05 m
  const double area = (d["zAbajo"] * d["ynAbajo"] + d["bAbajo"]) * d["ynAbajo"];
  const double abajo = d["ynAbajo"] + std::pow(d["Q"] / area, 2) / 19.62;
  EXPECT_NEAR(d["profPoza"], d["y2"] + d["v2"] * d["v2"] / 19.62 - abajo, 0.0251);
  EXPECT_GT(d["profPoza"], 0.1);
  EXPECT_LT(d["profPoza"], 0.5 * (d["cotaFin"] - d["cotaAbajo"]));
  // the nappe's foot stays below the crest
  EXPECT_LT(d["yVert94"], d["cotaFin"] - d["cotaPoza"]);
}

INSTANTIATE_TEST_SUITE_P(, EjemploVertical, testing::ValuesIn(ejemplos(".cvv")), nombreEjemplo);

TEST(EjemplosVertical, CoverObstaclesAndAeration) {
  std::set<std::pair<int, int>> casos;
  for (const std::string& archivo : ejemplos(".cvv")) {
    const Diseno d({archivo});
    casos.emplace(static_cast<int>(d["tipoTanque"]), static_cast<int>(d["tipoTransVert"]));
    EXPECT_EQ(d["longTransVert"] > 0, d["tipoTransVert"] == 0) << archivo;
  }
  EXPECT_EQ(casos.size(), 4U);
}

}  // namespace
}  // namespace calvento::lote
