#include <gtest/gtest.h>

#include "dibujo/bloques.h"
#include "dibujo/estado_rapida.h"

namespace calvento {
namespace {

constexpr double eje = 120;
constexpr double tolerancia = 2e-6;

// The chute of round numbers: basin 3 wide from 25 to 33 on 102.75, ramp 2:1, y1 0.25, y2 2.5.

std::vector<HileraDibujada> dibujados(DesignState e, int tipo, MinimoBloques minimo = {}) {
  e.tipoTanque = tipo;
  const Valores v(e);
  return bloquesDePoza(v, estacionesPoza(v, v.longRapida + v.xTrayectoria), e.bPoza, eje, minimo);
}

void comparar(const std::vector<Punto>& puntos, const std::vector<Punto>& esperados, const char* que) {
  ASSERT_EQ(puntos.size(), esperados.size()) << que;
  for (std::size_t i = 0; i < puntos.size(); ++i) {
    EXPECT_NEAR(puntos[i].x, esperados[i].x, tolerancia) << que << " " << i;
    EXPECT_NEAR(puntos[i].y, esperados[i].y, tolerancia) << que << " " << i;
  }
}

void comparar(const CajaPlanta& c, Punto a, Punto b, const char* que) { comparar({c.a, c.b}, {a, b}, que); }

TEST(Bloques, OfEachBasin) {
  DesignState e = rapidaDeMano();
  EXPECT_TRUE(dibujados(e, 1).empty());
  EXPECT_TRUE(dibujados(e, 6).empty());
  EXPECT_TRUE(dibujados(e, 0).empty());

  // USBR I: h 0.5; 3 / 0.65625 = 4.57: 5 blocks of 3 / 17.5
  const auto i = dibujados(e, 2);
  ASSERT_EQ(i.size(), 1U);
  comparar(i[0].seccion, {{25, 102.75}, {25, 103.25}, {24, 103.25}, {25, 102.75}}, "wedge");
  ASSERT_EQ(i[0].planta.size(), 5U);
  const double w = 3 / 17.5;
  comparar(i[0].planta[0], {24, 118.5 + 1.25 * w}, {25, 118.5 + 2.25 * w}, "first");
  comparar(i[0].planta[4], {24, 118.5 + 15.25 * w}, {25, 118.5 + 16.25 * w}, "last");

  // USBR II: h 0.25, 6 blocks of 0.25; floor blocks (0.168 × 5 + 0.58) 0.25 = 0.355: 5.6, 6 of 0.25, 2 m behind
  e.fr1 = 5;
  const auto ii = dibujados(e, 3);
  ASSERT_EQ(ii.size(), 2U);
  comparar(ii[0].seccion, {{25, 102.75}, {25, 103}, {24.5, 103}, {25, 102.75}}, "wedge II");
  ASSERT_EQ(ii[0].planta.size(), 6U);
  comparar(ii[0].planta[1], {24.5, 119.125}, {25, 119.375}, "second II");
  comparar(ii[1].seccion, {{27, 102.75}, {27, 103.105}, {27.071, 103.105}, {27.426, 102.75}, {27, 102.75}}, "sill II");
  ASSERT_EQ(ii[1].planta.size(), 6U);
  comparar(ii[1].planta[5], {27, 121.125}, {27.426, 121.375}, "last of the sill II");

  // USBR III: teeth 0.5 high at the end of the basin; 3 / 0.75 = 4 of 3 / 7 from wall to wall
  const auto iii = dibujados(e, 4);
  ASSERT_EQ(iii.size(), 2U);
  comparar(iii[1].seccion, {{33, 102.75}, {33, 103.25}, {33.1, 103.25}, {33.6, 102.75}, {33, 102.75}}, "sill III");
  ASSERT_EQ(iii[1].planta.size(), 4U);
  comparar(iii[1].planta[0], {33, 118.5}, {33.6, 118.5 + 3 / 7.0}, "first tooth");
  comparar(iii[1].planta[3], {33, 121.5 - 3 / 7.0}, {33.6, 121.5}, "last tooth");

  // SAF: 3 / 0.375 = 8 of 0.1875, side space 0.09375; floor blocks a third of the basin behind
  const auto saf = dibujados(e, 5);
  ASSERT_EQ(saf.size(), 2U);
  ASSERT_EQ(saf[0].planta.size(), 7U + 2U);
  comparar(saf[0].planta[0], {24.5, 118.5 + 0.28125}, {25, 118.5 + 0.46875}, "first SAF");
  comparar(saf[0].planta[7], {24.5, 118.5}, {25, 118.5 + 0.09375}, "at the lower wall");
  comparar(saf[0].planta[8], {24.5, 121.5 - 0.09375}, {25, 121.5}, "at the upper wall");
  ASSERT_EQ(saf[1].planta.size(), 8U);
  const double x = 25 + 8 / 3.0;
  comparar(saf[1].seccion, {{x, 102.75}, {x, 103}, {x + 0.05, 103}, {x + 0.3, 102.75}, {x, 102.75}}, "floor SAF");
  comparar(saf[1].planta[0], {x, 118.59375}, {x + 0.3, 118.78125}, "first on the floor");
}

TEST(Bloques, TheFloorOfHeightsRaisesThemAndThinsThemOut) {
  const DesignState e = rapidaDeMano();
  const auto alzados = dibujados(e, 4, {true, 0.6});
  ASSERT_EQ(alzados.size(), 2U);
  // 3 / 1.2 = 2.5 gives 2; teeth 3 / 0.9 = 3.33: 3
  EXPECT_EQ(alzados[0].planta.size(), 2U);
  EXPECT_EQ(alzados[1].planta.size(), 3U);
  EXPECT_NEAR(alzados[1].seccion[1].y, 103.35, tolerancia);
  EXPECT_EQ(dibujados(e, 4, {true, 0.2})[0].planta.size(), 6U) << "lower than the blocks: no effect";
}

TEST(Bloques, ARowThatCannotBeComputedIsLeftOutAlone) {
  DesignState e = rapidaDeMano();
  e.y1 = 0;
  const auto iii = dibujados(e, 4);
  ASSERT_EQ(iii.size(), 1U);
  EXPECT_NEAR(iii[0].seccion[0].x, 33, tolerancia) << "the teeth stand";
  e.bPoza = 0;
  EXPECT_TRUE(dibujados(e, 4).empty());
}

TEST(Bloques, ObstaclesOfTheVerticalDropOnlyWhereItHasThem) {
  DesignState e;
  e.tipoTanque = 0;
  e.cotaPoza = 100, e.bPozaCaida = 1.6, e.longTransVert = 0.2, e.ycControl = 0.5;
  e.longTramo1 = 1.25, e.longTramo2 = 0.5;
  const auto hileras = bloquesDeCaida(Valores(e), eje, {});
  ASSERT_EQ(hileras.size(), 1U);
  comparar(hileras[0].seccion, {{1.75, 100}, {1.75, 100.4}, {1.95, 100.4}, {1.95, 100}, {1.75, 100}}, "block");
  ASSERT_EQ(hileras[0].planta.size(), 5U);
  comparar(hileras[0].planta[0], {1.75, 119.1}, {1.95, 119.3}, "first");
  comparar(hileras[0].planta[4], {1.75, 120.7}, {1.95, 120.9}, "last");
  e.tipoTanque = 1;
  EXPECT_TRUE(bloquesDeCaida(Valores(e), eje, {}).empty());
}

TEST(Bloques, ArePaintedLightGreyInSectionAndPlan) {
  Lienzo lienzo(865, 433);
  lienzo.Scale(20, 125, 40, 100);
  lienzo.ForeColor = color::azulClaro;
  pintarBloques(lienzo, dibujados(rapidaDeMano(), 2));
  ASSERT_EQ(lienzo.primitivas().size(), 1U + 5U);
  const auto& cuna = std::get<PrimPoligono>(lienzo.primitivas()[0]);
  EXPECT_EQ(cuna.relleno.color.valor, 0xC0C0C0);
  EXPECT_EQ(cuna.relleno.estilo, EstiloRelleno::solido);
  EXPECT_EQ(cuna.pluma.color.valor, 0xFF0000);
  const auto& caja = std::get<PrimCaja>(lienzo.primitivas()[3]);
  EXPECT_EQ(caja.relleno.color.valor, 0xC0C0C0);
  EXPECT_EQ(caja.pluma.color.valor, 0xC0C0C0);
}

}  // namespace
}  // namespace calvento
