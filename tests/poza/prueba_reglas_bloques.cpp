#include <map>

#include "apoyo/navegador_mudo.h"
#include "apoyo/tablas.h"
#include "apoyo/textos.h"
#include "poza/form21.h"
#include "poza/form22.h"
#include "poza/form23.h"
#include "poza/form5.h"

namespace calvento {
namespace {

constexpr double tolerancia = 1e-6;
constexpr Tanque todosLosTanques[] = {Tanque::usbr1, Tanque::usbr2, Tanque::usbr3, Tanque::saf};

DesignState pozaDeMano() { return registro("poza"); }

TEST(ReglasBloques, CountsTakeTheEvenOneAtATie) {
  const DesignState e = pozaDeMano();
  const std::map<std::string, Tanque> tanques = {
      {"usbr1", Tanque::usbr1}, {"usbr2", Tanque::usbr2}, {"usbr3", Tanque::usbr3}, {"saf", Tanque::saf}};
  porCadaFila("poza.txt", "numero de bloques", [&](const FilaTabla& f) {
    const DatosBloques d{e, f.num(2), {}};
    const Tanque t = tanques.at(f[0]);
    EXPECT_EQ((f[1] == "rampa" ? bloquesDeRampa(t, d) : *bloquesDePiso(t, d)).numero.valor(), f.num(3));
  });
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
  porCadaFila("poza.txt", "minimo", [&](const FilaTabla& f) {
    e.y1 = f.num(0);
    form2.Check1.Value = f.si(1);
    form2.Text11.Text = f[2];
    esperarTextos(Form5(e, form2, navegador), f[3]);
  });
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
