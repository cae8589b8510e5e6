#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "corrida.h"
#include "lote/json.h"

namespace calvento::lote {
namespace {

template <class Numero>
Numero leido(const std::string& texto) {
  return sizeof(Numero) == sizeof(float) ? static_cast<Numero>(std::strtof(texto.c_str(), nullptr))
                                         : static_cast<Numero>(std::strtod(texto.c_str(), nullptr));
}

/// Reads back the same, and with one digit less, in the same notation, it does not.
template <class Numero>
void comprobarCorto(Numero x) {
  EscritorJson j;
  j.numero(x);
  const std::string texto = j.salida();
  EXPECT_EQ(leido<Numero>(texto), x) << texto;
  EXPECT_TRUE(nlohmann::json::accept(texto)) << texto;
  const std::size_t punto = texto.find('.');
  if (punto == std::string::npos) return;
  const std::size_t e = texto.find('e');
  const auto decimales = static_cast<int>(std::min(e, texto.size()) - punto) - 1;
  std::array<char, 400> masCorto{};
  std::snprintf(masCorto.data(), masCorto.size(), e == std::string::npos ? "%.*f" : "%.*e", decimales - 1,
                static_cast<double>(x));
  EXPECT_NE(leido<Numero>(masCorto.data()), x) << texto << " but also " << masCorto.data();
}

TEST(Json, NumbersAreTheShortestThatReadBack) {
  for (const float x : {0.0F, 0.1F, 2534.6F, 0.17594208F, 16777216.0F, 1e-45F, -3.4028235e38F, 100000.0F, 1.0F / 3})
    comprobarCorto(x);
  for (const double x : {0.1, 1.0 / 3, 5e-324, 1.7976931348623157e308, 0.24497866312686414, -2e22}) comprobarCorto(x);
  std::mt19937_64 azar(20240611);
  for (int i = 0; i < 20000; ++i) {
    const auto f = std::bit_cast<float>(static_cast<std::uint32_t>(azar()));
    if (std::isfinite(f)) comprobarCorto(f);
    const auto d = std::bit_cast<double>(azar());
    if (std::isfinite(d)) comprobarCorto(d);
  }
}

TEST(Json, TextsAndNestingAreValid) {
  EscritorJson j;
  j.abrirObjeto();
  j.clave("a\"b");
  j.abrirLista();
  j.abrirLista();
  j.cerrarLista();
  j.abrirObjeto();
  j.cerrarObjeto();
  j.numero(std::numeric_limits<double>::quiet_NaN());
  j.texto("l1\nl2\t\\ ñ \xff");
  j.logico(false);
  j.nulo();
  j.numero(-3);
  j.cerrarLista();
  j.clave("c");
  j.texto("");
  j.cerrarObjeto();
  EXPECT_EQ(j.salida().find('\n'), std::string::npos);
  const auto leido = nlohmann::ordered_json::parse(j.salida());
  EXPECT_EQ(leido.dump(), "{\"a\\\"b\":[[],{},null,\"l1\\nl2\\t\\\\ ñ \xEF\xBF\xBD\",false,null,-3],\"c\":\"\"}");
}

std::vector<std::string> claves(const nlohmann::ordered_json& objeto) {
  std::vector<std::string> todas;
  for (const auto& [clave, valor] : objeto.items()) todas.push_back(clave);
  return todas;
}

class ObjetoJson : public testing::Test {
 protected:
  const CarpetaPrueba carpeta;
};

TEST_F(ObjetoJson, HasItsPartsInTheirOrder) {
  const std::string canal = carpeta.escribir("canal.cvr", ProyectoRapida().contenido());
  const Corrida c = correr({"--json", canal});
  ASSERT_EQ(c.estado, 0) << c.errores;
  const auto d = c.objetos().at(0);
  using Lista = std::vector<std::string>;
  EXPECT_EQ(claves(d), (Lista{"archivo", "estructura", "calculado", "mensajes", "estado", "perfil", "perfilCaida",
                              "ventana", "reportes"}));
  EXPECT_EQ(claves(d["ventana"]), (Lista{"titulo", "campos", "etiquetas", "panel1", "menus", "Grid1"}));
  EXPECT_EQ(claves(d["ventana"]["etiquetas"]), (Lista{"Label27", "Label35", "Label41"}));
  EXPECT_EQ(d["archivo"], canal);
  EXPECT_EQ(d["estructura"], "rapida");
  EXPECT_EQ(d["ventana"]["titulo"], "Rápida - canal.cvr");
  EXPECT_EQ(d["estado"]["rutaArchivo"], "canal.cvr");
  EXPECT_EQ(d["mensajes"].dump(), "[]");
  EXPECT_EQ(d["perfilCaida"].dump(), "[]");

  // 27 fields, seven menus, seven rows of four texts, a hundred rows of five numbers
  EXPECT_EQ(d["ventana"]["campos"].size(), 27U);
  EXPECT_EQ(d["ventana"]["campos"]["Text1"], "1820.50");
  EXPECT_EQ(d["ventana"]["menus"].size(), 7U);
  EXPECT_EQ(d["ventana"]["Grid1"].size(), 7U);
  for (const auto& fila : d["ventana"]["Grid1"]) EXPECT_EQ(fila.size(), 4U);
  EXPECT_EQ(d["ventana"]["Grid1"][0][2], "Factibilidad");
  ASSERT_EQ(d["perfil"].size(), 100U);
  for (const auto& fila : d["perfil"]) EXPECT_EQ(fila.size(), 5U);
  // the last section of the profile is the end of the chute: 6 m of fall at 0.2
  EXPECT_NEAR(d["perfil"][99][0], 30, 1e-3);
  EXPECT_NEAR(d["perfil"][99][2], 1814.5, 1e-3);
  EXPECT_FLOAT_EQ(d["perfil"][99][1], d["estado"]["yFin"]);

  for (const char* fuera : {"vistaX1", "vistaY2", "dibX", "dibY2", "pasosEje", "perfil"})
    EXPECT_FALSE(d["estado"].contains(fuera)) << fuera;
  for (const char* dentro : {"anguloCaida", "numTramos", "tipoTubo", "esNuevo", "cadAlturaTexto", "longTubo"})
    EXPECT_TRUE(d["estado"].contains(dentro)) << dentro;
}

TEST_F(ObjetoJson, ValuesAreOfFourBytes) {
  const std::string canal = carpeta.escribir("canal.cvr", ProyectoRapida().contenido());
  const std::string salida = correr({"--json", canal}).salida;
  for (const char* par : {"\"Q\":1.5,", "\"cotaInicio\":1820.5,", "\"nArriba\":0.015,", "\"sArriba\":8e-04,",
                          "\"ahogamiento\":0.1,", "\"tipoTanque\":3,", "\"numTramos\":1,", "\"esNuevo\":false"})
    EXPECT_NE(salida.find(par), std::string::npos) << par;
}

TEST_F(ObjetoJson, TakesFileNamesOfAnyBytes) {
  for (const char* nombre : {"caña brava.cvr", "con \"comillas\".cvr", "roto\xff\xfe.cvr", "dos\nlineas.cvr"}) {
    const Corrida c = correr({"--json", carpeta.escribir(nombre, ProyectoRapida().contenido())});
    EXPECT_EQ(c.estado, 0) << nombre << c.errores;
    EXPECT_EQ(c.objetos().size(), 1U) << nombre;
  }
}

TEST_F(ObjetoJson, AnUnknownKindHasNoWindow) {
  const auto d = correr({"--json", carpeta.escribir("canal.txt", "1")}).objetos().at(0);
  EXPECT_TRUE(d["estructura"].is_null());
  EXPECT_FALSE(d.contains("ventana"));
  EXPECT_FALSE(d.contains("estado"));
}

}  // namespace
}  // namespace calvento::lote
