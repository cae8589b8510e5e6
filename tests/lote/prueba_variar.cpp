// Many designs of one project, side by side, as lines of JSON and of CSV.
#include <gtest/gtest.h>

#include "lote/corrida.h"

namespace calvento::lote {
namespace {

const std::string ejemplos = RAIZ_PROYECTO "/ejemplos/";
const std::string rapida = ejemplos + "04-tres-tramos.cvr", caida = ejemplos + "11-inclinada-rectangular.cvi";

using Orden = std::vector<std::string>;

TEST(Variar, EachCombinationIsTheProjectWithThoseValues) {
  const Corrida juntos = correr({"--json", "--variar", "Q=9:12:1.5", "--variar", "tipoTanque=3:4:1", rapida});
  std::string solos;
  for (const char* Q : {"Q=9", "Q=10.5", "Q=12"})
    for (const char* tipo : {"tipoTanque=3", "tipoTanque=4"})
      solos += correr({"--json", "--campo", Q, "--campo", tipo, rapida}).salida;
  EXPECT_EQ(juntos.salida, solos);
  // and with the window's own names, but for what the object says was put
  auto objeto = juntos.objetos().at(3),
       mismo = correr({"--json", "--campo", "Form10.Text5=10.5", "--campo", "Form10.Grid1=4", rapida}).objetos().at(0);
  EXPECT_EQ(objeto["puestos"].dump(), R"([{"nombre":"Q","texto":"10.5"},{"nombre":"tipoTanque","texto":"4"}])");
  objeto.erase("puestos");
  mismo.erase("puestos");
  EXPECT_EQ(objeto, mismo);
}

TEST(Variar, ThreadsChangeNoByte) {
  for (const Orden& forma : {Orden{"--json"}, Orden{"--csv"}, Orden{}}) {
    Orden orden = forma;
    for (const char* a : {"--variar", "Q=0.5:8:1.5", "--variar", "ahogamiento=5:15:10"}) orden.emplace_back(a);
    for (const std::string& a : {rapida, std::string("no-esta.cvr"), caida, std::string("x.txt")}) orden.push_back(a);
    const Corrida uno = correr(orden);
    EXPECT_EQ(uno.estado, 2);
    EXPECT_NE(uno.errores.find("(Q="), std::string::npos);
    for (const char* n : {"2", "5"}) {
      orden.insert(orden.begin(), {"--hilos", n});
      const Corrida varios = correr(orden);
      EXPECT_EQ(varios.salida, uno.salida);
      EXPECT_EQ(varios.errores, uno.errores);
      EXPECT_EQ(varios.estado, uno.estado);
      orden.erase(orden.begin(), orden.begin() + 2);
    }
  }
}

TEST(Variar, TheTableHoldsWhatTheObjectsHold) {
  const Orden varia = {"--variar", "Q=0.8:1.6:0.8", "--campo", "Form2.Text9=20", rapida, caida};
  const auto con = [&](const char* forma) {
    Orden orden = varia;
    orden.insert(orden.begin(), forma);
    return correr(orden);
  };
  const auto objetos = con("--json").objetos();
  std::vector<std::vector<std::string>> tabla;
  std::istringstream lineas(con("--csv").salida);
  for (std::string l; std::getline(lineas, l);) {
    tabla.emplace_back(1);
    bool citado = false;
    for (const char c : l) {
      if (c == '"')
        citado = !citado;
      else if (c == ',' && !citado)
        tabla.back().emplace_back();
      else
        tabla.back().back() += c;
    }
  }
  ASSERT_EQ(tabla.size(), objetos.size() + 1);
  const auto celda = [&](std::size_t fila, const std::string& titulo) {
    const auto it = std::find(tabla[0].begin(), tabla[0].end(), titulo);
    return it == tabla[0].end() ? "no hay " + titulo : tabla[fila].at(static_cast<std::size_t>(it - tabla[0].begin()));
  };
  for (std::size_t i = 0; i < objetos.size(); ++i) {
    const auto& o = objetos[i];
    ASSERT_EQ(tabla[i + 1].size(), tabla[0].size());
    EXPECT_EQ(celda(i + 1, "archivo"), o["archivo"].get<std::string>());
    EXPECT_EQ(celda(i + 1, "Q (m³/s)"), i % 2 == 0 ? "0.8" : "1.6");
    EXPECT_EQ(celda(i + 1, "Form2.Text9 (grados)"), "20");
    EXPECT_EQ(celda(i + 1, "calculado"), o["calculado"].get<bool>() ? "sí" : "no");
    for (const auto& [titulo, campo] : {std::pair{"y1 (m)", "y1"}, {"longPoza (m)", "longPoza"}, {"fr1", "fr1"}})
      EXPECT_FLOAT_EQ(std::stof("0" + celda(i + 1, titulo)),
                      o["calculado"] == true ? o["estado"][campo].get<float>() : 0);
    std::string malas;
    for (const auto& c : o["comprobaciones"])
      if (c["estado"] == "no cumple") malas += (malas.empty() ? "" : "; ") + c["nombre"].get<std::string>();
    EXPECT_EQ(celda(i + 1, "noCumplidas"), malas);
  }
  EXPECT_EQ(celda(1, "longControl (m)"), "");  // a chute has none
}

}  // namespace
}  // namespace calvento::lote
