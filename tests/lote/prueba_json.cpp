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

TEST(ObjetoJson, TakesFileNamesOfAnyBytes) {
  const CarpetaPrueba carpeta;
#ifdef _WIN32
  const auto nombres = {"caña brava.cvr"};
#else
  const auto nombres = {"caña brava.cvr", "con \"comillas\".cvr", "roto\xff\xfe.cvr", "dos\nlineas.cvr"};
#endif
  for (const char* nombre : nombres) {
    const Corrida c = correr({"--json", carpeta.escribir(nombre, ProyectoRapida().contenido())});
    EXPECT_EQ(c.estado, 0) << nombre << c.errores;
    EXPECT_EQ(c.objetos().size(), 1U) << nombre;
  }
}

}  // namespace
}  // namespace calvento::lote
