// The example projects: designs that an engineer would sign.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

#include "corrida.h"

namespace calvento::lote {
namespace {

const std::filesystem::path carpetaEjemplos = std::filesystem::path(RAIZ_PROYECTO) / "ejemplos";

std::vector<std::string> ejemplos(const std::string& extension) {
  std::vector<std::string> todos;
  for (const auto& e : std::filesystem::directory_iterator(carpetaEjemplos))
    if (e.path().extension() == extension) todos.push_back(e.path().string());
  std::sort(todos.begin(), todos.end());
  return todos;
}

struct Diseno {
  explicit Diseno(std::vector<std::string> argumentos) {
    argumentos.insert(argumentos.begin(), "--json");
    const Corrida c = correr(argumentos);
    EXPECT_EQ(c.estado, 0) << c.errores;
    json = c.objetos().at(0);
    EXPECT_TRUE(json["mensajes"].empty()) << json["mensajes"];
  }
  double operator[](const char* nombre) const { return json["estado"][nombre].get<double>(); }
  double rotulo(const char* n) const { return std::stod(json["ventana"]["etiquetas"][n].get<std::string>()); }
  nlohmann::ordered_json json;
};

/// A canal that flows slowly, and a control section that neither throttles it nor stands high above its bed.
void comprobarEntrada(const Diseno& d, double sobreelevacion) {
  EXPECT_LT(d["frArriba"], 0.8);
  EXPECT_GE(sobreelevacion, 0);
  EXPECT_LT(sobreelevacion, 0.1);
}

/// A feasible basin, deep enough and walled above the jump.
void comprobarPoza(const Diseno& d, double b, double z) {
  ASSERT_TRUE(d["tipoTanque"] >= 1 && d["tipoTanque"] <= 6);
  EXPECT_EQ(d.json["ventana"]["Grid1"][static_cast<std::size_t>(d["tipoTanque"])][2], "Factible");
  EXPECT_GT(d["profPoza"], 0.1);
  EXPECT_GT(d["hPoza"], d["y2"] + 0.2);
  // the tail water holds the jump: its level over the basin floor reaches the conjugate depth, or nearly so where the
  // outlet transition gives back velocity head
  EXPECT_GT(d["cotaAbajo"] + d["ynAbajo"] - d["cotaPoza"], 0.98 * d["y2"]);
  // momentum of the jump, in a basin with side slope z: z y³/3 + b y²/2 + Q²/(g A)
  const auto momento = [&](double y) {
    return z * y * y * y / 3 + b * y * y / 2 + d["Q"] * d["Q"] / (9.81 * y * (b + z * y));
  };
  EXPECT_NEAR(momento(d["y1"]) / momento(d["y2"]), 1, 2e-3);
}

TEST(Ejemplos, EachBasinHoldsItsJumpWithAllDischarges) {
  for (const auto& [extension, reporte] : {std::pair{".cvr", "Form13"}, {".cvi", "Form7"}, {".cvv", "Form26"}})
    for (const std::string& archivo : ejemplos(extension)) {
      const std::string veredicto = Diseno({archivo}).json["reportes"][reporte]["Text1"];
      EXPECT_TRUE(veredicto.starts_with("EL DISEÑO ES ACEPTABLE")) << archivo << ": " << veredicto;
    }
}

TEST(Ejemplos, TheManualShowsWhatItsDesignGives) {
  std::ifstream archivo(std::string(RAIZ_PROYECTO) + "/docs/manual.md");
  const std::string salida = correr({(carpetaEjemplos / "09-diseno-del-manual.cvr").string()}).salida;
  int lineas = 0;
  bool dentro = false;
  for (std::string l; std::getline(archivo, l);) {
    dentro = l == "    RESULTADOS" || (dentro && l.starts_with("    "));
    if (!dentro) continue;
    EXPECT_NE(salida.find(l.substr(4) + '\n'), std::string::npos) << l;
    ++lineas;
  }
  EXPECT_EQ(lineas, 12);
}

TEST(Ejemplos, ChutesAreSoundDesigns) {
  std::set<double> tramos, caudales;
  bool trapezoidal = false;
  for (const std::string& archivo : ejemplos(".cvr")) {
    SCOPED_TRACE(archivo);
    const Diseno d({archivo});
    comprobarEntrada(d, d.rotulo("Label27"));
    comprobarPoza(d, d["bPoza"], d["zPoza"]);
    EXPECT_GT(d["frFin"], 1.5);
    // a ramp as they are built, a basin no narrower than the chute
    EXPECT_GE(d["zRampaEntrada"], 1.5);
    EXPECT_LE(d["zRampaEntrada"], 3);
    EXPECT_GE(d["bPoza"], d["bRapida"]);
    tramos.insert(d["numTramos"]);
    caudales.insert(d["Q"]);
    trapezoidal |= d["zPoza"] > 0;
  }
  EXPECT_EQ(tramos.size(), 3U);
  EXPECT_LE(*caudales.begin(), 0.3001);
  EXPECT_GE(*caudales.rbegin(), 12);
  EXPECT_TRUE(trapezoidal);
}

TEST(Ejemplos, InclinedDropsAreSoundDesigns) {
  int lentos = 0, rapidos = 0, trapezoidales = 0;
  for (const std::string& archivo : ejemplos(".cvi")) {
    SCOPED_TRACE(archivo);
    const Diseno d({archivo});
    const bool rapido = d["frArriba"] > 1;
    if (rapido)
      EXPECT_EQ(d["sobreelevacion"], 0);
    else
      comprobarEntrada(d, d["sobreelevacion"]);
    comprobarPoza(d, d["bPozaCaida"], d["zPozaCaida"]);
    EXPECT_GT(d["cotaFin"], d["cotaAbajo"]);
    ++(rapido ? rapidos : lentos);
    trapezoidales += d["zPozaCaida"] > 0;
  }
  EXPECT_TRUE(lentos >= 2 && rapidos >= 2 && trapezoidales >= 1);
}

TEST(Ejemplos, TheSupercriticalDropKeepsItsOutletInItsRegime) {
  const std::string archivo = (carpetaEjemplos / "13-inclinada-supercritica.cvi").string();
  const Diseno abierto({archivo});
  const Diseno super({"--campo", "Form1.mnsuper=1", archivo});
  // it was saved with the outlet that the supercritical regime finds, on the canal's grade line
  EXPECT_NEAR(super["cotaAbajo"], abierto["cotaAbajo"], 0.001);
  const double largo = (super["cotaTrayectoria"] - super["cotaPoza"]) * super["zRampaEntrada"] + super["xTrayectoria"] +
                       super["longPoza"] + (super["cotaAbajo"] - super["cotaPoza"]) * super["zRampaSalida"];
  EXPECT_NEAR((super["cotaFin"] - super["cotaAbajo"]) / largo, super["sArriba"], 1e-4);
  EXPECT_EQ(super.json["ventana"]["Grid1"][static_cast<std::size_t>(super["tipoTanque"])][2], "Factible");
}

TEST(Ejemplos, VerticalDropsAreSoundDesigns) {
  std::set<std::pair<double, double>> casos;
  for (const std::string& archivo : ejemplos(".cvv")) {
    SCOPED_TRACE(archivo);
    const Diseno d({archivo});
    comprobarEntrada(d, d.rotulo("Label48"));
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
    EXPECT_EQ(d["longTransVert"] > 0, d["tipoTransVert"] == 0);
    casos.emplace(d["tipoTanque"], d["tipoTransVert"]);
  }
  EXPECT_EQ(casos.size(), 4U) << "with and without obstacles, contraction and tubes";
}

}  // namespace
}  // namespace calvento::lote
