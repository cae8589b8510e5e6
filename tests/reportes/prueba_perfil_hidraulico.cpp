#include <cmath>

#include "apoyo/navegador_mudo.h"
#include "apoyo/tablas.h"
#include "reportes/form11.h"
#include "reportes/perfil_hidraulico.h"

namespace calvento {
namespace {

TEST(TiranteConAire, PorNumeroDeFroude) {
  porCadaFila("reportes.txt", "aire", [](const FilaTabla& f) {
    EXPECT_NEAR(YA(0.4, f.num(0) * std::sqrt(9.81 * 0.4), 2, 0).valor(), 0.4 * f.num(1), 1e-5);
  });

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
