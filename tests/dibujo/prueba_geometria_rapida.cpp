#include <gtest/gtest.h>

#include "dibujo/estado_rapida.h"
#include "dibujo/geometria_rapida.h"
#include "dibujo/puntos.h"

namespace calvento {
namespace {

// The expected points and areas are worked apart from the program, from the round numbers of rapidaDeMano.

TEST(GeometriaRapida, WaterBodyOfOneReach) {
  const DesignState e = rapidaDeMano();
  const auto agua = GeometriaRapida(e).agua();
  comparar(agua, {{0, -9, 110.09}, {1, -9, 111.59}, {3, -0.4, 111.2}, {4, 0, 111}, {5, 5, 109.35}}, "canal", 57);
  comparar(agua, {{7, 20, 105.3}, {8, 20.4, 105.1925}, {12, 22, 104.6125}, {17, 24, 103.55}}, "trajectory");
  // the jump: toe, dip under y1, fall to 0.3 y2, rise to y2 at the middle of the basin
  comparar(agua, {{18, 25, 103}, {20, 25.24, 102.9375}, {23, 26.2, 103.5}, {32, 29, 105.25}}, "jump");
  comparar(agua, {{34, 42.875, 105.17}, {36, 37.875, 103.97}, {38, 33, 102.75}, {41, 24, 103.25}}, "bed");
  comparar(agua, {{45, 22.4, 104.13}, {51, 20, 105}, {54, -0.5, 110.2}, {55, -0.88235294, 110.00882353}}, "bed");
  EXPECT_NEAR(area(agua), 52.33554559, 1e-5);
}

TEST(GeometriaRapida, ReachOfAProfileRowIsTakenFromItsNumber) {
  DesignState e = rapidaDeMano(2);
  // few rows, the last beyond the joint: all belong to the first reach, which falls 0.1
  comparar(GeometriaRapida(e).agua(), {{5, 5, 110.1}, {6, 10, 109.45}, {7, 20, 108.3}}, "short profile");

  // rows 100 and 101 at one station: the first on the fall of 0.1, the second on that of 0.4
  e.perfil.assign(101, {5, 0.5, 0, 0, 0});
  comparar(GeometriaRapida(e).agua(), {{4 + 100, 5, 110}, {4 + 101, 5, 111.5}}, "joint row", 101 + 55);

  e = rapidaDeMano(3);
  e.perfil.clear();
  for (int i = 1; i <= 300; ++i)
    e.perfil.push_back({i <= 100 ? i * 0.08 : (i <= 200 ? 4 + i * 0.04 : i * 0.08 - 4), 0.5, 0, 0, 0});
  const auto agua = GeometriaRapida(e).agua();
  comparar(agua, {{4 + 100, 8, 110}, {4 + 101, 8.04, 109.99}, {4 + 200, 12, 109}}, "three reaches", 300 + 56);
  comparar(agua, {{4 + 201, 12.08, 108.965}, {4 + 300, 20, 105.5}}, "three reaches");
  comparar(agua, {{348, 20, 105}, {349, 12, 108.5}, {350, 8, 109.5}, {351, 0, 110}}, "bed of three reaches");
}

TEST(GeometriaRapida, SillMeetsTheCanalBedWithItsSlopeOfTwoToOne) {
  const struct { double sobreelevacion, pendiente; } casos[] = {{0.2, 0.01}, {0.013, 0.0006}, {0.75, 0.05}, {0.3, 0}};
  for (const auto& c : casos) {
    DesignState e = rapidaDeMano();
    e.sobreelevacion = c.sobreelevacion;
    e.sArriba = c.pendiente;
    const Punto u = GeometriaRapida(e).puntoUmbral();
    EXPECT_NEAR(u.y, 110 - u.x * c.pendiente, 1e-6);
    EXPECT_NEAR((-0.1 - 2 * c.sobreelevacion - u.x) / (110 + c.sobreelevacion - u.y), 2, 1e-4) << c.sobreelevacion;
  }
  DesignState e = rapidaDeMano();
  e.sobreelevacion = 0;
  // a step 0.1 wide: the sill collapses, its points stay
  comparar(GeometriaRapida(e).agua(), {{2, -0.1, 111}, {3, 0, 111}, {53, 0, 110}, {54, -0.1, 110}}, "no rise", 57);
}

TEST(GeometriaRapida, ConcreteOfTheBasinWithAndWithoutRamps) {
  DesignState e = rapidaDeMano();
  auto c = GeometriaRapida(e).concreto();
  comparar(c, {{0, 37.875, 103.97}, {10, 22, 104.3125}, {16, 20, 104.75}, {19, 20.535, 104.70283328}}, "all", 36);
  comparar(c, {{29, 24.96458980, 102.6}, {31, 34.91973310, 103.84954517}, {33, 37.725, 103.7215}}, "all");
  EXPECT_NEAR(area(c), 2.77347633, 1e-5);
  e.zRampaSalida = 0;
  c = GeometriaRapida(e).concreto();
  comparar(c, {{0, 36, 103.97}, {1, 33, 104}, {2, 33, 102.75}, {30, 33.15, 102.6}}, "vertical exit", 36);
  comparar(c, {{31, 33.15, 103.8484925}, {32, 35.85, 103.8214925}, {33, 35.85, 103.7215}}, "vertical exit");
  e = rapidaDeMano();
  e.zRampaEntrada = 0;  // the bisector has no slope: that corner keeps the station of the point before it
  c = GeometriaRapida(e).concreto();
  comparar(c, {{3, 24, 102.75}, {4, 24, 103.25}, {28, 24, 103.1}, {29, 24, 102.6}}, "vertical entrance", 36);
}

TEST(GeometriaRapida, LiningOfTheCanals) {
  DesignState e = rapidaDeMano();
  auto c = GeometriaRapida(e).canal();
  comparar(c, {{0, 0, 110}, {1, -0.4, 110.2}, {2, -0.5, 110.2}, {3, -0.88235294, 110.00882353}}, "one", 10);
  comparar(c, {{5, -9, 109.989995}, {6, -0.01282350, 109.90012824}, {7, 20, 104.89692236}, {8, 20, 105}}, "one");
  comparar(GeometriaRapida(rapidaDeMano(2)).canal(), {{7, 10, 108.89950124}, {8, 20, 104.89229670}}, "two", 12);
  const DesignState tres = rapidaDeMano(3);
  c = GeometriaRapida(tres).canal();
  comparar(c, {{7, 8, 109.39980488}, {8, 12, 108.39692236}, {9, 20, 104.89084884}, {11, 12, 108.5}}, "three", 14);
  const auto abajo = GeometriaRapida(tres).canalAbajo();
  comparar(abajo, {{0, 37.875, 103.97}, {1, 42.875, 103.92}, {2, 42.875, 103.819995}}, "downstream", 5);
  e.sTramo1 = e.sArriba;  // no corner under the control section: it repeats the point before it
  comparar(GeometriaRapida(e).canal(), {{5, -9, 109.989995}, {6, -9, 109.989995}}, "even slope", 10);
}

TEST(GeometriaRapida, TopOfLiningMeetsTheRampWhereBothLinesCross) {
  // chute: 110 - 0.25 x; 109 - 0.4 (x - 10); 108.5 - 0.4375 (x - 12). Ramp: 103.25 + (24 - x) / 2. All + 0.8
  const std::initializer_list<Esperado> juntas[] = {
      {{2, 5, 109.55}, {3, 21, 105.55}},
      {{2, 5, 110.3}, {3, 10, 109.8}, {4, 22.5, 104.8}},
      {{2, 5, 110.4875}, {3, 8, 110.3}, {4, 12, 109.3}, {5, 24, 104.05}},
  };
  for (const int tramos : {1, 2, 3}) {
    const auto c = GeometriaRapida(rapidaDeMano(tramos)).corona();
    const std::size_t n = static_cast<std::size_t>(tramos) + 7;
    comparar(c, juntas[tramos - 1], "joints", n);
    comparar(c, {{0, -9, 112.09}, {1, 0, 112}, {n - 3, 33, 105.75}, {n - 2, 37.875, 105.72}}, "top");
  }
}

TEST(GeometriaRapida, EnergyLine) {
  auto l = GeometriaRapida(rapidaDeMano()).energia();
  comparar(l, {{0, -9, 111.66339450}, {1, 0, 111.40387360}, {2, 20, 107.13486239}, {3, 25, 105.93577982}}, "one", 8);
  comparar(l, {{4, 29, 105.30096840}, {5, 33, 105.30096840}, {6, 33, 105.36467890}, {7, 42.875, 105.28467890}}, "one");
  DesignState e = rapidaDeMano(3);
  comparar(GeometriaRapida(e).energia(), {{2, 8, 110.61855250}, {3, 12, 109.81549439}}, "three reaches", 10);
  e.bRapida = 0;  // no area, no velocity: the elevations at the control section and the joints keep the one before
  l = GeometriaRapida(e).energia();
  comparar(l, {{1, 0, 111.66339450}, {3, 12, 111.66339450}, {4, 20, 107.13486239}}, "no width", 10);
}

TEST(GeometriaRapida, PlanHatchAndControlPoints) {
  const DesignState e = rapidaDeMano(3);
  const GeometriaRapida g(e);
  const PlantaPoza planta = g.planta();
  const auto anchos = planta.anchos();
  const auto agua = aguaPlanta(anchos, 120);
  comparar(agua, {{1, -4, 117}, {2, 0, 119}, {3, 20, 119}, {4, 25, 118.5}, {6, 34.875, 118.5}}, "water", 19);
  comparar(agua, {{7, 37.875, 117.25}, {9, 42.875, 122.75}, {12, 33, 121.5}, {18, -9, 117}}, "water");
  const auto muro = muroPlanta(anchos, caraExterior(anchos), 120, 1);
  comparar(muro, {{0, -9, 123}, {8, 42.875, 122.75}, {9, 42.875, 122.9}, {17, -9, 123.15}}, "upper", 19);
  comparar(muroPlanta(anchos, caraExterior(anchos), 120, -1), {{9, 42.875, 117.1}, {17, -9, 116.85}}, "lower");

  // the bed widens by 1 over 5 m of curve and ramp: at 4 m it is 2.8 wide
  EXPECT_NEAR(planta.medioAnchoPT(), 1.4, 1e-9);
  const auto rayas = planta.rayado(120);
  ASSERT_EQ(rayas.size(), 10U);
  const Segmento esperadas[] = {{{24, 120}, {24.5, 120}},
                                {{24, 120 - 1.4 / 3}, {25, 120 - 1.4 / 3}},
                                {{34.875, 119.5}, {33, 119.5}},
                                {{24, 120 + 2.8 / 3}, {24.5, 120 + 2.8 / 3}},
                                {{33.9375, 121}, {34.875, 121}}};
  for (const auto& s : esperadas) EXPECT_EQ(std::count(rayas.begin(), rayas.end(), s), 1) << s.a.x << ' ' << s.a.y;

  const auto control = g.puntosControl();
  comparar(control, {{0, -4, 110.04}, {2, 8, 109.5}, {3, 12, 108.5}, {5, 24, 103.25}}, "control points", 10);
  comparar(control, {{6, 25, 102.75}, {7, 33, 102.75}, {8, 34.875, 104}, {9, 37.875, 103.97}}, "control points");
}

TEST(GeometriaRapida, WithoutTransitionsTheStationsFallTogether) {
  DesignState e = rapidaDeMano();
  e.longTransEntrada = e.longTransSalida = 0;
  const GeometriaRapida g(e);
  comparar(g.agua(), {{0, -5, 110.05}, {34, 39.875, 105.2}, {36, 34.875, 104}, {37, 34.875, 104}}, "water", 57);
  comparar(g.concreto(), {{32, 34.725, 103.85149250}, {34, 34.875, 103.75}}, "concrete");
}

}  // namespace
}  // namespace calvento
