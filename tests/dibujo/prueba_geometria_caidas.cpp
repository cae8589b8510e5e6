#include <cmath>
#include <gtest/gtest.h>

#include "dibujo/estado_caidas.h"
#include "dibujo/geometria_inclinada.h"
#include "dibujo/geometria_vertical.h"
#include "dibujo/puntos.h"

namespace calvento {
namespace {

// The expected points and areas are worked apart from the program, from inclinadaDeMano and verticalDeMano.

TEST(GeometriaInclinada, ARadiusTooSmallForTheRunKeepsTheFormerPoint) {
  DesignState e = inclinadaDeMano();
  e.radioCurva = 1;
  const double ultimo = 109 + std::sqrt(1 - 0.81) + 0.8;
  comparar(GeometriaInclinada(e).agua(), {{10, 0.9, ultimo}, {11, 1.05, ultimo}, {14, 1.5, ultimo}}, "water", 52);
  e.radioCurva = 0.15;  // the underside of the curve has no radius left
  EXPECT_EQ(GeometriaInclinada(e).concreto().size(), 39U);
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

}  // namespace
}  // namespace calvento
