#include "apoyo/mesas.h"

namespace calvento {
namespace {

using D = DesignState;

constexpr const char* avisoPendiente = "LA PENDIENTE DEL CANAL DEBE SER MAYOR O IGUAL A 2%";

TEST(InclinedDropWindow, AtAFroudeNumberOfOneTheCalculationTakesTheControlSection) {
  MesaInclinada m;
  m.poner(datosDe("inclinada"));
  m.poner({{"Text7", "0"}, {"Text8", "0.035"}, {"Text23", "1.4"}});
  m.f.Grid1.pulsar(3);
  buscarFroudeUno(m);
  ASSERT_EQ(m.valor(&D::frArriba), 1);
  m.f.Frame1.Visible = false;
  m.f.Label41.Caption = "former";
  m.f.SECONTROL();
  EXPECT_FALSE(m.f.Frame1.Visible);
  EXPECT_EQ(m.f.Label41.Caption.valor(), "former");
  m.f.Command3.Click();
  EXPECT_TRUE(m.f.calculado() && m.f.Frame1.Visible);
  EXPECT_EQ(m.valor(&D::frArriba), 1);
  EXPECT_EQ(m.f.Label41.Caption.valor(), "");
  EXPECT_EQ(m.valor(&D::bEntradaCaida), m.valor(&D::bPozaCaida));
  m.f.mnsuper.Click();
  EXPECT_FALSE(m.f.Frame1.Visible);
  ASSERT_GT(m.valor(&D::sArriba), 0.0191) << "so it is not the slope that is too small";
  m.dialogos.esperaAviso(avisoPendiente);
  m.f.Command3.Click();
}

TEST(InclinedDropWindow, ASmallRadiusIsBuiltAsFifteenCentimetresAndTheVelocityJudgesNoBasin) {
  MesaInclinada m;
  m.poner(datosDe("inclinada rapida"));
  m.poner({{"Text5", "0.1"}, {"Text9", "0.0191"}, {"Text8", "0.02"}});
  m.f.Grid1.pulsar(3);
  m.f.Command3.Click();
  EXPECT_LT(m.valor(&D::yFin) / std::expm1(1.5 / std::pow(m.valor(&D::frArriba), 2)), 0.12);
  EXPECT_FLOAT_EQ(m.estado.radioCurva.valor(), 0.15F);

  m.poner(datosDe("inclinada"));
  m.f.Text4.Text = "1800";
  m.dialogos.responde(true);
  m.f.Command3.Click();
  ASSERT_TRUE(m.f.calculado() && m.valor(&D::fr1) > 4.5 && m.valor(&D::v1) > 15.24);
  const auto fila = [&](int n) { return m.f.Grid1.tabla.texto(n, 2) + "|" + m.f.Grid1.tabla.texto(n, 3); };
  EXPECT_EQ(fila(3),
            "Factible|Fr= " + texto(Round(m.estado.fr1, 3)) + ";  V= " + texto(Round(m.estado.v1, 3)) + " m/s");
  EXPECT_EQ(fila(4), "No Factible|V < 15.24 m/s");
}

/// Looks into the record each time a message appears.
class DialogosMirones : public DialogosLibres {
 public:
  std::function<void()> mirar;
  void aviso(const std::string& texto) override {
    DialogosLibres::aviso(texto);
    mirar();
  }
};

TEST(InclinedDropWindow, EachPassAsksForTheTypeAndTheSecondRunStartsFromTheRoundedSubmergence) {
  MesaInclinadaDe<DialogosMirones> m;
  m.poner(datosDe("inclinada rapida"));
  m.estado.longPoza = 2;  // of another structure: without a type it stays
  m.f.mnsuper.Click();
  std::vector<std::pair<float, float>> pasadas;  // submergence and outlet in force
  m.dialogos.mirar = [&] { pasadas.emplace_back(m.estado.ahogamiento.valor(), m.estado.cotaAbajo.valor()); };
  std::string salidas[2];
  for (std::string& salida : salidas) {
    const float k = static_cast<float>(std::stod(m.f.Text3.Text) / 100);
    pasadas.clear();
    m.dialogos.dichas.clear();
    m.f.Command3.Click();
    EXPECT_TRUE(m.f.calculado());
    EXPECT_EQ(m.dialogos.dichas, std::vector<std::string>(pasadas.size(), avisoSinTanque));
    ASSERT_GE(pasadas.size(), 2U);
    EXPECT_EQ(pasadas.front(), std::pair(k, 984.5F)) << "half a metre under the crest";
    EXPECT_NEAR(pasadas.back().second, m.valor(&D::cotaAbajo), 1e-4) << "within the last pass";
    EXPECT_EQ(m.f.Text3.Text.valor(), texto(Round(Real(m.estado.ahogamiento) * 100, 2)));
    EXPECT_EQ(m.f.Label29.Caption.valor(), "k=  " + m.f.Text3.Text.valor() + "%  ;Y2=h+Yw");
    EXPECT_EQ(m.f.Text20.Text.valor(), "0.04");
    EXPECT_EQ(m.valor(&D::longPoza), 2);
    salida = m.f.Text4.Text;
  }
  EXPECT_NE(m.f.Text3.Text.valor(), "10");
  EXPECT_NEAR(std::stod(salidas[0]), std::stod(salidas[1]), 0.0011);
}

TEST(InclinedDropWindow, ItsRecordAndItsParameterWindowAreSharedWithTheChute) {
  MesaInclinadaDe<DialogosLibres> m;
  NavegadorMudo& nav = m.navegador;
  Form10 rapida(m.estado, m.parametros, m.dialogos, nav);
  EXPECT_EQ(m.parametros.Label30.Caption.valor(), "En canal rápida:") << "the last one loaded names the field";
  MesaInclinada::ponerEn(rapida, datosDe("rapida de un tramo"));
  rapida.Grid1.pulsar(3);
  m.parametros.Text6.Text = "0.5";
  m.parametros.Text8.Text = "0.1";
  rapida.Command3.Click();
  ASSERT_TRUE(rapida.calculado());
  EXPECT_NEAR(m.valor(&D::hRapida), m.valor(&D::yFin) + 0.1, 0.0251);
  EXPECT_NEAR(m.valor(&D::hAbajo), m.valor(&D::ynAbajo) + 0.5, 0.0251);

  const DesignState antes = m.estado;
  m.poner(datosDe("inclinada"));
  m.f.Command3.Click();
  ASSERT_TRUE(m.f.calculado()) << "with the basin type of the chute";
  EXPECT_NEAR(m.valor(&D::hRapida), (m.valor(&D::yFin) + m.valor(&D::y1)) / 2 + 0.5, 0.0251);
  EXPECT_NEAR(m.valor(&D::hAbajo), m.valor(&D::ynAbajo) + 0.1, 0.0251);

  // what only the chute writes stays
  for (Single D::*campo : {&D::bRapida, &D::nRapida, &D::sTramo1, &D::cotaInicio, &D::bPoza, &D::longRapida,
                           &D::longTramo1, &D::sUltimoTramo, &D::frFin, &D::trayA, &D::trayB})
    EXPECT_EQ(m.valor(campo), static_cast<double>((antes.*campo).valor()));
  ASSERT_EQ(m.estado.perfil.size(), 100U);
  EXPECT_EQ(m.estado.perfil[99].energia.valor(), antes.perfil[99].energia.valor());
  EXPECT_TRUE(rapida.mngrafico.Enabled) << "on a mixed record";
}

}  // namespace
}  // namespace calvento
