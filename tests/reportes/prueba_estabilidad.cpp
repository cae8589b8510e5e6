#include <array>
#include <cmath>
#include <gtest/gtest.h>

#include "apoyo/navegador_mudo.h"
#include "comun/numeros.h"
#include "hidraulica/marcha.h"
#include "reportes/estabilidad.h"
#include "reportes/form6.h"

namespace calvento {
namespace {

/// A rectangular chute 1.2 m wide, 40 m long at 1:4, from 1+000 on.
DesignState rapida() {
  DesignState e;
  e.Q = 2.4;
  e.progresivaInicio = 1000;
  e.bRapida = 1.2;
  e.nRapida = 0.014;
  e.numTramos = 1;
  e.sTramo1 = 0.25;
  e.cotaInicio = 110;
  e.cotaFin = 100;
  e.longRapida = 40;
  return e;
}

NumerosOndas rectangulo(double b, double y, double v, double X, double perdida) {
  return numerosOndas({b, 0}, {y, v, b * y, b, X, perdida});
}

TEST(NumerosDeOndas, CanalAnchoRectangular) {
  // in a very wide rectangle the shape factor is 2/3, the closed form of Vedernikov's number by Manning's friction:
  // Nv = 2/3 v / sqrt(g y cos θ); there Montuori's number is v² / (g J L cos θ)
  const struct { double y, v, X, J; } casos[] = {{0.2, 5, 30, 0.1}, {0.5, 12, 100, 0.4}, {0.05, 3, 12, 0.02}};
  for (const auto& c : casos) {
    const NumerosOndas n = rectangulo(1e7, c.y, c.v, c.X, c.J * c.X);
    const double coseno = 1 / std::sqrt(1 + c.J * c.J);
    EXPECT_NEAR(n.Nv.valor(), 2.0 / 3 * c.v / std::sqrt(9.81 * c.y * coseno), 1e-6);
    EXPECT_NEAR(n.M.valor(), c.v * c.v / (9.81 * c.J * c.X * coseno), 1e-9);
  }
}

TEST(NumerosDeOndas, ElFactorDeFormaMultiplicaSuUltimoTermino) {
  // b 2, z 1, y 1: r 0.5; (1 + 1 + 0.5·√2) / (1 + √2) · 2 · 2/3 = 1.49509 on a Froude number of 1 at no slope
  const Real A = 3, T = 4;
  const double v = std::sqrt(9.81 * 0.75);
  const NumerosOndas n = numerosOndas({2, 1}, {1, v, A, T, 1e6, 1e-6});
  EXPECT_NEAR(n.Nv.valor(), 4.0 / 3 * (2 + 0.5 * std::sqrt(2)) / (1 + std::sqrt(2)), 1e-6);
}

TEST(NumerosDeOndas, SinDistanciaPerdidaNiAnchoFallan) {
  EXPECT_THROW(rectangulo(1, 1, 1, 0, 1), FalloAritmetico);
  EXPECT_THROW(rectangulo(1, 1, 1, 10, 0), FalloAritmetico);
  EXPECT_THROW(rectangulo(0, 1, 1, 10, 1), FalloAritmetico);
}

TEST(NumerosDeOndas, SobreLaLineaEsInestable) {
  const double M = 0.5;
  const double linea = 9.201 * M + 1.106;
  EXPECT_STREQ(claseFlujo({linea, M}), "Flujo Inestable y Pulsátil");
  EXPECT_STREQ(claseFlujo({std::nextafter(linea, 0), M}), "Flujo Estable");
}

TEST(TablaEstabilidad, TitulosYPrimeraFila) {
  Rejilla t;
  tablaEstabilidad(t, rapida());
  const std::array<std::array<const char*, 10>, 3> esperado = {{
      {"ESTACION", "Q=2.4(M³/S)", "Q=2.4(M³/S)", "TIPO DE", "Q=1.2(M³/S)", "Q=1.2(M³/S)", "TIPO DE", "Q=0.48(M³/S)",
       "Q=0.48(M³/S)", "TIPO DE"},
      {"( Km+m )", "Nv", "M", "REGIMEN", "Nv", "M", "REGIMEN", "Nv", "M", "REGIMEN"},
      {"1+000.00", "", "", "", "", "", "", "", "", ""},
  }};
  ASSERT_EQ(t.columnas(), 10);
  for (int f = 0; f < 3; ++f)
    for (int c = 0; c < 10; ++c)
      EXPECT_EQ(t.texto(f, c), esperado[static_cast<std::size_t>(f)][static_cast<std::size_t>(c)]) << f << " " << c;
  EXPECT_TRUE(t.unirTitulos);
}

TEST(TablaEstabilidad, VeinteEstacionesConUnoYConTresTramos) {
  DesignState e = rapida();
  Rejilla t;
  tablaEstabilidad(t, e);
  ASSERT_EQ(t.filas(), 24);
  EXPECT_EQ(t.texto(3, 0), "1+000.40");
  EXPECT_EQ(t.texto(22, 0), "1+038.40") << "station 96 of 100";
  EXPECT_EQ(t.texto(23, 0), "1+040.00");

  e.numTramos = 3;
  e.sTramo2 = e.sTramo3 = 0.25;
  e.cotaTramo2 = 107;
  e.cotaTramo3 = 102;
  tablaEstabilidad(t, e);
  ASSERT_EQ(t.filas(), 24);
  EXPECT_EQ(t.texto(3, 0), "1+000.12") << "a hundredth of the 12 m of the first reach";
  EXPECT_EQ(t.texto(22, 0), "1+038.88") << "station 286: the 86th of the third reach of 8 m";
}

/// Energy lost between the head of the chute and a distance, by a fine integration of the gradually varied flow
/// dE/dx = -Sf in a rectangle, independent of the steps of the program.
double energiaPerdida(const DesignState& e, double Q, double hasta) {
  const double b = Real(e.bRapida).valor(), n = Real(e.nRapida).valor(), S = Real(e.sTramo1).valor();
  double y = std::cbrt(Q * Q / (b * b * 9.81)) * 0.999, perdida = 0;
  const int pasos = 2000000;
  const double dx = hasta / pasos;
  for (int i = 0; i < pasos; ++i) {
    const double v = Q / (b * y), R = b * y / (b + 2 * y);
    const double Sf = std::pow(n * v / std::pow(R, 2.0 / 3), 2) * std::sqrt(1 + S * S);
    perdida += Sf * dx;
    y += dx * (S - Sf) / (1 - v * v / (9.81 * y));
  }
  return perdida;
}

TEST(TablaEstabilidad, LaPerdidaConcuerdaConUnaIntegracionFina) {
  // M = v² / (g hf cos θ), with v from the same fine integration: compared on the head loss it contains
  const DesignState e = rapida();
  Rejilla t;
  tablaEstabilidad(t, e);
  for (const int tercio : {0, 1, 2}) {
    const double Q = 2.4 * std::array{1.0, 0.5, 0.2}[static_cast<std::size_t>(tercio)];
    const double hf = energiaPerdida(e, Q, 40);
    // the energy at the end gives the depth there
    const double H0 = 110 + 1.5 * std::cbrt(Q * Q / (1.44 * 9.81));
    double y = 0.01;
    for (int i = 0; i < 200; ++i) y = Q / (1.2 * std::sqrt(19.62 * (H0 - hf - 100 - y)));
    const double v = Q / (1.2 * y), coseno = 40 / std::hypot(40, hf);
    const double M = v * v / (9.81 * hf * coseno);
    EXPECT_NEAR(std::stod(t.texto(23, 2 + 3 * tercio)), M, 0.01 * M) << Q;
  }
}

TEST(TablaEstabilidad, SinTramosOSinCanalLaVentanaNoSeAbre) {
  NavegadorMudo navegador;
  DesignState e = rapida();
  EXPECT_NO_THROW(Form6(e, navegador));
  e.numTramos = 0;
  EXPECT_THROW(Form6(e, navegador), FalloAritmetico);
  e = rapida();
  e.sTramo1 = 0;
  EXPECT_THROW(Form6(e, navegador), FalloAritmetico);
  EXPECT_THROW(Form6(DesignState(), navegador), FalloAritmetico);
}

}  // namespace
}  // namespace calvento
