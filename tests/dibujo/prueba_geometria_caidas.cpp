#include <cmath>
#include <gtest/gtest.h>

#include "dibujo/estado_caidas.h"
#include "dibujo/geometria_inclinada.h"
#include "dibujo/geometria_vertical.h"
#include "dibujo/puntos.h"

namespace calvento {
namespace {

// The expected points are worked by hand from the round numbers of inclinadaDeMano and verticalDeMano.

constexpr double eje = 120;

TEST(GeometriaInclinada, WaterBody) {
  const auto agua = GeometriaInclinada(inclinadaDeMano()).agua();
  ASSERT_EQ(agua.size(), 52U);
  comparar(agua,
           {{0, -10, 109.85},
            {1, -10, 111.05},
            {2, -7.5, 111.025},
            {3, -2, 110.895},
            {4, 0, 110.8},
            {9, 0.75, 110.68484786},
            {14, 1.5, 110.3},
            {15, 6.5, 107.2},
            {29, 9.5, 109},
            {30, 14, 109.1},
            {31, 22, 109.02},
            {32, 22, 107.92},
            {33, 17, 107.97},
            {34, 14, 108},
            {35, 12.5, 107},
            {36, 6.5, 107},
            {37, 1.5, 109.5},
            {38, 1.5, 109.5},
            {47, 0.15, 109.99549590},
            {48, 0, 110},
            {49, -2, 110.02},
            {50, -2.49019608, 109.77490196},
            {51, -10, 109.85}},
           "water");
}

TEST(GeometriaInclinada, ConcreteAndLinings) {
  const DesignState e = inclinadaDeMano();
  const GeometriaInclinada g(e);
  const auto concreto = g.concreto();
  ASSERT_EQ(concreto.size(), 39U);
  comparar(concreto,
           {{0, 17, 107.97},
            {4, 1.5, 109.5},
            {5, 1.5, 109.5},
            {15, 0, 110},
            {16, -2, 110.02},
            {17, -2, 109.67},
            {18, -1.85, 109.67},
            {19, -1.85, 109.86849250},
            {20, 0, 109.85},
            {21, 0, 109.85},
            {31, 1.41, 109.38},
            {32, 6.46458980, 106.85},
            {38, 17, 107.97}},
           "concrete");
  const auto canal = g.canal();
  ASSERT_EQ(canal.size(), 7U);
  comparar(canal,
           {{0, -2, 110.02},
            {1, -2.49019608, 109.77490196},
            {2, -10, 109.85},
            {3, -10, 109.74999500},
            {4, -2.46706192, 109.67466562},
            {5, -2, 109.90819660},
            {6, -2, 110.02}},
           "canal");
  comparar(g.canalAbajo(), {{0, 17, 107.97}, {1, 22, 107.92}, {2, 22, 107.81999500}}, "canal downstream");
}

TEST(GeometriaInclinada, TopOfTheLiningAndEnergy) {
  const DesignState e = inclinadaDeMano();
  const GeometriaInclinada g(e);
  const auto corona = g.corona();
  ASSERT_EQ(corona.size(), 6U);
  // the canal's top meets the slope's top a little behind the crest
  comparar(corona,
           {{0, -10, 111.35},
            {1, 0.24088569, 111.24759114},
            {2, 3.73606798, 109.5},
            {3, 12.5, 109.5},
            {4, 17, 109.37},
            {5, 22, 109.32}},
           "top");
  const auto energia = g.energia();
  ASSERT_EQ(energia.size(), 7U);
  comparar(energia, {{0, -10, 111.12339450}, {1, 0, 111.19959225}, {2, 6.5, 108.85137615}, {6, 22, 109.13467890}},
           "energy");
  const auto control = g.puntosControl();
  ASSERT_EQ(control.size(), 8U);
  comparar(control, {{0, -5, 109.8}, {1, -2, 110.02}, {2, 0, 110}, {3, 1.5, 109.5}, {7, 17, 107.97}}, "control");
}

TEST(GeometriaInclinada, Plan) {
  const DesignState e = inclinadaDeMano();
  const GeometriaInclinada g(e);
  const PlantaPoza planta = g.planta();
  const auto anchos = planta.anchos();
  const auto agua = aguaPlanta(anchos, eje);
  ASSERT_EQ(agua.size(), 19U);
  comparar(agua, {{0, -10, 117.75}, {1, -5, 117.75}, {2, -2, 119.25}, {3, 0, 119.25}, {4, 6.5, 119}, {8, 22, 117.85}},
           "water");
  // the bed widens by 0.5 over 6.5 m of curve and slope
  EXPECT_NEAR(planta.medioAnchoPT(), 0.75 + 0.25 * 1.5 / 6.5, 1e-9);
  const auto bordes = planta.bordesFondo(eje);
  ASSERT_EQ(bordes.size(), 6U);
  comparar(bordes[0], {{0, -10, 119.25}, {1, -5, 119.25}, {2, -2, 119.25}, {3, 0, 119.25}, {4, 6.5, 119}}, "edge");
}

TEST(GeometriaInclinada, ARadiusTooSmallForTheRunKeepsTheFormerPoint) {
  DesignState e = inclinadaDeMano();
  e.radioCurva = 1;
  const auto agua = GeometriaInclinada(e).agua();
  ASSERT_EQ(agua.size(), 52U);
  const double ultimo = 109 + std::sqrt(1 - 0.81) + 0.8;
  comparar(agua, {{10, 0.9, ultimo}, {11, 1.05, ultimo}, {14, 1.5, ultimo}}, "water");
  e.radioCurva = 0.15;  // the underside of the curve has no radius left
  EXPECT_EQ(GeometriaInclinada(e).concreto().size(), 39U);
}

TEST(GeometriaInclinada, AFastCanalHasNeitherRiseNorControlSection) {
  DesignState e = inclinadaDeMano();
  e.sobreelevacion = 0, e.longControl = 0.15, e.longTransEntrada = 0;
  const GeometriaInclinada g(e);
  EXPECT_NEAR(g.puntoUmbral().x, -0.15, 1e-6) << "the ramp of the sill is gone";
  comparar(g.agua(), {{0, -5.15, 110.0515}, {4, 0, 110.8}, {49, -0.15, 110.0015}}, "water");
}

TEST(GeometriaVertical, WaterWithNappeAndPool) {
  DesignState e = verticalDeMano();
  const auto agua = GeometriaVertical(e).agua(e);
  ASSERT_EQ(agua.size(), 4U + 47U);
  const double alta = 2 * std::sqrt(6 / 9.81) - 0.2;  // where the upper side of the nappe ends
  comparar(agua,
           {{0, -10, 110.808},
            {3, -0.4, 110.5252},
            {4, alta / 10, 110.5 - 0.0125 * alta * alta},
            {13, alta, 110.5 - 1.25 * alta * alta},
            {14, alta + 0.2, 107.7},
            {28, alta + 1.7, 108.7},
            {29, 4.5, 108.9},
            {30, 11.5, 108.83},
            {31, 11.5, 107.9285},
            {32, 4.65, 108},
            {33, 4.5, 108},
            {34, 4, 107.5},
            {35, 0, 107.5},
            {36, 0, 108},
            // the lower side meets the pool at 108
            {37, 1.26491106, 108},
            {46, 0.12649111, 109.98},
            {47, 0, 110},
            {48, -2, 110.02},
            {49, -5, 110.05},
            {50, -10, 110.1}},
           "water");
  EXPECT_FLOAT_EQ(e.xTrayectoria.valor(), 1.26491106F) << "the run of the lower side stays in the record";
}

TEST(GeometriaVertical, APoolUpToTheCrestLeavesATenthOfNappe) {
  DesignState e = verticalDeMano();
  e.yVert94 = 2.5;
  const auto agua = GeometriaVertical(e).agua(e);
  EXPECT_FLOAT_EQ(e.xTrayectoria.valor(), 0.1F);
  comparar(agua, {{36, 0, 110}, {37, 0.1, 109.9875}, {46, 0.01, 109.999875}}, "water");
}

TEST(GeometriaVertical, AFailedRunKeepsTheFormerOne) {
  DesignState e = verticalDeMano();
  e.trayA = 0;
  GeometriaVertical(e).agua(e);
  EXPECT_FLOAT_EQ(e.xTrayectoria.valor(), static_cast<float>(2 * std::sqrt(6 / 9.81))) << "the run of the upper side";
}

TEST(GeometriaVertical, ConcreteLinesAndEnergy) {
  const DesignState e = verticalDeMano();
  const GeometriaVertical g(e);
  const auto concreto = g.concreto();
  ASSERT_EQ(concreto.size(), 17U);
  comparar(concreto,
           {{0, -2, 110.02},
            {1, 0, 110},
            {2, 0, 107.5},
            {3, 4, 107.5},
            {4, 4.5, 108},
            {5, 4.65, 108},
            {6, 4.65, 107.05},
            {7, 4.5, 107.05},
            {8, 4.5, 107.35},
            {9, 0, 107.35},
            {10, 0, 107.05},
            {11, -0.15, 107.05},
            {12, -0.15, 109.85},
            {13, -1.85, 109.85},
            {14, -1.85, 109.7},
            {15, -2, 109.7},
            {16, -2, 110.02}},
           "concrete");
  const auto canal = g.canal();
  ASSERT_EQ(canal.size(), 6U);
  comparar(canal, {{0, -2, 110.02}, {2, -10, 110.1}, {3, -10, 109.99999500}, {4, -2, 109.91999500}}, "canal");
  comparar(g.canalAbajo(), {{0, 4.65, 108}, {1, 11.5, 107.93}, {3, 4.65, 107.89999500}}, "canal downstream");
  comparar(g.corona(), {{0, -10, 111.1}, {1, 0, 111}, {2, 4.5, 109.1}, {3, 11.5, 109.03}}, "top");
  const auto energia = g.energia();
  ASSERT_EQ(energia.size(), 6U);
  comparar(energia,
           {{0, -10, 110.97339450},
            {1, 0, 110.70387360},
            {2, 2.5, 108.75096840},
            {3, 4.5, 108.75096840},
            {4, 4.5, 108.95096840},
            {5, 11.5, 108.88096840}},
           "energy");
}

TEST(GeometriaVertical, PlanWithTheContractionAsAStep) {
  const DesignState e = verticalDeMano();
  const GeometriaVertical g(e);
  const auto agua = aguaPlanta(g.anchosPlanta(), eje);
  ASSERT_EQ(agua.size(), 17U);
  comparar(agua,
           {{0, -10, 118.5},
            {2, -2, 119.25},
            {3, 0, 119.25},
            {4, 0, 119},
            {5, 4.5, 119},
            {6, 6.5, 118.75},
            {8, 11.5, 121.25}},
           "water");
  const auto muro = muroPlanta(g.anchosPlanta(), g.anchosMuro(), eje, 1);
  ASSERT_EQ(muro.size(), 17U);
  // outside, the step stands a wall's thickness before the face
  comparar(muro,
           {{3, 0, 120.75}, {4, 0, 121}, {8, 11.5, 121.4}, {11, -0.15, 121.15}, {12, -0.15, 120.9}, {13, -2, 120.9}},
           "upper wall");
  const auto bordes = g.bordesFondo(eje);
  ASSERT_EQ(bordes.size(), 4U);
  // the kept asymmetry: the entry's width on the lower side, the basin's on the upper one
  comparar(bordes[0], {{1, -5, 119.5}, {2, -2, 119.35}}, "lower edge");
  comparar(bordes[2], {{1, -5, 120.5}, {2, -2, 120.75}}, "upper edge");
  comparar(bordes[1], {{0, 4.5, 119}, {1, 6.5, 119.5}, {2, 11.5, 119.5}}, "outlet");
  const auto rayas = g.rayado(eje);
  ASSERT_EQ(rayas.size(), 5U);
  EXPECT_EQ(rayas[0], (Segmento{{4.5, eje}, {4.25, eje}}));
}

}  // namespace
}  // namespace calvento
