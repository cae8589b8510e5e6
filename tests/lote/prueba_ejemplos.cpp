// The example projects: designs that an engineer would sign. What each must fulfil are its checks.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

#include "corrida.h"

namespace calvento::lote {
namespace {

const std::filesystem::path carpetaEjemplos = std::filesystem::path(RAIZ_PROYECTO) / "ejemplos";

TEST(Ejemplos, CalculateWithoutAWordAndEachBasinHoldsItsJumpWithAllDischarges) {
  const std::map<std::string, std::string> reportes = {{".cvr", "Form13"}, {".cvi", "Form7"}, {".cvv", "Form26"}};
  for (const auto& e : std::filesystem::directory_iterator(carpetaEjemplos)) {
    if (!reportes.contains(e.path().extension().string())) continue;
    const auto d = correr({"--json", e.path().string()}).objetos().at(0);
    EXPECT_TRUE(d["mensajes"].empty()) << e.path() << d["mensajes"];
    const std::string veredicto = d["reportes"][reportes.at(e.path().extension().string())]["Text1"];
    EXPECT_TRUE(veredicto.starts_with("EL DISEÑO ES ACEPTABLE")) << e.path() << ": " << veredicto;
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

}  // namespace
}  // namespace calvento::lote
