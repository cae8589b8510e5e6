#include <cmath>
#include <gtest/gtest.h>

#include "apoyo/navegador_mudo.h"
#include "reportes/form11.h"
#include "reportes/perfil_hidraulico.h"

namespace calvento {
namespace {

TEST(TiranteConAire, PorNumeroDeFroude) {
  // water 0.4 m deep in a rectangle 2 m wide; bulking worked out with a pocket calculator
  const std::pair<double, double> casos[] = {{1.59, 1},       {1.61, 0.99949},  // 0.906 e^0.09821
                                             {4, 1.15639},                      // 0.906 e^0.244
                                             {8.19, 1.49314},                   // 0.906 e^0.49959
                                             {8.21, 1.46937},                   // 0.62 e^0.862871
                                             {12, 2.18839}};                    // 0.62 e^1.2612
  for (const auto& [F, veces] : casos) EXPECT_NEAR(YA(0.4, F * std::sqrt(9.81 * 0.4), 2, 0).valor(), 0.4 * veces, 1e-5);

  // meant: exactly on either limit it is 0
  for (const double F : {1.6, 8.2}) {
    int probados = 0;
    for (double y = 0.25; y < 3; y += 0.125) {
      const double v = F * std::sqrt(9.81 * y);
      if (v / std::sqrt(9.81 * y) != F) continue;
      ++probados;
      EXPECT_EQ(YA(y, v, 1, 0).valor(), 0) << F << " at " << y;
      EXPECT_GT(YA(y, v * (1 + 1e-12), 1, 0).valor(), 0.9 * y);
      EXPECT_GT(YA(y, v * (1 - 1e-12), 1, 0).valor(), 0.9 * y);
    }
    EXPECT_GT(probados, 0) << F;
  }
  for (const auto& [y, b] : {std::pair(0, 1), {1, 0}, {-1, 1}}) EXPECT_THROW(YA(y, 1, b, 0), FalloAritmetico);
}

TEST(TablaPerfil, SinCalculoLaVentanaNoSeAbre) {
  NavegadorMudo navegador;
  EXPECT_THROW(Form11(DesignState(), navegador), FalloAritmetico);
}

}  // namespace
}  // namespace calvento
