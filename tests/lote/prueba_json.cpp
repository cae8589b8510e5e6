#include <bit>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "corrida.h"
#include "lote/json.h"

namespace calvento::lote {
namespace {

TEST(Json, NumbersReadBackInTheirFewestDigits) {
  const auto escrito = [](auto x) {
    EscritorJson j;
    j.numero(x);
    return j.salida();
  };
  const std::pair<float, const char*> cortos[] = {
      {0.0F, "0"}, {0.1F, "0.1"}, {2534.6F, "2534.6"}, {0.17594208F, "0.17594208"}, {16777216.0F, "16777216"}};
  for (const auto& [x, texto] : cortos) EXPECT_EQ(escrito(x), texto);
  std::mt19937_64 azar(20240611);
  for (int i = 0; i < 20000; ++i) {
    if (const auto f = std::bit_cast<float>(static_cast<std::uint32_t>(azar())); std::isfinite(f)) {
      ASSERT_TRUE(nlohmann::json::accept(escrito(f))) << escrito(f);
      EXPECT_EQ(std::strtof(escrito(f).c_str(), nullptr), f);
      EXPECT_LE(escrito(f).size(), 15U) << "-1.2345678e-38 and a digit";
    }
    if (const auto d = std::bit_cast<double>(azar()); std::isfinite(d)) {
      ASSERT_TRUE(nlohmann::json::accept(escrito(d))) << escrito(d);
      EXPECT_EQ(std::strtod(escrito(d).c_str(), nullptr), d);
    }
  }
}

TEST(Json, AnyTextAndNoNumberAreValid) {
  EscritorJson j;
  j.abrirObjeto();
  j.clave("a\"b");
  j.abrirLista();
  j.numero(std::numeric_limits<double>::quiet_NaN());
  j.texto("l1\nl2\t\\ ñ \xff");
  j.cerrarLista();
  j.cerrarObjeto();
  EXPECT_EQ(j.salida().find('\n'), std::string::npos);
  const auto leido = nlohmann::ordered_json::parse(j.salida());
  EXPECT_EQ(leido.dump(), "{\"a\\\"b\":[null,\"l1\\nl2\\t\\\\ ñ \xEF\xBF\xBD\"]}");
}

std::string claves(const nlohmann::ordered_json& objeto) {
  std::string todas;
  for (const auto& [clave, valor] : objeto.items()) todas.append(todas.empty() ? "" : " ").append(clave);
  return todas;
}

TEST(ObjetoJson, HasItsPartsInTheirOrderAndTellsTheDesign) {
  const CarpetaPrueba carpeta;
  const std::string canal = carpeta.escribir("canal.cvr", ProyectoRapida().contenido());
  const Corrida c = correr({"--json", canal});
  ASSERT_EQ(c.estado, 0) << c.errores;
  const auto d = c.objetos().at(0);
  EXPECT_EQ(claves(d),
            "version archivo estructura calculado mensajes estado perfil perfilCaida ventana reportes comprobaciones");
  EXPECT_EQ(claves(d["ventana"]), "titulo campos etiquetas panel1 menus Grid1");
  EXPECT_EQ(claves(d["ventana"]["etiquetas"]), "Label27 Label35 Label41");
  EXPECT_EQ(d["archivo"], canal);
  EXPECT_EQ(d["estructura"], "rapida");
  EXPECT_EQ(d["ventana"]["titulo"], "Rápida - canal.cvr");
  EXPECT_EQ(d["estado"]["rutaArchivo"], "canal.cvr");
  EXPECT_EQ(d["mensajes"].dump() + d["perfilCaida"].dump(), "[][]");

  EXPECT_EQ(d["ventana"]["campos"].size(), 27U);
  EXPECT_EQ(d["ventana"]["campos"]["Text1"], "1820.50");
  EXPECT_EQ(d["ventana"]["menus"].size(), 7U);
  EXPECT_EQ(d["ventana"]["Grid1"].size(), 7U);
  EXPECT_EQ(d["ventana"]["Grid1"][0].size(), 4U);
  EXPECT_EQ(d["ventana"]["Grid1"][0][2], "Factibilidad");
  // the last section of the profile is the end of the chute: 6 m of fall at 0.2
  ASSERT_EQ(d["perfil"].size(), 100U);
  EXPECT_EQ(d["perfil"][99].size(), 5U);
  EXPECT_NEAR(d["perfil"][99][0], 30, 1e-3);
  EXPECT_NEAR(d["perfil"][99][2], 1814.5, 1e-3);
  EXPECT_FLOAT_EQ(d["perfil"][99][1], d["estado"]["yFin"]);

  for (const char* fuera : {"vistaX1", "dibX", "pasosEje", "perfil"})
    EXPECT_FALSE(d["estado"].contains(fuera)) << fuera;
  for (const char* dentro : {"anguloCaida", "tipoTubo", "cadAlturaTexto", "longTubo"})
    EXPECT_TRUE(d["estado"].contains(dentro)) << dentro;
  // values of four bytes, in their own digits
  for (const char* par : {"\"Q\":1.5,", "\"cotaInicio\":1820.5,", "\"sArriba\":8e-04,", "\"ahogamiento\":0.1,",
                          "\"tipoTanque\":3,", "\"numTramos\":1,", "\"esNuevo\":false"})
    EXPECT_NE(c.salida.find(par), std::string::npos) << par;
}

TEST(ObjetoJson, TakesFileNamesOfAnyBytes) {
  const CarpetaPrueba carpeta;
  for (const char* nombre : {"caña brava.cvr", "con \"comillas\".cvr", "roto\xff\xfe.cvr", "dos\nlineas.cvr"}) {
    const Corrida c = correr({"--json", carpeta.escribir(nombre, ProyectoRapida().contenido())});
    EXPECT_EQ(c.estado, 0) << nombre << c.errores;
    EXPECT_EQ(c.objetos().size(), 1U) << nombre;
  }
}

}  // namespace
}  // namespace calvento::lote
