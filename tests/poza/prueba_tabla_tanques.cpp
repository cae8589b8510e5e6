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
  std::string fila(int n) const { return tabla.texto(n, 2) + "|" + tabla.texto(n, 3); }
};

struct Caso {
  const char* que;
  float fr1, v1, Q;
  std::array<const char*, 6> filas;
};

void juzgar(const Caso& c, Real talud, bool inclinada) {
  Mesa m;
  for (int fila = 1; fila < 7; ++fila) m.tabla.poner(fila, 3, "of the calculation before");
  m.e.fr1 = Single::deFloat(c.fr1);
  m.e.v1 = Single::deFloat(c.v1);
  m.e.Q = Single::deFloat(c.Q);
  m.e.y1 = 0.31254;
  SELECCIONARTANQUE(m.tabla, m.e, m.form2,
                    inclinada ? CriterioTanques{talud, 0, "Fr= "} : CriterioTanques{talud, m.e.v1, "F= "});
  for (int fila = 1; fila < 7; ++fila)
    EXPECT_EQ(m.fila(fila), c.filas[static_cast<std::size_t>(fila - 1)]) << c.que << ", row " << fila;
}

constexpr const char* rectangular = "No Factible|Tanque Rectangular";
constexpr const char* bajo45 = " No Factible|Fr < 4.5";

TEST(BasinTable, ChuteAtTheLimits) {
  const Caso casos[] = {
      {"Fr 4.5",
       4.5F,
       10,
       2,
       {"No Factible|", "No Factible|", "Factible|F= 4.5;  V= 10 m/s", "No Factible|V < 15.24 m/s", "Factible|Fr= 4.5",
        rectangular}},
      {"below 4.5",
       std::nextafter(4.5F, 0.0F),
       20,
       2,
       {"No Factible|Fr < 4.5", "Factible|Fr= 4.5; se recomienda elevar el Número de Froude", bajo45, bajo45,
        "Factible|Fr= 4.5", rectangular}},
      {"Fr 15",
       15,
       20.12345F,
       2,
       {"No Factible|", "No Factible|Fr > 4.5", "No Factible|V > 15.24 m/s", "Factible|Fr= 15;  V= 20.123 m/s",
        "Factible|Fr= 15", rectangular}},
      {"above 15",
       15.5F,
       3,
       3.5F,
       {"No Factible|Fr > 15", "No Factible|Fr > 4.5", "Factible|F= 15.5;  V= 3 m/s", "No Factible|V < 15.24 m/s",
        "No Factible|Q > 3.0 m³/s", rectangular}},
      {"between",
       7.65432F,
       3,
       2,
       {"Factible|Fr= 7.654; Y1= 0.313 m", "No Factible|Fr > 4.5", "Factible|F= 7.654;  V= 3 m/s",
        "No Factible|V < 15.24 m/s", "Factible|Fr= 7.654", rectangular}},
      {"Fr 2.5, Q 3",
       2.5F,
       3,
       3,
       {"No Factible|Fr < 4.5", "Factible|Fr= 2.5; se recomienda elevar el Número de Froude", bajo45, bajo45,
        "No Factible|", rectangular}},
      {"Fr 1.7",
       1.7F,
       3,
       2,
       {"No Factible|Fr < 4.5", "No Factible|Fr < 2.5", bajo45, bajo45, "No Factible|", rectangular}},
      {"below 1.7, much Q",
       1.6F,
       3,
       9,
       {"No Factible|Fr < 4.5", "No Factible|Fr < 2.5", bajo45, bajo45, "No Factible|Fr < 1.7", rectangular}},
      {"Fr 17", 17, 15.24F, 2, {"No Factible|Fr > 15", "No Factible|Fr > 4.5", "|", "|", "No Factible|", rectangular}},
      {"above 17, much Q",
       17.5F,
       15.24F,
       9,
       {"No Factible|Fr > 15", "No Factible|Fr > 4.5", "|", "|", "No Factible|Fr > 17", rectangular}},
  };
  for (const Caso& c : casos) juzgar(c, 0, false);
}

TEST(BasinTable, InTheInclinedDropTheVelocityPlaysNoPart) {
  juzgar({"drop",
          6,
          20,
          2,
          {"Factible|Fr= 6; Y1= 0.313 m", "No Factible|Fr > 4.5", "Factible|Fr= 6;  V= 20 m/s",
           "No Factible|V < 15.24 m/s", "Factible|Fr= 6", rectangular}},
         0, true);
}

TEST(BasinTable, ATrapezoidalBasinHasOneType) {
  const char* no = "No Factible|Tanque Trapezoidal";
  for (const double talud : {0.001, -0.5})
    juzgar({"trapezoidal", 6, 20, 2, {no, no, no, no, no, "Factible|Long. Tanque= 6(Y2-Y1)"}}, talud, false);
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
