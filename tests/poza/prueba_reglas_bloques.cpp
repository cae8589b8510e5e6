#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

#include "apoyo/navegador_mudo.h"
#include "poza/form21.h"
#include "poza/form22.h"
#include "poza/form23.h"
#include "poza/form5.h"

namespace calvento {
namespace {

constexpr double tolerancia = 1e-6;

DesignState pozaDeMano() {
  DesignState e;
  e.bPozaCaida = 2.5, e.y1 = 0.5, e.y2 = 2, e.fr1 = 5, e.longPoza = 9, e.profPoza = 0.35, e.zRampaEntrada = 1.5;
  return e;
}

DatosBloques datosDe(const DesignState& e, double ancho, MinimoBloques minimo = {}) { return {e, ancho, minimo}; }

TEST(ReglasBloques, CountsTakeTheEvenOneAtATie) {
  // width over the spacing of the blocks is a half at each of these
  const struct {
    Tanque tanque;
    bool rampa;
    double ancho;
    int numero;
  } casos[] = {{Tanque::usbr2, true, 2.5, 2},       // 2.5 / (2 × 0.5)
               {Tanque::usbr2, true, 3.5, 4},       // 3.5
               {Tanque::usbr3, true, 1.5, 2},       // 1.5
               {Tanque::saf, true, 1.875, 2},       // 1.875 / (1.5 × 0.5) = 2.5
               {Tanque::saf, false, 2.625, 4},      // 3.5
               {Tanque::usbr1, true, 3.28125, 2},   // 3.28125 / (1.3125 × 1) = 2.5
               {Tanque::usbr1, true, 4.59375, 4}};  // 3.5
  const DesignState e = pozaDeMano();
  for (const auto& c : casos) {
    const DatosBloques d = datosDe(e, c.ancho);
    const HileraBloques h = c.rampa ? bloquesDeRampa(c.tanque, d) : *bloquesDePiso(c.tanque, d);
    EXPECT_EQ(h.numero.valor(), c.numero) << static_cast<int>(c.tanque) << " " << c.ancho;
  }
}

TEST(ReglasBloques, BlocksAndGapsFillTheWidthFromWallToWall) {
  const DesignState e = pozaDeMano();
  for (const Tanque t : {Tanque::usbr1, Tanque::usbr2, Tanque::usbr3})
    for (const double ancho : {1.7, 2.5, 6.3}) {
      std::vector<HileraBloques> hileras = {bloquesDeRampa(t, datosDe(e, ancho))};
      if (const auto piso = bloquesDePiso(t, datosDe(e, ancho))) hileras.push_back(*piso);
      for (const HileraBloques& h : hileras) {
        const auto f = franjas(h);
        ASSERT_EQ(f.size(), static_cast<std::size_t>(h.numero.valor()));
        EXPECT_NEAR(f.front().desde.valor(), h.orilla.valor(), tolerancia);
        EXPECT_NEAR(ancho - f.back().hasta.valor(), h.orilla.valor(), tolerancia) << "the same space at both walls";
        for (std::size_t i = 0; i < f.size(); ++i) {
          EXPECT_NEAR((f[i].hasta - f[i].desde).valor(), h.ancho.valor(), tolerancia);
        }
        for (std::size_t i = 1; i < f.size(); ++i)
          EXPECT_NEAR((f[i].desde - f[i - 1].hasta).valor(), h.hueco.valor(), tolerancia);
      }
    }
}

TEST(ReglasBloques, SafRampHasPiecesAtTheWallsAndItsFloorBlocksStandInTheGaps) {
  const DesignState e = pozaDeMano();
  // 3 / (1.5 × 0.5) = 4 blocks of 3 / 8, side space 3 × 0.5 / 8
  const auto rampa = franjas(bloquesDeRampa(Tanque::saf, datosDe(e, 3)));
  const double desde[] = {0.5625, 1.3125, 2.0625, 0, 2.8125};
  const double hasta[] = {0.9375, 1.6875, 2.4375, 0.1875, 3};
  ASSERT_EQ(rampa.size(), 5U);
  for (std::size_t i = 0; i < rampa.size(); ++i) {
    EXPECT_NEAR(rampa[i].desde.valor(), desde[i], tolerancia) << i;
    EXPECT_NEAR(rampa[i].hasta.valor(), hasta[i], tolerancia) << i;
  }
  const auto piso = franjas(*bloquesDePiso(Tanque::saf, datosDe(e, 3)));
  ASSERT_EQ(piso.size(), 4U);
  for (std::size_t i = 0; i < piso.size(); ++i) {
    const double d = 0.1875 + 0.75 * static_cast<double>(i);
    EXPECT_NEAR(piso[i].desde.valor(), d, tolerancia);
    EXPECT_NEAR(piso[i].hasta.valor(), d + 0.375, tolerancia);
    for (const auto& r : rampa)
      EXPECT_TRUE(r.hasta <= piso[i].desde + tolerancia || r.desde >= piso[i].hasta - tolerancia);
  }
}

TEST(ReglasBloques, TheFloorOfHeightsChangesTheCountToo) {
  NavegadorMudo navegador;
  Form2 form2(navegador);
  DesignState e = pozaDeMano();
  e.y1 = 0.1;
  const auto alto = [&](double ancho) {
    return bloquesDeRampa(Tanque::usbr2, {e, ancho, minimoBloques(form2.Check1, form2.Text11)});
  };
  form2.Text11.Text = "0.2";
  EXPECT_NEAR(alto(2).alto.valor(), 0.1, tolerancia) << "not in force";
  EXPECT_EQ(alto(2).numero.valor(), 10);
  form2.Check1.Value = true;
  EXPECT_EQ(alto(2).alto.valor(), 0.2);
  EXPECT_EQ(alto(2).numero.valor(), 5);
  e.y1 = 0.3;
  EXPECT_NEAR(alto(2).alto.valor(), 0.3, tolerancia) << "a higher block stays";
  form2.Text11.Text = "";
  e.y1 = 0.1;
  EXPECT_NEAR(alto(2).alto.valor(), 0.1, tolerancia);
}

TEST(ReglasBloques, ObstaclesOfAVerticalDropStandOnTheWholeWidth) {
  DesignState e;
  e.bPozaCaida = 1.5, e.longTransVert = 0.25, e.ycControl = 0.5, e.longTramo1 = 1.25, e.longTramo2 = 0.5;
  // 2 / 0.4 = 5 blocks 0.2 wide
  const ObstaculosCaida o = obstaculosCaida(e, {});
  EXPECT_NEAR(o.hilera.alto.valor(), 0.4, tolerancia);
  EXPECT_EQ(o.hilera.numero.valor(), 5);
  EXPECT_NEAR(o.hilera.ancho.valor(), 0.2, tolerancia);
  EXPECT_NEAR(o.largo.valor(), 0.2, tolerancia);
  EXPECT_NEAR(o.distancia.valor(), 1.75, tolerancia);
  const ObstaculosCaida alzados = obstaculosCaida(e, {true, 0.8});
  EXPECT_EQ(alzados.hilera.numero.valor(), 2) << "a tie";
  EXPECT_NEAR(alzados.hilera.ancho.valor(), 0.5, tolerancia);
}

TEST(ReglasBloques, WithoutADepthOrAWidthTheyFail) {
  DesignState e = pozaDeMano();
  for (const Tanque t : {Tanque::usbr1, Tanque::usbr2, Tanque::usbr3, Tanque::saf})
    EXPECT_THROW(bloquesDeRampa(t, datosDe(e, 0)), FalloAritmetico);
  // one block takes more than twice the width: none is left
  EXPECT_THROW(bloquesDeRampa(Tanque::usbr2, datosDe(e, 0.4)), FalloAritmetico);
  e.y1 = 0;
  EXPECT_THROW(bloquesDePiso(Tanque::saf, datosDe(e, 3)), FalloAritmetico);
  EXPECT_NO_THROW(bloquesDePiso(Tanque::usbr3, datosDe(e, 3))) << "its teeth go by y2";
  e.y1 = 1e-7;
  EXPECT_THROW(franjas(bloquesDeRampa(Tanque::usbr2, datosDe(e, 3))), FalloAritmetico) << "millions of blocks";
  EXPECT_THROW(obstaculosCaida(DesignState{}, {}), FalloAritmetico);
  EXPECT_FALSE(tanqueConBloques(2.5).has_value());
}

/// What each label of a sheet must say, worked by hand from pozaDeMano.
struct Casilla {
  const char* rotulo;
  const char* dice;
};
void comparar(const Ventana& hoja, std::initializer_list<Casilla> casillas) {
  std::size_t rotulos = 0;
  for (const Control* c : hoja.controles()) rotulos += dynamic_cast<const Label*>(c) != nullptr ? 1 : 0;
  EXPECT_EQ(rotulos, casillas.size()) << hoja.nombre();
  for (const Casilla& c : casillas) {
    const Label* rotulo = hoja.buscar<Label>(c.rotulo);
    ASSERT_NE(rotulo, nullptr) << c.rotulo;
    EXPECT_EQ(rotulo->Caption.valor(), c.dice) << hoja.nombre() << "." << c.rotulo;
  }
}

struct HojasDeBloques : testing::Test {
  NavegadorMudo navegador;
  Form2 form2{navegador};
  DesignState e = pozaDeMano();
};

TEST_F(HojasDeBloques, ShowTheDimensionsOfTheirBasin) {
  // h 1; 2.5 / 1.3125 = 1.9: 2 blocks of 2.5 / 7
  comparar(Form22(e, form2, navegador), {{"Label13", "9"},
                                         {"Label5", "0.35"},
                                         {"Label8", "1"},
                                         {"Label11", "0.357"},
                                         {"Label9", "0.893"},
                                         {"Label10", "0.446"},
                                         {"Label12", "1.5"},
                                         {"Label4", "2"}});
  // blocks 0.5 high: 2.5 is a tie, 2 of 0.625; floor blocks (0.84 + 0.58) 0.5 = 0.71 high: 2.35, 2 of 0.625
  comparar(Form5(e, form2, navegador), {{"Label14", "2"},
                                        {"Label15", "2"},
                                        {"Label3", "9"},
                                        {"Label17", "0.35"},
                                        {"Label9", "1.6"},
                                        {"Label10", "0.5"},
                                        {"Label13", "0.625"},
                                        {"Label12", "0.625"},
                                        {"Label11", "0.312"},
                                        {"Label4", "0.75"},
                                        {"Label5", "0.1"},
                                        {"Label16", "0.71"},
                                        {"Label6", "0.266"},
                                        {"Label7", "0.625"},
                                        {"Label8", "0.625"}});
  // teeth 0.4 high: 2.5 / 0.6 = 4.17, 4 of 2.5 / 7
  comparar(Form21(e, form2, navegador), {{"Label3", "2"},
                                         {"Label4", "4"},
                                         {"Label14", "9"},
                                         {"Label5", "0.5"},
                                         {"Label9", "0.625"},
                                         {"Label8", "0.625"},
                                         {"Label7", "0.312"},
                                         {"Label6", "0.75"},
                                         {"Label13", "0.4"},
                                         {"Label11", "0.357"},
                                         {"Label12", "0.357"},
                                         {"Label10", "0.04"}});
  // 2.5 / 0.75 = 3.33: 3 of 2.5 / 6, side space 1.5 / 8
  comparar(Form23(e, form2, navegador), {{"Label3", "3"},
                                         {"Label4", "3"},
                                         {"Label14", "0.5"},
                                         {"Label8", "0.75"},
                                         {"Label17", "0.417"},
                                         {"Label16", "0.417"},
                                         {"Label15", "0.188"},
                                         {"Label13", "0.5"},
                                         {"Label9", "0.1"},
                                         {"Label12", "0.417"},
                                         {"Label11", "0.417"},
                                         {"Label10", "0.188"},
                                         {"Label6", "9"},
                                         {"Label7", "3"},
                                         {"Label5", "0.14"}});
}

TEST_F(HojasDeBloques, TakeTheFloorOfHeightsFromTheParameters) {
  e.y1 = 0.1;
  form2.Check1.Value = true;
  Form5 hoja(e, form2, navegador);
  EXPECT_EQ(hoja.Label10.Caption.valor(), "0.2");
  EXPECT_EQ(hoja.Label14.Caption.valor(), "6") << "2.5 / 0.4 = 6.25";
}

TEST_F(HojasDeBloques, DoNotOpenOnABasinWithoutWidth) {
  e.bPozaCaida = 0;
  EXPECT_THROW(Form22(e, form2, navegador), FalloAritmetico);
  EXPECT_THROW(Form5(e, form2, navegador), FalloAritmetico);
  EXPECT_THROW(Form21(e, form2, navegador), FalloAritmetico);
  EXPECT_THROW(Form23(e, form2, navegador), FalloAritmetico);
}

TEST_F(HojasDeBloques, PrintAndCopyThemselves) {
  Form23 hoja(e, form2, navegador);
  for (const std::string& clave : hoja.Toolbar1.claves()) hoja.Toolbar1.ButtonClick(clave);
  EXPECT_EQ(navegador.llamadas, (std::vector<std::string>{"imprimir Form23", "copiar Form23"}));
}

}  // namespace
}  // namespace calvento
