#include <cmath>
#include <gtest/gtest.h>

#include "dibujo/estado_caidas.h"
#include "dibujo/geometria_inclinada.h"
#include "dibujo/geometria_vertical.h"
#include "dibujo/puntos.h"

namespace calvento {
namespace {

// The expected points and areas are worked apart from the program, from inclinadaDeMano and verticalDeMano.

constexpr double eje = 120;

TEST(GeometriaInclinada, WaterBody) {
  const DesignState e = inclinadaDeMano();
  const auto agua = GeometriaInclinada(e).agua();
  comparar(agua, {{1, -10, 111.05}, {2, -7.5, 111.025}, {3, -2, 110.895}, {4, 0, 110.8}}, "canal", 52);
  comparar(agua, {{9, 0.75, 110.68484786}, {14, 1.5, 110.3}, {15, 6.5, 107.2}, {29, 9.5, 109}}, "curve and jump");
  comparar(agua, {{30, 14, 109.1}, {31, 22, 109.02}, {33, 17, 107.97}, {37, 1.5, 109.5}, {38, 1.5, 109.5}}, "basin");
  comparar(agua, {{47, 0.15, 109.99549590}, {49, -2, 110.02}, {50, -2.49019608, 109.77490196}}, "bed");
  EXPECT_NEAR(area(agua), 35.01454549, 1e-5);
}

TEST(GeometriaInclinada, ConcreteAndLinings) {
  const DesignState e = inclinadaDeMano();
  const GeometriaInclinada g(e);
  const auto concreto = g.concreto();
  comparar(concreto, {{0, 17, 107.97}, {5, 1.5, 109.5}, {15, 0, 110}, {16, -2, 110.02}}, "top", 39);
  comparar(concreto, {{17, -2, 109.67}, {18, -1.85, 109.67}, {19, -1.85, 109.86849250}, {20, 0, 109.85}}, "cut-off");
  comparar(concreto, {{21, 0, 109.85}, {31, 1.41, 109.38}, {32, 6.46458980, 106.85}, {38, 17, 107.97}}, "underside");
  const auto canal = g.canal();
  comparar(canal, {{1, -2.49019608, 109.77490196}, {2, -10, 109.85}, {3, -10, 109.74999500}}, "canal", 7);
  comparar(canal, {{4, -2.46706192, 109.67466562}, {5, -2, 109.90819660}}, "canal");
  comparar(g.canalAbajo(), {{0, 17, 107.97}, {1, 22, 107.92}, {2, 22, 107.81999500}}, "canal downstream");
}

TEST(GeometriaInclinada, TopOfTheLiningEnergyControlPointsAndPlan) {
  const DesignState e = inclinadaDeMano();
  const GeometriaInclinada g(e);
  // the canal's top meets the slope's top a little behind the crest
  comparar(g.corona(), {{0, -10, 111.35}, {1, 0.24088569, 111.24759114}, {2, 3.73606798, 109.5}}, "top", 6);
  comparar(g.corona(), {{3, 12.5, 109.5}, {4, 17, 109.37}, {5, 22, 109.32}}, "top");
  comparar(g.energia(), {{0, -10, 111.12339450}, {1, 0, 111.19959225}, {2, 6.5, 108.85137615}}, "energy", 7);
  comparar(g.puntosControl(), {{0, -5, 109.8}, {1, -2, 110.02}, {3, 1.5, 109.5}, {7, 17, 107.97}}, "control", 8);
  const PlantaPoza planta = g.planta();
  const auto agua = aguaPlanta(planta.anchos(), eje);
  comparar(agua, {{1, -5, 117.75}, {2, -2, 119.25}, {3, 0, 119.25}, {4, 6.5, 119}, {8, 22, 117.85}}, "plan", 19);
  // the bed widens by 0.5 over 6.5 m of curve and slope
  EXPECT_NEAR(planta.medioAnchoPT(), 0.75 + 0.25 * 1.5 / 6.5, 1e-9);
  comparar(planta.bordesFondo(eje)[0], {{0, -10, 119.25}, {1, -5, 119.25}, {3, 0, 119.25}, {4, 6.5, 119}}, "edge", 5);
}

TEST(GeometriaInclinada, ARadiusTooSmallForTheRunKeepsTheFormerPoint) {
  DesignState e = inclinadaDeMano();
  e.radioCurva = 1;
  const double ultimo = 109 + std::sqrt(1 - 0.81) + 0.8;
  comparar(GeometriaInclinada(e).agua(), {{10, 0.9, ultimo}, {11, 1.05, ultimo}, {14, 1.5, ultimo}}, "water", 52);
  e.radioCurva = 0.15;  // the underside of the curve has no radius left
  EXPECT_EQ(GeometriaInclinada(e).concreto().size(), 39U);
}

TEST(GeometriaInclinada, AFastCanalHasNeitherRiseNorControlSection) {
  DesignState e = inclinadaDeMano();
  e.sobreelevacion = 0, e.longControl = 0.15, e.longTransEntrada = 0;
  // the ramp of the sill is gone: its foot and its crest are one point
  comparar(GeometriaInclinada(e).agua(), {{0, -5.15, 110.0515}, {49, -0.15, 110.0015}, {50, -0.15, 110.0015}}, "water");
}

TEST(GeometriaVertical, WaterWithNappeAndPool) {
  DesignState e = verticalDeMano();
  const auto agua = GeometriaVertical(e).agua(e);
  const double alta = 2 * std::sqrt(6 / 9.81) - 0.2;  // where the upper side of the nappe ends
  comparar(agua, {{0, -10, 110.808}, {3, -0.4, 110.5252}, {4, alta / 10, 110.5 - 0.0125 * alta * alta}}, "nappe", 51);
  comparar(agua, {{13, alta, 110.5 - 1.25 * alta * alta}, {14, alta + 0.2, 107.7}, {28, alta + 1.7, 108.7}}, "jump");
  comparar(agua, {{29, 4.5, 108.9}, {30, 11.5, 108.83}, {31, 11.5, 107.9285}, {32, 4.65, 108}}, "outlet");
  comparar(agua, {{33, 4.5, 108}, {34, 4, 107.5}, {35, 0, 107.5}, {36, 0, 108}}, "bed");
  // the lower side meets the pool at 108
  comparar(agua, {{37, 1.26491106, 108}, {46, 0.12649111, 109.98}, {48, -2, 110.02}, {49, -5, 110.05}}, "lower side");
  EXPECT_FLOAT_EQ(e.xTrayectoria.valor(), 1.26491106F) << "the run of the lower side stays in the record";

  // a pool up to the crest leaves a tenth of the nappe
  e = verticalDeMano();
  e.yVert94 = 2.5;
  const auto llena = GeometriaVertical(e).agua(e);
  EXPECT_FLOAT_EQ(e.xTrayectoria.valor(), 0.1F);
  comparar(llena, {{36, 0, 110}, {37, 0.1, 109.9875}, {46, 0.01, 109.999875}}, "full pool");

  e = verticalDeMano();
  e.trayA = 0;  // the run of the lower side fails: that of the upper side stays
  GeometriaVertical(e).agua(e);
  EXPECT_FLOAT_EQ(e.xTrayectoria.valor(), static_cast<float>(2 * std::sqrt(6 / 9.81)));
}

TEST(GeometriaVertical, ConcreteLinesAndEnergy) {
  const DesignState e = verticalDeMano();
  const GeometriaVertical g(e);
  comparar(g.concreto(), {{0, -2, 110.02}, {2, 0, 107.5}, {4, 4.5, 108}, {5, 4.65, 108}}, "concrete", 17);
  comparar(g.concreto(), {{6, 4.65, 107.05}, {8, 4.5, 107.35}, {11, -0.15, 107.05}, {14, -1.85, 109.7}}, "concrete");
  // walls of 2.95 and of 0.95 by 0.15, floor 4.5 and crest 1.85 by 0.15, wedge of the ramp, cut-off 0.15 deep under a
  // bed that rises 0.02
  EXPECT_NEAR(area(g.concreto()), (2.95 + 0.95 + 4.5 + 1.85 + 0.15) * 0.15 + 0.125 + 0.02, 1e-5);
  comparar(g.canal(), {{0, -2, 110.02}, {2, -10, 110.1}, {3, -10, 109.99999500}, {4, -2, 109.91999500}}, "canal", 6);
  comparar(g.canalAbajo(), {{0, 4.65, 108}, {1, 11.5, 107.93}, {3, 4.65, 107.89999500}}, "canal downstream");
  comparar(g.corona(), {{0, -10, 111.1}, {1, 0, 111}, {2, 4.5, 109.1}, {3, 11.5, 109.03}}, "top");
  comparar(g.energia(), {{0, -10, 110.97339450}, {1, 0, 110.70387360}, {2, 2.5, 108.75096840}}, "energy", 6);
  comparar(g.energia(), {{3, 4.5, 108.75096840}, {4, 4.5, 108.95096840}, {5, 11.5, 108.88096840}}, "energy");
}

TEST(GeometriaVertical, PlanWithTheContractionAsAStep) {
  const DesignState e = verticalDeMano();
  const GeometriaVertical g(e);
  const auto agua = aguaPlanta(g.anchosPlanta(), eje);
  comparar(agua, {{0, -10, 118.5}, {2, -2, 119.25}, {3, 0, 119.25}, {4, 0, 119}, {6, 6.5, 118.75}}, "water", 17);
  // outside, the step stands a wall's thickness before the face
  const auto muro = muroPlanta(g.anchosPlanta(), g.anchosMuro(), eje, 1);
  comparar(muro, {{4, 0, 121}, {8, 11.5, 121.4}, {11, -0.15, 121.15}, {12, -0.15, 120.9}}, "upper wall", 17);
  const auto bordes = g.bordesFondo(eje);
  ASSERT_EQ(bordes.size(), 4U);
  // the kept asymmetry: the entry's width on the lower side, the basin's on the upper one
  comparar(bordes[0], {{1, -5, 119.5}, {2, -2, 119.35}}, "lower edge");
  comparar(bordes[2], {{1, -5, 120.5}, {2, -2, 120.75}}, "upper edge");
  comparar(bordes[1], {{0, 4.5, 119}, {1, 6.5, 119.5}, {2, 11.5, 119.5}}, "outlet");
  ASSERT_EQ(g.rayado(eje).size(), 5U);
  EXPECT_EQ(g.rayado(eje)[0], (Segmento{{4.5, eje}, {4.25, eje}}));
}

}  // namespace
}  // namespace calvento
