#include <cmath>
#include <gtest/gtest.h>

#include "apoyo/dialogos_guion.h"
#include "apoyo/navegador_mudo.h"
#include "comun/numeros.h"
#include "hidraulica/marcha.h"
#include "reportes/ventana_verificacion.h"

namespace calvento {
namespace {

double de(const Rejilla& t, int fila, int columna) { return std::stod(t.texto(fila, columna)); }

/// Specific force times area of a trapezoid, z y³/3 + b y²/2 + Q²/(g A), m³.
double momento(double Q, double y, double b, double z) {
  return z * y * y * y / 3 + b * y * y / 2 + Q * Q / (9.81 * (b + z * y) * y);
}

/// A chute of 20 m of fall into a basin 2.5 m wide, with a canal downstream that holds the jump.
DesignState rapida() {
  DesignState e;
  e.Q = 4;
  e.bRapida = 2;
  e.nRapida = 0.014;
  e.numTramos = 1;
  e.sTramo1 = 0.25;
  e.cotaInicio = 120;
  e.cotaFin = 100;
  e.bPoza = 2.5;
  e.cotaPoza = 97;
  e.bAbajo = 2;
  e.zAbajo = 1;
  e.nAbajo = 0.025;
  e.sAbajo = 0.0008;
  e.cotaAbajo = 98.4;
  e.tipoTanque = 1;
  return e;
}

DesignState inclinada() {
  DesignState e = rapida();
  e.bArriba = 3;
  e.zArriba = 1;
  e.nArriba = 0.02;
  e.sArriba = 0.0008;
  e.bEntradaCaida = e.bPozaCaida = 2;
  return e;
}

DesignState vertical(int tipo) {
  DesignState e = inclinada();
  e.tipoTanque = tipo;
  e.cotaFin = 100;
  e.cotaPoza = 98.2;
  e.cotaAbajo = 98.6;
  e.kLongPoza = 6;
  return e;
}

struct Banco {
  NavegadorMudo navegador;
  DialogosGuion dialogos;
  Form2 form2{navegador};
};

TEST(Momento, RectanguloYTrapecio) {
  // rectangle: (2b + b)/(b + b) / 3 is a half; trapezoid: centroid of b 2, T 4 at y 1 lies 1·8/(6·3) deep
  EXPECT_NEAR(funcionMomento(6, 2, 1, 2, 2).valor(), 36 / (9.81 * 2) + 1, 1e-12);
  EXPECT_NEAR(funcionMomento(6, 3, 1, 2, 4).valor(), 36 / (9.81 * 3) + 3 * 8.0 / 18, 1e-12);
}

TEST(Conjugados, IgualMomentoEnCadaFila) {
  for (const double z : {0.0, 0.5, 1.5}) {
    Banco b;
    DesignState e = rapida();
    e.zPoza = z;
    e.zPozaCaida = z;
    e.tipoTanque = z == 0 ? 1 : 6;
    const Form13 f(e, b.form2, b.dialogos, b.navegador);
    for (int fila = 3; fila <= 12; ++fila) {
      const double Q = 4.0 * (13 - fila) / 10;
      EXPECT_NEAR(de(f.Grid1.tabla, fila, 1), Q, 1e-9);
      const double y1 = de(f.Grid1.tabla, fila, 2);  // what the row goes on with is the rounded depth itself
      const double y2 = de(f.Grid1.tabla, fila, 4);
      const double M = momento(Q, y1, 2.5, z);
      EXPECT_NEAR(de(f.Grid1.tabla, fila, 3), M, 6e-4) << z;
      EXPECT_NEAR(de(f.Grid1.tabla, fila, 5), M, 6e-4) << z;
      EXPECT_NEAR(momento(Q, y2, 2.5, z), M, (2.5 + z * y2) * y2 * 6e-4) << z;
      EXPECT_GT(y2, std::cbrt(Q * Q / 6.25 / 9.81) * (z == 0 ? 1 : 0.6)) << "on the slow side";
      // energy in the basin and downstream
      const double A2 = (2.5 + z * y2) * y2;
      EXPECT_NEAR(de(f.Grid1.tabla, fila, 7), 97 + y2 + Q * Q / (19.62 * A2 * A2), 1.5e-3);
      EXPECT_EQ(f.Grid1.tabla.texto(fila, 9), de(f.Grid1.tabla, fila, 8) > de(f.Grid1.tabla, fila, 7) ? "OK" : "--");
    }
    EXPECT_TRUE(b.dialogos.dichas.empty());
  }
}

/// Depth at the end of a rectangular chute by a fine integration of dE/dx = S - Sf from critical depth.
double tiranteFinal(double Q, double b, double n, double S, double largo) {
  const int pasos = 400000;
  const double dx = largo / pasos;
  double y = std::cbrt(Q * Q / (b * b * 9.81)) * 0.999;
  for (int i = 0; i < pasos; ++i) {
    const double v = Q / (b * y), R = b * y / (b + 2 * y);
    const double Sf = std::pow(n * v / std::pow(R, 2.0 / 3), 2) * std::sqrt(1 + S * S);
    y += dx * (S - Sf) / (1 - v * v / (9.81 * y));
  }
  return y;
}

TEST(Form13, LaMarchaConcuerdaConUnaIntegracionFina) {
  Banco b;
  const Form13 f(rapida(), b.form2, b.dialogos, b.navegador);
  for (const int fila : {3, 7, 12}) {
    const double Q = 4.0 * (13 - fila) / 10;
    const double y = tiranteFinal(Q, 2, 0.014, 0.25, 80);
    const double v = Q / (2 * y), E = 3 + y + v * v / 19.62;
    // the jump's start in the basin, with a tenth of its velocity head lost
    double y1 = 0.05;
    for (int i = 0; i < 200; ++i) y1 = Q / (2.5 * std::sqrt(19.62 * (E - y1) / 1.1));
    EXPECT_NEAR(de(f.Grid1.tabla, fila, 2), y1, 0.0011) << Q;
  }
}

TEST(Form13, TitulosY1LlanoYVeredicto) {
  Banco b;
  DesignState e = rapida();
  const Form13 f(e, b.form2, b.dialogos, b.navegador);
  const Rejilla& t = f.Grid1.tabla;
  ASSERT_EQ(t.filas(), 13);
  ASSERT_EQ(t.columnas(), 10);
  const std::vector<std::vector<std::string>> titulos = {
      {"", "", "TIRANTE", "MOMEMTUM", "TIRANTE", "MOMEMTUM", "LONGITUD", "NIVEL ENERGIA", "NIVEL ENERGIA",
       "FUNCIONAMIENTO"},
      {"N°", "CAUDAL", "Y1", "1", "Y2", "2", "DE RESALTO", "EN POZA", "AGUAS ABAJO", "DE LA POZA"},
      {"", "(M3/S)", "(M)", "Newton/þ(agua)", "(M)", "Newton/þ(agua)", "(M)", "(M)", "(M)", ""}};
  for (int fila = 0; fila < 3; ++fila)
    for (int c = 0; c < 10; ++c)
      EXPECT_EQ(t.texto(fila, c), titulos[static_cast<std::size_t>(fila)][static_cast<std::size_t>(c)]);
  EXPECT_EQ(t.texto(12, 0), "10");
  EXPECT_EQ(t.texto(12, 1), "0.400");
  for (int fila = 3; fila <= 12; ++fila) {
    for (const int c : {3, 5, 6, 7, 8}) EXPECT_EQ(t.texto(fila, c).back(), '0') << "rounded to three decimals first";
    EXPECT_EQ(t.texto(fila, 2), texto(Single(de(t, fila, 2)))) << "plain digits";
  }
  EXPECT_EQ(f.Text1.Text.valor(), "EL DISEÑO ES ACEPTABLE,\r\nEL RESALTO HIDRAULICO ES CONTENIDO DENTRO DE LA POZA");
}

TEST(Veredicto, ListaDesdeElMayorCaudal) {
  const struct {
    const EstiloVerificacion& estilo;
    const char* recomendacion;
  } casos[] = {{verificacionRapida, "SE RECOMIENDA INCREMENTAR EL % DE AHOGAMIENTO DEL RESALTO"},
               {verificacionInclinada, "SE RECOMIENDA INCREMENTAR EL % DE AHOGAMIENTO DEL RESALTO"},
               {verificacionVertical, "SE RECOMIENDA INCREMENTAR LA PROFUNDIDAD DE LA POZA"}};
  for (const auto& c : casos) {
    Rejilla t;
    prepararVerificacion(t, c.estilo);
    FilaVerificacion f;
    for (int n = 1; n <= 10; ++n) {
      f.Q = 1.1 - n / 10.0;
      f.Ep = 100;
      f.Ea = n == 1 ? 99.99999 : n == 2 ? 100 : 100.00001;  // equal levels fail; the fourth decimal is not shown
      escribirVerificacion(t, n, f, c.estilo);
    }
    EXPECT_EQ(t.texto(5, 7), t.texto(5, 8));
    EXPECT_EQ(t.texto(5, 9), "OK");
    EXPECT_EQ(
        VEREDICTOPOZA(t, c.estilo),
        std::string("EL DISEÑO NO ES ACEPTABLE.\r\n\r\n"
                    "Para Q=1.000, La energía al final del resalto es mayor que aguas abajo, resalto barrido!!\r\n"
                    "Para Q=0.900, La energía al final del resalto es mayor que aguas abajo, resalto barrido!!\r\n"
                    "\r\n") +
            c.recomendacion);
  }
}

TEST(Longitud, PorTipoDeTanque) {
  Banco b;
  DesignState e = rapida();
  const Seccion poza{2, 0};
  FilaVerificacion f;
  f.y1 = 0.2;
  f.y2 = 1.5;
  // by the constants of the parameter window; SAF: v = 4 / 0.4 = 10, F = 7.1393, 6.75 / 7.1393^0.76
  const struct {
    int tipo;
    double L;
  } casos[] = {{1, 5 * 1.3}, {2, 6.1 * 1.5}, {3, 2.8 * 1.5}, {4, 4.4 * 1.5}, {5, 6.75 / std::pow(7.13931, 0.76)},
               {6, 6 * 1.3}};
  for (const auto& c : casos) {
    e.tipoTanque = c.tipo;
    for (const double Q : {4.0, 0.4}) {  // the row's discharge plays no part
      f.Q = Q;
      LONGRESALTO(f, e, poza, b.form2);
      EXPECT_NEAR(Real(f.longitud).valor(), c.L, 1e-4) << c.tipo;
    }
  }
  LONGRESALTO(f, e, poza, b.form2, 8.5);
  EXPECT_NEAR(Real(f.longitud).valor(), 8.5 * 1.3, 1e-5) << "a coefficient of its own";
  for (const int tipo : {0, 7}) {
    e.tipoTanque = tipo;
    LONGRESALTO(f, e, poza, b.form2);
    EXPECT_NEAR(Real(f.longitud).valor(), 8.5 * 1.3, 1e-5) << "stays";
  }
}

TEST(Form7, LaEnergiaTomaLaSobreelevacionYY1QuedaSinRedondear) {
  Banco b;
  DesignState e = inclinada();
  e.cotaFin = 99;
  for (const double subida : {0.0, 0.25}) {
    e.sobreelevacion = subida;
    const Form7 f(e, b.form2, b.dialogos, b.navegador);
    for (int fila = 3; fila <= 12; ++fila) {
      const double Q = 4.0 * (13 - fila) / 10;
      const double yc = std::cbrt(Q * Q / 4 / 9.81), E = 2 + subida + 1.5 * yc;
      double y1 = 0.05;
      for (int i = 0; i < 300; ++i) y1 = Q / (2 * std::sqrt(19.62 * (E - y1) / 1.1));
      EXPECT_NEAR(de(f.Grid1.tabla, fila, 2), y1, 6e-4);
      // unrounded: the momentum is that of the true depth, not of the three decimals that are shown
      EXPECT_NEAR(de(f.Grid1.tabla, fila, 3), momento(Q, y1, 2, 0), 2e-3 * momento(Q, y1, 2, 0));
      EXPECT_NEAR(de(f.Grid1.tabla, fila, 3), de(f.Grid1.tabla, fila, 5), 1.1e-3);
    }
  }
}

TEST(Form7, CanalRapidoEntraConTiranteNormal) {
  Banco b;
  DesignState e = inclinada();
  e.sArriba = 0.05;
  e.nArriba = 0.013;
  e.zArriba = 0;
  e.bArriba = e.bEntradaCaida = 2;
  const Form7 f(e, b.form2, b.dialogos, b.navegador);
  double y = 0.3;  // Manning: 4 = A R^(2/3) sqrt(S) / n
  for (int i = 0; i < 200; ++i) y = std::pow(4 * 0.013 / std::sqrt(0.05) * std::pow(2 + 2 * y, 2.0 / 3), 0.6) / 2;
  const double v = 4 / (2 * y), E = 3 + y + v * v / 19.62;
  double y1 = 0.05;
  for (int i = 0; i < 300; ++i) y1 = 4 / (2 * std::sqrt(19.62 * (E - y1) / 1.1));
  EXPECT_NEAR(de(f.Grid1.tabla, 3, 2), y1, 1.1e-3);
}

TEST(Form7, PozaTrapezoidalConSuPropioCoeficiente) {
  Banco b;
  DesignState e = inclinada();
  e.zPozaCaida = 1;
  e.tipoTanque = 6;
  b.form2.Text10.Text = "1000";
  const Form7 f(e, b.form2, b.dialogos, b.navegador);
  // 2.249 - 3.594 + 7.007 + 5.002 = 10.664, to two decimals 10.66
  for (int fila = 3; fila <= 12; ++fila)
    EXPECT_NEAR(de(f.Grid1.tabla, fila, 6), 10.66 * (de(f.Grid1.tabla, fila, 4) - de(f.Grid1.tabla, fila, 2)), 0.012);
}

TEST(Form7, UnaPozaInalcanzableSeDiceYNoSeAbre) {
  Banco b;
  DesignState e = inclinada();
  e.cotaPoza = 101;
  b.dialogos.esperaAviso("NO ES POSIBLE CALCULAR TIRANTE CONJUGADO MENOR DEL RESALTO, CORREGIR ENTRADA DE DATOS");
  EXPECT_THROW(Form7(e, b.form2, b.dialogos, b.navegador), FalloAritmetico);
}

TEST(Form13, LoQueFallaQuedaComoEnLaFilaAnterior) {
  Banco b;
  DesignState e = rapida();
  e.nAbajo = 0;
  e.sAbajo = -1;  // no downstream depth at all
  const Form13 sinCanal(e, b.form2, b.dialogos, b.navegador);
  for (int fila = 3; fila <= 12; ++fila) {
    EXPECT_EQ(sinCanal.Grid1.tabla.texto(fila, 8), "98.4000") << "the bare elevation: the velocity stayed 0";
    EXPECT_NE(sinCanal.Grid1.tabla.texto(fila, 7), "0.0000");
  }

  e = rapida();
  e.sTramo1 = 0;  // no march: the critical depth goes on
  const Form13 sinMarcha(e, b.form2, b.dialogos, b.navegador);
  const double yc = std::cbrt(4 / 9.81), E = 3 + 1.5 * yc;
  double y1 = 0.05;
  for (int i = 0; i < 300; ++i) y1 = 4 / (2.5 * std::sqrt(19.62 * (E - y1) / 1.1));
  EXPECT_NEAR(de(sinMarcha.Grid1.tabla, 3, 2), y1, 1.1e-3);

  e = rapida();
  e.cotaPoza = 200;  // each row tells that its basin is out of reach
  b.dialogos.tolera(DialogosGuion::Clase::aviso);
  const Form13 inalcanzable(e, b.form2, b.dialogos, b.navegador);
  EXPECT_EQ(b.dialogos.dichas.size(), 10U);
  EXPECT_EQ(inalcanzable.Grid1.tabla.texto(3, 2), "0");

  EXPECT_NO_THROW(Form13(DesignState(), b.form2, b.dialogos, b.navegador));
}

TEST(Form26, CaidaLibrePorRand) {
  Banco b;
  DesignState e = vertical(1);
  e.Q = 1.4;  // 0.70 per metre over 1.00 m: the published sheet D 0.0499, Ld 1.91, y1 0.15, y2 0.74
  e.cotaPoza = 99;
  const Form26 f(e, b.navegador);
  EXPECT_NEAR(de(f.Grid1.tabla, 3, 2), 0.15, 0.005);
  EXPECT_NEAR(de(f.Grid1.tabla, 3, 4), 0.74, 0.005);
  EXPECT_NEAR(de(f.Grid1.tabla, 3, 6), 1.91 + 6 * (0.74 - 0.15), 0.06);
  EXPECT_EQ(f.Grid1.tabla.texto(1, 6), "DE POZA");
  EXPECT_NEAR(de(f.Grid1.tabla, 3, 3), momento(1.4, de(f.Grid1.tabla, 3, 2), 2, 0), 4e-3);

  // with the contraction the area is wider, and the centroid is reckoned with the plain bottom width
  e.longTransVert = 0.5;
  const Form26 g(e, b.navegador);
  const double y2 = de(g.Grid1.tabla, 3, 4), W = 3;
  EXPECT_NEAR(de(g.Grid1.tabla, 3, 5), 1.96 / (9.81 * W * y2) + W * y2 * y2 * (4 + W) / (2 + W) / 3, 2e-3);
  EXPECT_NEAR(de(g.Grid1.tabla, 3, 7), 99 + y2 + std::pow(1.4 / (W * y2), 2) / 19.62, 1.1e-3);
}

TEST(Form26, ConObstaculosLaPozaGuardaElMomentoDelAnchoTotal) {
  Banco b;
  DesignState e = vertical(0);
  e.longTransVert = 0.25;
  const Form26 f(e, b.navegador);
  for (int fila = 3; fila <= 12; ++fila) {
    const double Q = 4.0 * (13 - fila) / 10;
    EXPECT_NEAR(de(f.Grid1.tabla, fila, 4), 2.15 * std::cbrt(Q * Q / 4 / 9.81), 1.1e-3);
    EXPECT_NEAR(de(f.Grid1.tabla, fila, 3), de(f.Grid1.tabla, fila, 5), 1.1e-3) << "equal momentum";
    EXPECT_NEAR(de(f.Grid1.tabla, fila, 5), momento(Q, de(f.Grid1.tabla, fila, 4), 2.5, 0), 4e-3);
    EXPECT_GT(de(f.Grid1.tabla, fila, 6), 2.55 * std::cbrt(Q * Q / 4 / 9.81));
  }
}

TEST(Form26, DeOtroTipoSoloQuedanLosTitulos) {
  Banco b;
  const Form26 f(vertical(3), b.navegador);
  for (int fila = 3; fila <= 12; ++fila)
    for (int c = 0; c < 10; ++c) EXPECT_EQ(f.Grid1.tabla.texto(fila, c), c == 0 ? std::to_string(fila - 2) : "");
  EXPECT_EQ(f.Text1.Text.valor().rfind("EL DISEÑO ES ACEPTABLE,", 0), 0U);
}

TEST(Verificacion, ImprimeCopiaYSeCierra) {
  Banco b;
  Form26 f(vertical(1), b.navegador);
  EXPECT_EQ(f.Caption.valor(), "Verificación del Funcionamiento de la Poza");
  for (const char* clave : {"botonimprimir", "botoncopiar"}) f.Toolbar1.ButtonClick(clave);
  f.Command1.Click();
  EXPECT_EQ(b.navegador.llamadas, (std::vector<std::string>{"imprimir Form26", "copiar Form26", "descargar Form26"}));
}

}  // namespace
}  // namespace calvento
