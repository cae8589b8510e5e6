#include <algorithm>
#include <gtest/gtest.h>

#include "apoyo/navegador_mudo.h"
#include "apoyo/textos.h"
#include "poza/form21.h"
#include "poza/form22.h"
#include "poza/form23.h"
#include "poza/form5.h"

namespace calvento {
namespace {

constexpr double tolerancia = 1e-6;
constexpr Tanque todosLosTanques[] = {Tanque::usbr1, Tanque::usbr2, Tanque::usbr3, Tanque::saf};

DesignState pozaDeMano() {
  DesignState e;
  e.bPozaCaida = 2.5, e.y1 = 0.5, e.y2 = 2, e.fr1 = 5, e.longPoza = 9, e.profPoza = 0.35, e.zRampaEntrada = 1.5;
  return e;
}

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
    const DatosBloques d{e, c.ancho, {}};
    const HileraBloques h = c.rampa ? bloquesDeRampa(c.tanque, d) : *bloquesDePiso(c.tanque, d);
    EXPECT_EQ(h.numero.valor(), c.numero) << static_cast<int>(c.tanque) << " " << c.ancho;
  }
}

TEST(ReglasBloques, BlocksAndGapsFillTheWidthFromWallToWall) {
  const DesignState e = pozaDeMano();
  for (const Tanque t : {Tanque::usbr1, Tanque::usbr2, Tanque::usbr3})
    for (const double ancho : {1.7, 2.5, 6.3}) {
      std::vector<HileraBloques> hileras = {bloquesDeRampa(t, {e, ancho, {}})};
      if (const auto piso = bloquesDePiso(t, {e, ancho, {}})) hileras.push_back(*piso);
      for (const HileraBloques& h : hileras) {
        const auto f = franjas(h);
        ASSERT_EQ(f.size(), static_cast<std::size_t>(h.numero.valor()));
        EXPECT_NEAR(f.front().desde.valor(), h.orilla.valor(), tolerancia);
        EXPECT_NEAR(ancho - f.back().hasta.valor(), h.orilla.valor(), tolerancia) << "the same space at both walls";
        for (std::size_t i = 0; i < f.size(); ++i) {
          EXPECT_NEAR((f[i].hasta - f[i].desde).valor(), h.ancho.valor(), tolerancia);
          if (i > 0) {
            EXPECT_NEAR((f[i].desde - f[i - 1].hasta).valor(), h.hueco.valor(), tolerancia);
          }
        }
      }
    }
}

TEST(ReglasBloques, SafRampHasPiecesAtTheWallsAndItsFloorBlocksStandInTheGaps) {
  const DesignState e = pozaDeMano();
  const auto comparar = [](const std::vector<FranjaBloque>& f, std::vector<std::pair<double, double>> esperadas) {
    ASSERT_EQ(f.size(), esperadas.size());
    for (std::size_t i = 0; i < f.size(); ++i) {
      EXPECT_NEAR(f[i].desde.valor(), esperadas[i].first, tolerancia) << i;
      EXPECT_NEAR(f[i].hasta.valor(), esperadas[i].second, tolerancia) << i;
    }
  };
  // 3 / (1.5 × 0.5) = 4 blocks of 3 / 8, side space 3 × 0.5 / 8
  comparar(franjas(bloquesDeRampa(Tanque::saf, {e, 3, {}})),
           {{0.5625, 0.9375}, {1.3125, 1.6875}, {2.0625, 2.4375}, {0, 0.1875}, {2.8125, 3}});
  comparar(franjas(*bloquesDePiso(Tanque::saf, {e, 3, {}})),
           {{0.1875, 0.5625}, {0.9375, 1.3125}, {1.6875, 2.0625}, {2.4375, 2.8125}});
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
  for (const Tanque t : todosLosTanques) EXPECT_THROW(bloquesDeRampa(t, {e, 0, {}}), FalloAritmetico);
  // one block takes more than twice the width: none is left
  EXPECT_THROW(bloquesDeRampa(Tanque::usbr2, {e, 0.4, {}}), FalloAritmetico);
  e.y1 = 0;
  EXPECT_THROW(bloquesDePiso(Tanque::saf, {e, 3, {}}), FalloAritmetico);
  EXPECT_NO_THROW(bloquesDePiso(Tanque::usbr3, {e, 3, {}})) << "its teeth go by y2";
  e.y1 = 1e-7;
  EXPECT_THROW(franjas(bloquesDeRampa(Tanque::usbr2, {e, 3, {}})), FalloAritmetico) << "millions of blocks";
  for (const double y1 : {-0.1, -1e-9, -1e-30})
    EXPECT_TRUE(franjas(bloquesDeRampa(Tanque::usbr2, {(e.y1 = y1, e), 3, {}})).empty())
        << "a count below zero, " << y1;
  EXPECT_THROW(obstaculosCaida(DesignState{}, {}), FalloAritmetico);
  EXPECT_FALSE(tanqueConBloques(2.5).has_value());
}

struct HojasDeBloques : testing::Test {
  NavegadorMudo navegador;
  Form2 form2{navegador};
  DesignState e = pozaDeMano();
};

TEST_F(HojasDeBloques, ShowTheDimensionsOfTheirBasin) {
  // every label of each sheet, worked by hand
  const auto comparar = [](const Ventana& hoja, std::size_t rotulos, const char* dicen) {
    EXPECT_EQ(std::ranges::count(std::string_view(dicen), '='), static_cast<std::ptrdiff_t>(rotulos));
    for (const Control* c : hoja.controles()) rotulos -= dynamic_cast<const Label*>(c) != nullptr ? 1 : 0;
    EXPECT_EQ(rotulos, 0U) << hoja.nombre();
    esperarTextos(hoja, dicen);
  };
  // h 1; 2.5 / 1.3125 = 1.9: 2 blocks of 2.5 / 7
  comparar(Form22(e, form2, navegador), 8,
           "Label13=9 Label5=0.35 Label8=1 Label11=0.357 Label9=0.893 Label10=0.446 Label12=1.5 Label4=2");
  // blocks 0.5 high: 2.5 is a tie, 2 of 0.625; floor blocks (0.84 + 0.58) 0.5 = 0.71 high: 2.35, 2 of 0.625
  comparar(Form5(e, form2, navegador), 15,
           "Label14=2 Label15=2 Label3=9 Label17=0.35 Label9=1.6 Label10=0.5 Label13=0.625 Label12=0.625 "
           "Label11=0.312 Label4=0.75 Label5=0.1 Label16=0.71 Label6=0.266 Label7=0.625 Label8=0.625");
  // teeth 0.4 high: 2.5 / 0.6 = 4.17, 4 of 2.5 / 7
  comparar(Form21(e, form2, navegador), 12,
           "Label3=2 Label4=4 Label14=9 Label5=0.5 Label9=0.625 Label8=0.625 Label7=0.312 Label6=0.75 Label13=0.4 "
           "Label11=0.357 Label12=0.357 Label10=0.04");
  // 2.5 / 0.75 = 3.33: 3 of 2.5 / 6, side space 1.5 / 8
  comparar(Form23(e, form2, navegador), 15,
           "Label3=3 Label4=3 Label14=0.5 Label8=0.75 Label17=0.417 Label16=0.417 Label15=0.188 Label13=0.5 "
           "Label9=0.1 Label12=0.417 Label11=0.417 Label10=0.188 Label6=9 Label7=3 Label5=0.14");
}

TEST_F(HojasDeBloques, TheFloorOfHeightsChangesTheCountToo) {
  const auto dice = [&](double y1, bool vigente, const char* minimo, const char* esperado) {
    e.y1 = y1;
    form2.Check1.Value = vigente;
    form2.Text11.Text = minimo;
    esperarTextos(Form5(e, form2, navegador), esperado);
  };
  dice(0.1, false, "0.2", "Label10=0.1 Label14=12");  // 12.5, a tie
  dice(0.1, true, "0.2", "Label10=0.2 Label14=6");    // 6.25
  dice(0.3, true, "0.2", "Label10=0.3 Label14=4");    // a higher block stays
  dice(0.1, true, "", "Label10=0.1 Label14=12");
}

TEST_F(HojasDeBloques, DoNotOpenOnABasinWithoutWidth) {
  e.bPozaCaida = 0;
  EXPECT_THROW(Form22(e, form2, navegador), FalloAritmetico);
  EXPECT_THROW(Form5(e, form2, navegador), FalloAritmetico);
  EXPECT_THROW(Form21(e, form2, navegador), FalloAritmetico);
  EXPECT_THROW(Form23(e, form2, navegador), FalloAritmetico);
}

}  // namespace
}  // namespace calvento
