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

/// A chute from station 1+200 at 500 m down to 480 m over 200 m, then 5 m of trajectory and a basin.
DesignState rapida(int tramos) {
  DesignState e;
  e.Q = 4, e.progresivaInicio = 1200, e.cotaInicio = 500, e.cotaFin = 480, e.bArriba = e.bRapida = e.bAbajo = 2;
  e.ynArriba = 1, e.vArriba = 2, e.ycControl = 0.8, e.longRapida = 200.125, e.yFin = 0.25, e.vFin = 8;
  e.cotaTrayectoria = 478, e.xTrayectoria = 5, e.cotaPoza = 476, e.zRampaEntrada = 2, e.zRampaSalida = 1.5;
  e.longPoza = 12.5, e.y1 = 0.2, e.v1 = 10, e.y2 = 2, e.v2 = 1, e.cotaAbajo = 477, e.ynAbajo = 1.2, e.vAbajo = 1.5;
  const int n = 100 * tramos;
  for (int i = 1; i <= n; ++i) {
    const double x = 200.0 * i / n;
    e.perfil.push_back({x, 0.5, 500 - x / 10, 4, 500 - x / 10 + 0.5 + 16 / 19.62});
  }
  return e;
}

std::string fila(const Rejilla& t, int f) {
  std::string celdas;
  for (int c = 0; c < t.columnas(); ++c) celdas += (c > 0 ? "|" : "") + t.texto(f, c);
  return celdas;
}

TEST(TablaPerfil, FilasDeUnTramo) {
  Rejilla t;
  tablaPerfil(t, rapida(1));
  ASSERT_EQ(t.filas(), 28);
  EXPECT_EQ(fila(t, 0), "ESTACION|ELEVACION|VELOCIDAD|ELEVACION ENERGIA|TIRANTE|TIRANTE*|DESCRIPCION");
  EXPECT_EQ(fila(t, 1), "( Km+m )|( msnm )|( m/seg )|( msnm )|( m )|( m )|");
  EXPECT_EQ(fila(t, 2), "||2||1|1|Canal Aguas Arriba");
  // 4 m³/s through 2 × 0.8 m: 2.5 m/s, head 6.25 / 19.62 = 0.3186
  EXPECT_EQ(fila(t, 3), "1+200.00|500|2.5|501.1186|0.8|0.8|Inicio de la Rápida");
  // 4 m/s at 0.5 m: F = 1.8061, bulking 0.906 e^0.110172 = 1.0115, on 0.5 m 0.50576
  EXPECT_EQ(fila(t, 4), "1+202.00|499.8|4|501.1155|0.5|0.5058|");
  EXPECT_EQ(t.texto(5, 0), "1+212.00") << "the sixth section";
  EXPECT_EQ(t.texto(23, 0), "1+392.00") << "the ninety-sixth of a hundred";
  // 8 m/s at 0.25 m: F = 5.1084, bulking 0.906 e^0.311612 = 1.2372
  EXPECT_EQ(fila(t, 24), "1+400.12|480|8|483.512|0.25|0.3093|Inicio de la Trayectoria");
  // 200.125 + 5 + 2 m of fall at 2:1; no air in the jump although F = 7.14
  EXPECT_EQ(fila(t, 25), "1+409.12|476|10|481.2968|0.2|0.2|Inicio del Resalto");
  EXPECT_EQ(fila(t, 26), "1+421.62|476|1|478.051|2|2|Final del Resalto");
  EXPECT_EQ(fila(t, 27), "1+423.12|477|1.5|478.3147|1.2|1.2|Canal Aguas Abajo");

  tablaPerfil(t, rapida(3));  // twenty sections all the same, 2/3 m apart
  EXPECT_EQ(t.filas(), 28);
  EXPECT_EQ(t.texto(4, 0), "1+200.67");
  EXPECT_EQ(t.texto(23, 0), "1+390.67") << "the 286th of three hundred";
}

TEST(TablaPerfil, SinCalculoLaVentanaNoSeAbre) {
  NavegadorMudo navegador;
  DesignState e = rapida(1);
  EXPECT_NO_THROW(Form11(e, navegador));
  e.perfil.clear();
  EXPECT_THROW(Form11(e, navegador), FalloAritmetico);
  EXPECT_THROW(Form11(DesignState(), navegador), FalloAritmetico);
}

}  // namespace
}  // namespace calvento
