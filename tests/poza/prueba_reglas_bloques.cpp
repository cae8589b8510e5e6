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
