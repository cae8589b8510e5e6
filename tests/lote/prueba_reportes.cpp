#include <gtest/gtest.h>

#include "corrida.h"

namespace calvento::lote {
namespace {

const std::string tresTramos = std::string(RAIZ_PROYECTO) + "/ejemplos/04-tres-tramos.cvr";

TEST(ReportesLote, TablasYResumenConSuVeredicto) {
  const auto r = correr({"--json", tresTramos}).objetos().at(0)["reportes"];
  EXPECT_EQ(r["Form11"].size(), 28U);
  EXPECT_EQ(r["Form11"][0][3], "ELEVACION ENERGIA");
  EXPECT_EQ(r["Form11"][27][6], "Canal Aguas Abajo");
  EXPECT_EQ(r["Form6"].size(), 24U);
  EXPECT_EQ(r["Form8"].size(), 50U);
  EXPECT_EQ(r["Form8"][0][0], "Nº");
  EXPECT_EQ(r["Form13"]["Grid1"].size(), 13U);
  EXPECT_EQ(r["Form13"]["Text1"].get<std::string>().rfind("EL DISEÑO ES ACEPTABLE", 0), 0U);

  const std::string s = correr({tresTramos}).salida;
  for (const char* parte :
       {"\nVERIFICACIONES\n", "EL DISEÑO ES ACEPTABLE", "Q=6(M³/S) estable", "Q=1.2(M³/S) inestable desde 12+4"})
    EXPECT_NE(s.find(parte), std::string::npos) << parte;
  const std::string sinAhogamiento = correr({"--campo", "Form10.Text26=-10", tresTramos}).salida;
  EXPECT_NE(sinAhogamiento.find("resalto barrido con Q = 6.000"), std::string::npos);
}

TEST(ReportesLote, ElQueFallaDicePorQueYLosDemasSiguen) {
  // a jet of more than 48 m, longer than the table of its coordinates
  const CarpetaPrueba carpeta;
  ProyectoRapida p;
  for (const auto& [linea, texto] : {std::pair{"Text5", "400"},
                                     {"Text10", "6"},
                                     {"Text12", "0.010"},
                                     {"Text6", "30"},
                                     {"Text16", "30"},
                                     {"Text23", "12"},
                                     {"Text13", "0.05"},
                                     {"Text21", "1.5"},
                                     {"Text1", "1950"},
                                     {"Text2", "1800"},
                                     {"Text4", "1725"}})
    p.poner(linea, texto);
  const auto d = correr({"--json", carpeta.escribir("a.cvr", p.contenido())}).objetos().at(0);
  ASSERT_TRUE(d["calculado"]) << d["mensajes"];
  EXPECT_FALSE(d["reportes"]["Form8"]["fallo"].get<std::string>().empty());
  EXPECT_EQ(d["reportes"]["Form11"].size(), 28U);
  EXPECT_EQ(d["reportes"]["Form13"]["Grid1"].size(), 13U);
  // a report's failure is no message of the calculation
  for (const auto& m : d["mensajes"]) EXPECT_NE(m["tipo"], "fallo");
}

}  // namespace
}  // namespace calvento::lote
