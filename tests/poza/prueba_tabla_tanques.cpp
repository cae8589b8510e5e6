#include <cmath>
#include <gtest/gtest.h>

#include "apoyo/dialogos_guion.h"
#include "apoyo/navegador_mudo.h"
#include "apoyo/textos.h"
#include "poza/tabla_tanques.h"

namespace calvento {
namespace {

struct Mesa {
  NavegadorMudo navegador;
  Form2 form2{navegador};
  DesignState e;
  Rejilla tabla;
  DialogosGuion dialogos;
  Mesa() { prepararTablaTanques(tabla); }
};

/// Judges over a table that still shows a former calculation; returns verdict and cause of each row.
std::string juzgar(float fr1, float v1, float Q, Real talud = 0, bool inclinada = false) {
  Mesa m;
  for (int fila = 1; fila < 7; ++fila) m.tabla.poner(fila, 3, "of the calculation before");
  m.e.fr1 = Single::deFloat(fr1);
  m.e.v1 = Single::deFloat(v1);
  m.e.Q = Single::deFloat(Q);
  m.e.y1 = 0.31254;
  SELECCIONARTANQUE(m.tabla, m.e, m.form2,
                    inclinada ? CriterioTanques{talud, 0, "Fr= "} : CriterioTanques{talud, m.e.v1, "F= "});
  std::string filas;
  for (int fila = 1; fila < 7; ++fila) filas += m.tabla.texto(fila, 2) + "|" + m.tabla.texto(fila, 3) + "\n";
  return filas;
}

TEST(BasinTable, ChuteAtTheLimits) {
  const std::string no = "No Factible|", bajo45 = no + "Fr < 4.5\n", sobre45 = no + "Fr > 4.5\n", nada = no + "\n";
  const std::string lento = no + "V < 15.24 m/s\n", elevar = "; se recomienda elevar el Número de Froude\n";
  const std::string dosBajo45 = " No Factible|Fr < 4.5\n No Factible|Fr < 4.5\n";  // meant: the leading blank
  const struct {
    float fr1, v1, Q;
    std::string filas;
  } casos[] = {
      {4.5F, 10, 2, nada + nada + "Factible|F= 4.5;  V= 10 m/s\n" + lento + "Factible|Fr= 4.5\n"},
      {std::nextafter(4.5F, 0.0F), 20, 2, bajo45 + "Factible|Fr= 4.5" + elevar + dosBajo45 + "Factible|Fr= 4.5\n"},
      {15, 20.12345F, 2, nada + sobre45 + no + "V > 15.24 m/s\nFactible|Fr= 15;  V= 20.123 m/s\nFactible|Fr= 15\n"},
      {15.5F, 3, 3.5F, no + "Fr > 15\n" + sobre45 + "Factible|F= 15.5;  V= 3 m/s\n" + lento + no + "Q > 3.0 m³/s\n"},
      {7.65432F, 3, 2,
       "Factible|Fr= 7.654; Y1= 0.313 m\n" + sobre45 + "Factible|F= 7.654;  V= 3 m/s\n" + lento +
           "Factible|Fr= 7.654\n"},
      {2.5F, 3, 3, bajo45 + "Factible|Fr= 2.5" + elevar + dosBajo45 + nada},  // neither below nor above 3 m³/s
      {1.7F, 3, 2, bajo45 + no + "Fr < 2.5\n" + dosBajo45 + nada},
      {1.6F, 3, 9, bajo45 + no + "Fr < 2.5\n" + dosBajo45 + no + "Fr < 1.7\n"},
      {17, 15.24F, 2, no + "Fr > 15\n" + sobre45 + "|\n|\n" + nada},
      {17.5F, 15.24F, 9, no + "Fr > 15\n" + sobre45 + "|\n|\n" + no + "Fr > 17\n"},
  };
  for (const auto& c : casos) EXPECT_EQ(juzgar(c.fr1, c.v1, c.Q), c.filas + no + "Tanque Rectangular\n");
  // in the inclined drop the velocity plays no part
  EXPECT_EQ(juzgar(6, 20, 2, 0, true), "Factible|Fr= 6; Y1= 0.313 m\n" + sobre45 + "Factible|Fr= 6;  V= 20 m/s\n" +
                                           lento + "Factible|Fr= 6\n" + no + "Tanque Rectangular\n");
  const std::string t = no + "Tanque Trapezoidal\n";
  for (const double talud : {0.001, -0.5})
    EXPECT_EQ(juzgar(6, 20, 2, talud), t + t + t + t + t + "Factible|Long. Tanque= 6(Y2-Y1)\n");
}

TEST(BasinTable, ItsColoursAndWidths) {
  const Mesa m;
  for (int c = 0; c < 4; ++c) {
    EXPECT_EQ(m.tabla.alineacion(c), Alineacion::centro);
    EXPECT_EQ(m.tabla.fondo(0, c).valor, -2147483633);
    EXPECT_EQ(m.tabla.fondo(4, c).valor, 12648447);
  }
  // the widths follow the blanks of the titles: 57, 32, 18 and 82 characters
  EXPECT_GT(m.tabla.anchoTwips(3), m.tabla.anchoTwips(0));
  EXPECT_GT(m.tabla.anchoTwips(1), m.tabla.anchoTwips(2));
}

TEST(BasinLength, ByClickOnTheGridOfTheWorksAndByCalculationOffIt) {
  const struct {
    int tipo;
    double longitud, k;
    MenuBloques menu;
  } casos[] = {
      // y1 0.25, y2 1.83, Fr 6; by hand with the default coefficients, SAF 4.5·1.83/6^0.76 = 2.11000
      {1, 7.9, 5, MenuBloques::inactivo},   {2, 11.163, 6.1, MenuBloques::activo}, {3, 5.124, 2.8, MenuBloques::activo},
      {4, 8.052, 4.4, MenuBloques::activo}, {5, 2.11, 77, MenuBloques::activo},    {6, 9.48, 6, MenuBloques::inactivo},
  };
  for (const auto& c : casos) {
    for (const bool rapida : {true, false}) {
      Mesa m;
      m.e.y1 = 0.25;
      m.e.y2 = 1.83;
      m.e.fr1 = 6;
      m.e.kLongPoza = 77;
      EXPECT_EQ(pulsarTabla(m.tabla, c.tipo, m.e, m.form2, rapida), c.menu);
      EXPECT_NEAR(Real(m.e.longPoza).valor(), rapida ? 0.05 * std::round(c.longitud / 0.05) : c.longitud, 1e-4)
          << c.tipo;
      EXPECT_FLOAT_EQ(m.e.kLongPoza.valor(), static_cast<float>(c.k)) << "row 5 keeps the former K";
      EXPECT_EQ(m.e.tipoTanque.valor(), static_cast<float>(c.tipo));
      for (int fila = 1; fila < 7; ++fila)
        EXPECT_EQ(m.tabla.fondo(fila, 2), fila == c.tipo ? color::celdaElegida : color::celda);
      EXPECT_EQ(tieneBloques(m.e), c.menu == MenuBloques::activo);
      LONGPOZA(m.e, m.form2, m.dialogos);
      EXPECT_NEAR(Real(m.e.longPoza).valor(), c.longitud, 1e-4) << "the calculation does not round, " << c.tipo;
    }
  }
}

TEST(BasinLength, HeaderRowMissedClickAndFailure) {
  Mesa m;
  m.e.y2 = 2;
  pulsarTabla(m.tabla, 3, m.e, m.form2, true);
  EXPECT_EQ(pulsarTabla(m.tabla, -1, m.e, m.form2, true), MenuBloques::igual);
  EXPECT_EQ(m.e.tipoTanque.valor(), 3);
  EXPECT_EQ(pulsarTabla(m.tabla, 0, m.e, m.form2, true), MenuBloques::igual);
  EXPECT_EQ(m.e.tipoTanque.valor(), 0);
  EXPECT_FLOAT_EQ(m.e.longPoza.valor(), 5.6F);
  for (int fila = 0; fila < 7; ++fila)
    EXPECT_EQ(m.tabla.fondo(fila, 0), fila == 0 ? color::caraBoton : color::celda) << "no mark on the header";
  m.dialogos.esperaAviso("Seleccione el Tipo de Tanque Amortiguador a utilizar");
  LONGPOZA(m.e, m.form2, m.dialogos);
  EXPECT_FLOAT_EQ(m.e.longPoza.valor(), 5.6F);
  m.e.fr1 = 0;  // no Froude number, no length of a SAF basin; the click tells nothing
  EXPECT_EQ(pulsarTabla(m.tabla, 5, m.e, m.form2, true), MenuBloques::activo);
  EXPECT_EQ(m.e.tipoTanque.valor(), 5);
  EXPECT_THROW(LONGPOZA(m.e, m.form2, m.dialogos), FalloAritmetico);
}

}  // namespace
}  // namespace calvento
