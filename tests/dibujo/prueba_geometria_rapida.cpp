#include <algorithm>
#include <gtest/gtest.h>

#include "dibujo/estado_rapida.h"
#include "dibujo/geometria_rapida.h"
#include "dibujo/puntos.h"

namespace calvento {
namespace {

// The expected points and areas are worked apart from the program, from the round numbers of rapidaDeMano.

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

TEST(GeometriaRapida, WithoutAreaTheEnergyLineKeepsTheElevationBefore) {
  DesignState e = rapidaDeMano(3);
  e.bRapida = 0;
  comparar(GeometriaRapida(e).energia(), {{1, 0, 111.66339450}, {3, 12, 111.66339450}, {4, 20, 107.13486239}}, "energy",
           10);
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
