#include <gtest/gtest.h>

#include "dibujo/bloques.h"
#include "dibujo/estado_rapida.h"
#include "dibujo/puntos.h"

namespace calvento {
namespace {

constexpr double eje = 120;

// The chute of round numbers: basin 3 wide from 25 to 33 on 102.75, ramp 2:1, y1 0.25, y2 2.5.

std::vector<HileraDibujada> dibujados(DesignState e, int tipo, MinimoBloques minimo = {}) {
  e.tipoTanque = tipo;
  const Valores v(e);
  return bloquesDePoza(v, estacionesPoza(v, v.longRapida + v.xTrayectoria), e.bPoza, eje, minimo);
}

TEST(Bloques, OfEachBasin) {
  DesignState e = rapidaDeMano();
  for (const int sinBloques : {0, 1, 6}) EXPECT_TRUE(dibujados(e, sinBloques).empty()) << sinBloques;
  e.fr1 = 5;
  const double s = 25 + 8 / 3.0;
  const struct {
    const char* que;
    int tipo;
    std::size_t hilera, cuantos, caja;
    Punto a, b;                              // of one block of the plan
    std::initializer_list<Esperado> perfil;  // of the row
  } casos[] = {
      // h 0.5; 3 / 0.65625 = 4.57: 5 blocks of 3 / 17.5
      {"USBR I", 2, 0, 5, 0, {24, 118.5 + 3.75 / 17.5}, {25, 118.5 + 6.75 / 17.5}, {{1, 25, 103.25}, {2, 24, 103.25}}},
      {"USBR I",
       2,
       0,
       5,
       4,
       {24, 118.5 + 45.75 / 17.5},
       {25, 118.5 + 48.75 / 17.5},
       {{0, 25, 102.75}, {3, 25, 102.75}}},
      // 3 / 0.375 = 8 of 0.1875, side space 0.09375, filled at both walls; on the floor a third of the basin behind
      {"SAF", 5, 0, 9, 0, {24.5, 118.78125}, {25, 118.96875}, {{1, 25, 103}, {2, 24.5, 103}}},
      {"SAF", 5, 0, 9, 7, {24.5, 118.5}, {25, 118.59375}, {}},
      {"SAF", 5, 0, 9, 8, {24.5, 121.40625}, {25, 121.5}, {}},
      {"SAF",
       5,
       1,
       8,
       0,
       {s, 118.59375},
       {s + 0.3, 118.78125},
       {{1, s, 103}, {2, s + 0.05, 103}, {3, s + 0.3, 102.75}}},
  };
  for (const auto& c : casos) {
    const auto hileras = dibujados(e, c.tipo);
    ASSERT_EQ(hileras.size(), c.tipo == 2 ? 1U : 2U) << c.que;
    const HileraDibujada& h = hileras[c.hilera];
    ASSERT_EQ(h.planta.size(), c.cuantos) << c.que << c.hilera;
    EXPECT_TRUE(cerca(h.planta[c.caja].a, c.a) && cerca(h.planta[c.caja].b, c.b)) << c.que << c.hilera << c.caja;
    comparar(h.seccion, c.perfil, c.que, c.hilera == 0 ? 4 : 5);
  }
}

TEST(Bloques, TheFloorOfHeightsRaisesThemAndThinsThemOut) {
  const auto alzados = dibujados(rapidaDeMano(), 4, {true, 0.6});
  ASSERT_EQ(alzados.size(), 2U);
  // 3 / 1.2 = 2.5 gives 2; teeth 3 / 0.9 = 3.33: 3
  EXPECT_EQ(alzados[0].planta.size(), 2U);
  EXPECT_EQ(alzados[1].planta.size(), 3U);
  EXPECT_NEAR(alzados[1].seccion[1].y, 103.35, toleranciaPuntos);
  EXPECT_EQ(dibujados(rapidaDeMano(), 4, {true, 0.2})[0].planta.size(), 6U) << "lower than the blocks: no effect";
}

TEST(Bloques, ARowThatCannotBeComputedIsLeftOutAlone) {
  DesignState e = rapidaDeMano();
  e.y1 = 0;
  const auto iii = dibujados(e, 4);
  ASSERT_EQ(iii.size(), 1U);
  EXPECT_NEAR(iii[0].seccion[0].x, 33, toleranciaPuntos) << "the teeth stand";
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
  comparar(hileras[0].seccion, {{0, 1.75, 100}, {1, 1.75, 100.4}, {2, 1.95, 100.4}, {3, 1.95, 100}}, "block", 5);
  ASSERT_EQ(hileras[0].planta.size(), 5U);
  EXPECT_TRUE(cerca(hileras[0].planta[0].a, {1.75, 119.1}) && cerca(hileras[0].planta[0].b, {1.95, 119.3}));
  EXPECT_TRUE(cerca(hileras[0].planta[4].a, {1.75, 120.7}) && cerca(hileras[0].planta[4].b, {1.95, 120.9}));
  e.tipoTanque = 1;
  EXPECT_TRUE(bloquesDeCaida(Valores(e), eje, {}).empty());
}

}  // namespace
}  // namespace calvento
