#include <cmath>
#include <gtest/gtest.h>

#include "apoyo/dialogos_guion.h"
#include "apoyo/navegador_mudo.h"
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

TEST(BasinTable, HeadingsAndFixedColumns) {
  Mesa m;
  ASSERT_EQ(m.tabla.filas(), 7);
  ASSERT_EQ(m.tabla.columnas(), 4);
  const char* const titulos[] = {"Tipo de Disipador", "Número de Froude", "Factibilidad", "Causas"};
  for (int c = 0; c < 4; ++c) {
    EXPECT_EQ(m.tabla.texto(0, c), titulos[c]);
    EXPECT_EQ(m.tabla.alineacion(c), Alineacion::centro);
    EXPECT_EQ(m.tabla.fondo(0, c).valor, -2147483633);
    EXPECT_EQ(m.tabla.fondo(4, c).valor, 12648447);
  }
  // the widths follow the blanks of the titles: 57, 32, 18 and 82 characters
  EXPECT_GT(m.tabla.anchoTwips(3), m.tabla.anchoTwips(0));
  EXPECT_GT(m.tabla.anchoTwips(1), m.tabla.anchoTwips(2));
  const char* const filas[][2] = {
      {"TANQUE RECTANG. SIN OBSTACULOS", "4.5 < Fr < 15"}, {"USBR - I", "2.5 <= Fr <4.5"},
      {"USBR - II", "Fr >= 4.5 y V < 15.24 m/s"},          {"USBR - III", "Fr >= 4.5 y V > 15.24 m/s"},
      {"TANQUE SAF", "1.7 <= Fr <= 17 y Q < 3 m³/s"},      {"TANQUE SECCION TRAPEZOIDAL", ""}};
  for (int fila = 1; fila < 7; ++fila)
    for (int c = 0; c < 2; ++c) EXPECT_EQ(m.tabla.texto(fila, c), filas[fila - 1][c]);
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

TEST(Form2Fields, DefaultsButtonsAndWhatStaysInForce) {
  NavegadorMudo navegador;
  Form2 f(navegador);
  const std::vector<std::pair<TextBox*, std::array<const char*, 2>>> campos = {
      // at the start; after the button that restores the basin's constants
      {&f.Text5, {"0.20", "x"}},  {&f.Text6, {"0.30", "x"}}, {&f.Text7, {"0.30", "x"}},   {&f.Text8, {"0.20", "x"}},
      {&f.Text9, {"12.5", "x"}},  {&f.Text1, {"5", "5"}},    {&f.Text2, {"6.1", "6.1"}},  {&f.Text3, {"2.8", "2.8"}},
      {&f.Text4, {"4.4", "4.4"}}, {&f.Text10, {"6", "6"}},   {&f.Text11, {"0.20", "0.2"}}};
  for (const auto& [campo, textos] : campos) {
    EXPECT_EQ(campo->Text.valor(), textos[0]) << campo->nombre();
    campo->Text = "x";
    campo->GotFocus();
    EXPECT_EQ(campo->SelLength, 1) << campo->nombre();
  }
  EXPECT_FALSE(f.Check1.Value);
  f.Check1.Value = true;
  f.Command2.Click();  // hides and restores nothing
  for (const auto& [campo, textos] : campos) EXPECT_EQ(campo->Text.valor(), "x");
  f.Command3.Click();
  for (const auto& [campo, textos] : campos) EXPECT_EQ(campo->Text.valor(), textos[1]) << campo->nombre();
  EXPECT_TRUE(f.Check1.Value);
  f.Command1.Click();
  EXPECT_EQ(navegador.llamadas, (std::vector<std::string>{"ocultar Form2", "ocultar Form2"}));
  EXPECT_EQ(f.Caption.valor(), "Bordo Libre - Transición- Tanque Amortiguador");
}

}  // namespace
}  // namespace calvento
