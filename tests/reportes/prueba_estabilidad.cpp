#include <cmath>

#include "apoyo/navegador_mudo.h"
#include "apoyo/seccion_desnuda.h"
#include "apoyo/tablas.h"
#include "reportes/estabilidad.h"
#include "reportes/form6.h"

namespace calvento {
namespace {

DesignState rapida() { return registro("estabilidad"); }

NumerosOndas rectangulo(double b, double y, double v, double X, double perdida) {
  return numerosOndas({b, 0}, {y, v, b * y, b, X, perdida});
}

TEST(NumerosDeOndas, CanalAnchoRectangular) {
  porCadaFila("reportes.txt", "ondas", [](const FilaTabla& f) {
    const double y = f.num(0), v = f.num(1), X = f.num(2), J = f.num(3), coseno = 1 / std::sqrt(1 + J * J);
    const NumerosOndas n = rectangulo(1e7, y, v, X, J * X);
    EXPECT_NEAR(n.Nv.valor(), 2.0 / 3 * v / std::sqrt(9.81 * y * coseno), 1e-6);
    EXPECT_NEAR(n.M.valor(), v * v / (9.81 * J * X * coseno), 1e-9);
  });
}

TEST(NumerosDeOndas, ElFactorDeFormaMultiplicaSuUltimoTermino) {
  // b 2, z 1, y 1: r 0.5; (1 + 1 + 0.5·√2) / (1 + √2) · 2 · 2/3 = 1.49509 on a Froude number of 1 at no slope
  const Real A = 3, T = 4;
  const double v = std::sqrt(9.81 * 0.75);
  const NumerosOndas n = numerosOndas({2, 1}, {1, v, A, T, 1e6, 1e-6});
  EXPECT_NEAR(n.Nv.valor(), 4.0 / 3 * (2 + 0.5 * std::sqrt(2)) / (1 + std::sqrt(2)), 1e-6);
}

TEST(NumerosDeOndas, SobreLaLineaEsInestable) {
  const double M = 0.5, linea = 9.201 * M + 1.106;
  EXPECT_STREQ(claseFlujo({linea, M}), "Flujo Inestable y Pulsátil");
  EXPECT_STREQ(claseFlujo({std::nextafter(linea, 0), M}), "Flujo Estable");
}

TEST(TablaEstabilidad, LaPerdidaConcuerdaConUnaIntegracionFina) {
  // M = v² / (g hf cos θ), compared on the head loss it contains
  Rejilla t;
  tablaEstabilidad(t, rapida());
  EXPECT_EQ(std::pair(t.alineacion(9), t.anchoTwips(9)), std::pair(Alineacion::centro, 1900));
  int columna = 2;
  for (const double Q : {2.4, 1.2, 0.48}) {
    const double yc = desnuda::critico(Q, 1.2);
    const double hf = desnuda::marchaFina(0.999 * yc, 40, Q, 1.2, 0, 0.014, 0.25).perdida;
    // the energy at the end gives the depth there
    const double v = Q / (1.2 * desnuda::tiranteRapido(Q, 1.2, 10 + 1.5 * yc - hf));
    const double M = v * v / (9.81 * hf) * std::hypot(40, hf) / 40;
    EXPECT_NEAR(std::stod(t.texto(23, columna)), M, 0.01 * M) << Q;
    columna += 3;
  }
}

TEST(TablaEstabilidad, SinTramosOSinCanalLaVentanaNoSeAbre) {
  NavegadorMudo navegador;
  DesignState e = rapida();
  e.numTramos = 0;
  EXPECT_THROW(Form6(e, navegador), FalloAritmetico);
  e = rapida();
  e.sTramo1 = 0;
  EXPECT_THROW(Form6(e, navegador), FalloAritmetico);
  EXPECT_THROW(Form6(DesignState(), navegador), FalloAritmetico);
  EXPECT_THROW(rectangulo(1, 1, 1, 0, 1), FalloAritmetico) << "no distance";
  EXPECT_THROW(rectangulo(1, 1, 1, 10, 0), FalloAritmetico) << "no loss";
  EXPECT_THROW(rectangulo(0, 1, 1, 10, 1), FalloAritmetico) << "no width";
}

}  // namespace
}  // namespace calvento
