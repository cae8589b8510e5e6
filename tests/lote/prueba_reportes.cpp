#include <gtest/gtest.h>

#include "corrida.h"

namespace calvento::lote {
namespace {

const std::string tresTramos = std::string(RAIZ_PROYECTO) + "/ejemplos/04-tres-tramos.cvr";

TEST(ReportesLote, TablasConTitulosYVeredicto) {
  const auto r = correr({"--json", tresTramos}).objetos().at(0)["reportes"];
  EXPECT_EQ(r["Form11"].size(), 28U);
  EXPECT_EQ(r["Form11"][0][3], "ELEVACION ENERGIA");
  EXPECT_EQ(r["Form11"][27][6], "Canal Aguas Abajo");
  EXPECT_EQ(r["Form6"].size(), 24U);
  EXPECT_EQ(r["Form8"].size(), 50U);
  EXPECT_EQ(r["Form8"][0][0], "Nº");
  EXPECT_EQ(r["Form13"]["Grid1"].size(), 13U);
  EXPECT_EQ(r["Form13"]["Text1"].get<std::string>().rfind("EL DISEÑO ES ACEPTABLE", 0), 0U);
}

TEST(ReportesLote, SinMenusAbiertosNoHayNinguno) {
  const CarpetaPrueba carpeta;
  const auto d =
      correr({"--json", carpeta.escribir("a.cvr", ProyectoRapida().poner("Text5", "0").contenido())}).objetos().at(0);
  EXPECT_FALSE(d["calculado"]);
  EXPECT_FALSE(d.contains("reportes"));
}

TEST(ReportesLote, ElQueFallaDicePorQueYLosDemasSiguen) {
  // a jet of more than 48 m, longer than the table of its coordinates
  const CarpetaPrueba carpeta;
  const std::string a = carpeta.escribir("a.cvr", ProyectoRapida()
                                                      .poner("Text5", "400")
                                                      .poner("Text10", "6")
                                                      .poner("Text12", "0.010")
                                                      .poner("Text6", "30")
                                                      .poner("Text16", "30")
                                                      .poner("Text23", "12")
                                                      .poner("Text13", "0.05")
                                                      .poner("Text21", "1.5")
                                                      .poner("Text1", "1950")
                                                      .poner("Text2", "1800")
                                                      .poner("Text4", "1725")
                                                      .contenido());
  const auto d = correr({"--json", a}).objetos().at(0);
  ASSERT_TRUE(d["calculado"]) << d["mensajes"];
  ASSERT_GE(d["estado"]["xTrayectoria"].get<double>(), 48);
  EXPECT_FALSE(d["reportes"]["Form8"]["fallo"].get<std::string>().empty());
  EXPECT_EQ(d["reportes"]["Form11"].size(), 28U);
  EXPECT_EQ(d["reportes"]["Form13"]["Grid1"].size(), 13U);
  // a report's failure is no message of the calculation
  for (const auto& m : d["mensajes"]) EXPECT_NE(m["tipo"], "fallo");
}

TEST(ReportesLote, ElResumenDiceElVeredicto) {
  const std::string s = correr({tresTramos}).salida;
  EXPECT_NE(s.find("\nVERIFICACIONES\n"), std::string::npos);
  EXPECT_NE(s.find("EL DISEÑO ES ACEPTABLE"), std::string::npos);
  EXPECT_NE(s.find("Q=6(M³/S) estable"), std::string::npos);
  EXPECT_NE(s.find("Q=1.2(M³/S) inestable desde 12+4"), std::string::npos);
  const std::string sinAhogamiento = correr({"--campo", "Form10.Text26=-10", tresTramos}).salida;
  EXPECT_NE(sinAhogamiento.find("resalto barrido con Q = 6.000"), std::string::npos);
}

}  // namespace
}  // namespace calvento::lote
