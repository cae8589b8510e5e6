#include "apoyo/publicados.h"
#include "caida_inclinada/mesa_inclinada.h"
#include "rapida/form10.h"

namespace calvento {
namespace {

using D = DesignState;
using Clase = DialogosGuion::Clase;

constexpr const char* avisoPendiente = "LA PENDIENTE DEL CANAL DEBE SER MAYOR O IGUAL A 2%";
constexpr const char* todos = "mngrafico mnst mntabla mntanque";

TEST(Publicados, InclinedDrop) {
  compararPublicados("inclinada", 3, [](const CifraPublicada& c) -> Real {
    MesaInclinadaDe<DialogosLibres> m;
    const auto t = [&](const char* nombre) { return texto(Real(c.de(nombre))); };
    m.poner(inclinadaSubcritica());
    m.poner({{"Text5", t("Q")}, {"Text6", t("b")}, {"Text7", t("z")}, {"Text8", t("n")}, {"Text9", t("S")}});
    if (c.magnitud == "ancho") {
      m.f.Command6.Click();
      return Val(m.f.Text23.Text);
    }
    m.poner({{"Text23", t("B")}});
    m.parametros.Text5.Text = t("bordo");
    m.f.Command3.Click();
    if (c.magnitud == "muro") return m.estado.hArriba;
    if (c.magnitud == "yc") return m.estado.ycControl;
    throw std::runtime_error("no such figure: " + c.magnitud);
  });
}

TEST(InclinedDropWindow, AtItsLoadAndWhileTyping) {
  MesaInclinada m;
  EXPECT_EQ(m.f.Caption.valor(), "Caída Inclinada");
  EXPECT_EQ(m.f.Text21.Text.valor() + "|" + m.f.Text22.Text.valor() + "|" + m.f.Text3.Text.valor() + "|" +
                m.f.Text4.Text.valor() + "|" + m.menus(),
            "2|1.5|10||");
  EXPECT_EQ(m.parametros.Label30.Caption.valor(), "En canal de rampa:");
  m.f.Command6.Click();
  EXPECT_EQ(m.f.Text23.Text.valor(), "");
  m.f.Text5.Text = "6";
  EXPECT_EQ(m.f.sbStatusBar.Panel1.valor(), "Ancho de poza calculado (B): 2.855");
  // the published canal and crest: E = 1.0512 + 1.855²/2g = 1.2266, Ec = 1.5·0.7415 = 1.1123
  m.poner({{"Text6", "1.5"}, {"Text7", "1.5"}, {"Text8", "0.014"}, {"Text9", "0.0013"}, {"Text24", "0"}});
  m.poner({{"Text23", "3"}});
  EXPECT_EQ(m.f.Label27.Caption.valor(), "0.114");
  EXPECT_NEAR(m.valor(&D::sobreelevacion), 0.114, 1e-6);
  EXPECT_EQ(m.valor(&D::cotaFin), 0) << "the preview raises no crest";
  for (const char* campo : {"Text5", "Text6", "Text7", "Text8", "Text9"}) {
    const std::string antes = m.f.buscar<TextBox>(campo)->Text;
    m.poner({{campo, ""}});
    m.f.Text23.GotFocus();
    EXPECT_EQ(m.f.sbStatusBar.Panel1.valor() + m.f.Label27.Caption.valor(), "") << campo;
    m.poner({{campo, antes}});
    m.f.Text24.GotFocus();
    EXPECT_EQ(m.f.sbStatusBar.Panel1.valor() + "; " + m.f.Label27.Caption.valor(),
              "Ancho de poza calculado (B): 2.855; 0.114")
        << campo;
  }
  m.f.Text9.Text = "0.05";
  EXPECT_EQ(m.f.Label41.Caption.valor(), "FLUJO SUPER CRITICO, EN CANAL AGUAS ARRIBA");
  EXPECT_FALSE(m.f.Frame1.Visible || m.f.Label19.Visible);
  EXPECT_EQ(m.f.Label27.Caption.valor(), "0.114") << "of the slow canal before";
  m.f.mnsuper.Click();
  m.f.Text9.Text = "0.0013";  // with the supercritical face up no view changes while typing
  EXPECT_FALSE(m.f.Frame1.Visible);
  m.f.mnsuper.Click();
  EXPECT_TRUE(m.f.Frame1.Visible && m.f.Label19.Visible);
  EXPECT_EQ(m.f.Label41.Caption.valor(), "");
}

TEST(InclinedDropWindow, NewEmptiesEveryFieldAndKeepsTheType) {
  MesaInclinada m;
  m.poner(inclinadaRapida());
  m.f.Grid1.pulsar(5);
  m.f.mnsuper.Click();
  m.f.Command3.Click();
  ASSERT_EQ(m.menus(), todos);
  m.f.mnnuevo.Click();
  for (const Control* c : m.f.controles())
    if (const auto* campo = dynamic_cast<const TextBox*>(c)) {
      EXPECT_EQ(campo->Text.valor(), "") << campo->nombre();
    }
  EXPECT_EQ(m.menus() + m.f.Grid1.tabla.texto(5, 2) + m.f.Label41.Caption.valor(), "");
  EXPECT_EQ(m.valor(&D::frArriba), 0);
  EXPECT_EQ(m.valor(&D::tipoTanque), 5);
  EXPECT_FALSE(m.f.Frame1.Visible) << "the supercritical face stays";

  // without the ramps' defaults the drop is calculated up to the check of the width
  m.f.mnsuper.Click();
  m.poner(inclinadaSubcritica());
  m.poner({{"Text21", ""}, {"Text22", ""}});
  m.dialogos.esperaFallo(falloDivision);
  m.f.Command3.Click();
  EXPECT_FALSE(m.f.calculado());
  EXPECT_EQ(m.menus(), todos);
  m.navegador.llamadas.clear();
  m.f.mncerrar.Click();
  EXPECT_EQ(m.valor(&D::tipoTanque), 5);
  m.f.Command2.Click();
  EXPECT_EQ(m.valor(&D::tipoTanque), 0);
  for (Menu* menu : {&m.f.mngrafico, &m.f.mnst, &m.f.mntanque, &m.f.mnparam, &m.f.mntabla}) menu->Click();
  EXPECT_EQ(m.navegador.llamadas, (std::vector<std::string>{"descargar Form1", "descargar Form1", "mostrar Form4",
                                                            "mostrar Form20", "mostrar Form7", "mostrar Form2"}));
}

TEST(InclinedDropWindow, LimitsOfBothRegimes) {
  const struct {
    const char* que;
    bool super;
    Datos cambio;
    const char* caja;  ///< nothing: it calculates without a word
  } casos[] = {
      {"slope 0.019", true, {{"Text9", "0.019"}}, avisoPendiente},
      {"slope 0.0191", true, {{"Text9", "0.0191"}}, nullptr},
      {"steep but slow", true, {{"Text9", "0.03"}, {"Text8", "0.09"}}, avisoPendiente},
      {"drop of 4.5", false, {{"Text2", "104.5"}, {"Text4", "100"}}, nullptr},
      {"drop of 4.5, steep canal", false, {{"Text2", "104.5"}, {"Text4", "100"}, {"Text9", "0.02"}}, nullptr},
      {"a little more",
       false,
       {{"Text2", "104.51"}, {"Text4", "100"}},
       "DESNIVEL > 4.50M; DESEA CONTINUAR EL CALCULO?"},
  };
  for (const auto& c : casos) {
    for (const bool respuesta : {true, false}) {
      MesaInclinada m;
      m.poner(c.super ? inclinadaRapida() : inclinadaSubcritica());
      m.f.Grid1.pulsar(2);
      m.f.Command3.Click();
      ASSERT_EQ(m.menus(), todos) << c.que;
      if (c.super) m.f.mnsuper.Click();
      m.poner(c.cambio);
      const bool pregunta = c.caja != nullptr && !c.super;
      if (pregunta)
        m.dialogos.responde(respuesta, c.caja);
      else if (c.caja != nullptr)
        m.dialogos.esperaAviso(c.caja);
      m.f.Command3.Click();
      EXPECT_EQ(m.f.calculado(), c.caja == nullptr || (pregunta && respuesta)) << c.que;
      EXPECT_EQ(m.menus(), pregunta && !respuesta ? "" : todos) << c.que;
    }
  }
}

TEST(InclinedDropWindow, AtAFroudeNumberOfOneTheCalculationTakesTheControlSection) {
  MesaInclinada m;
  m.poner(inclinadaSubcritica());
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

/// Which fields each stop leaves written.
TEST(InclinedDropWindow, WhatEachStopLeaves) {
  const std::string canal =
      "Q progresivaInicio bArriba zArriba nArriba sArriba bAbajo zAbajo nAbajo sAbajo bPozaCaida zPozaCaida cotaFin "
      "cotaAbajo zRampaEntrada zRampaSalida ahogamiento anguloTransicion zCaida ynArriba hArriba vArriba frArriba";
  const std::string control = canal + " bEntradaCaida ycControl yFin vFin longControl radioCurva sobreelevacion";
  const struct {
    const char* que;
    bool super;
    Datos cambio;
    std::vector<DialogosGuion::Caja> cajas;
    std::string escritos;
  } casos[] = {
      {"slow canal", true, {{"Text9", "0.001"}}, {{Clase::aviso, avisoPendiente}}, canal},
      {"No", false, {{"Text4", "1815"}}, {{Clase::pregunta, "DESNIVEL > 4.50M; DESEA CONTINUAR EL CALCULO?"}}, canal},
      {"narrow basin",
       false,
       {{"Text23", "0.7"}},
       {{Clase::aviso, "Sobreelevación negativo en sección de control, modificar ancho de poza"}},
       control},
      {"outlet too high",
       false,
       {{"Text4", "1821"}},
       {{Clase::aviso, "NO ES POSIBLE CALCULAR TIRANTE CONJUGADO MENOR DEL RESALTO, CORREGIR ENTRADA DE DATOS"},
        {Clase::fallo, falloDivision}},
       control + " y1"},
      {"flat canal behind", false, {{"Text20", "0"}}, {{Clase::fallo, falloDivision}}, control + " y1 y2"},
      {"no width", false, {{"Text23", ""}}, {{Clase::fallo, falloDivision}}, canal + " bEntradaCaida"},
  };
  for (const auto& c : casos) {
    MesaInclinada m;
    m.poner(inclinadaSubcritica());
    if (c.super) m.f.mnsuper.Click();
    m.poner(c.cambio);
    for (const auto& caja : c.cajas) {
      if (caja.clase == Clase::aviso) m.dialogos.esperaAviso(caja.texto);
      if (caja.clase == Clase::fallo) m.dialogos.esperaFallo(caja.texto);
      if (caja.clase == Clase::pregunta) m.dialogos.responde(false, caja.texto);
    }
    EXPECT_EQ(camposEscritos(m.estado, [&] { m.f.Command3.Click(); }), enOrden(c.escritos)) << c.que;
    EXPECT_FALSE(m.f.calculado()) << c.que;
    if (std::string("narrow basin") != c.que) continue;
    EXPECT_LT(m.valor(&D::sobreelevacion), 0);
    EXPECT_EQ(m.f.Label27.Caption.valor(), texto(Round(m.estado.sobreelevacion, 3)));
    EXPECT_FLOAT_EQ(m.estado.cotaFin.valor(), 1820.4F);
  }
}

TEST(InclinedDropWindow, TheWidthIsOnlyWarnedOf) {
  MesaInclinada m;
  m.poner(inclinadaSubcritica());
  m.f.Grid1.pulsar(3);
  m.f.Command3.Click();
  // the limit is the crest's own width and more, so only a fast canal, which enters with its own width, can pass it
  m.poner({{"Text9", "0.02"}, {"Text23", "3.5"}});
  m.dialogos.esperaAviso("Ancho de poza debe ser menor de: 2.816");
  m.f.Command3.Click();
  // by hand: 1.10 + 2·2·2.51306·1.11803/(3·2.18292)
  EXPECT_NEAR(m.valor(&D::cotaFin) - m.valor(&D::cotaPoza), 2.51306, 2e-4);
  EXPECT_NEAR(m.valor(&D::frArriba), 2.18292, 1e-5);
  EXPECT_TRUE(m.f.calculado());
  EXPECT_EQ(m.menus(), todos);
  m.poner({{"Text23", "2.7"}});
  m.f.Command3.Click();
}

TEST(InclinedDropWindow, ASmallRadiusIsBuiltAsFifteenCentimetresAndTheVelocityJudgesNoBasin) {
  MesaInclinada m;
  m.poner(inclinadaRapida());
  m.poner({{"Text5", "0.1"}, {"Text9", "0.0191"}, {"Text8", "0.02"}});
  m.f.Grid1.pulsar(3);
  m.f.Command3.Click();
  EXPECT_LT(m.valor(&D::yFin) / std::expm1(1.5 / std::pow(m.valor(&D::frArriba), 2)), 0.12);
  EXPECT_FLOAT_EQ(m.estado.radioCurva.valor(), 0.15F);

  m.poner(inclinadaSubcritica());
  m.f.Text4.Text = "1800";
  m.dialogos.responde(true);
  m.f.Command3.Click();
  ASSERT_TRUE(m.f.calculado() && m.valor(&D::fr1) > 4.5 && m.valor(&D::v1) > 15.24);
  const auto fila = [&](int n) { return m.f.Grid1.tabla.texto(n, 2) + "|" + m.f.Grid1.tabla.texto(n, 3); };
  EXPECT_EQ(fila(3),
            "Factible|Fr= " + texto(Round(m.estado.fr1, 3)) + ";  V= " + texto(Round(m.estado.v1, 3)) + " m/s");
  EXPECT_EQ(fila(4), "No Factible|V < 15.24 m/s");
}

TEST(InclinedDropWindow, AnUnaskedSubmergenceKeepsTheFormerLine) {
  MesaInclinada m;
  m.poner(inclinadaSubcritica());
  m.f.Grid1.pulsar(3);
  for (const auto& [ancho, espera] : {std::pair{"0.6", true}, std::pair{"20", false}}) {
    m.poner({{"Text16", ancho}});
    m.f.Label29.Caption = "former";
    m.f.Command3.Click();
    const double v2 = m.valor(&D::v2), va = m.valor(&D::vAbajo);
    const double k = (va * va - v2 * v2) / (v2 * v2 + 2 * m.valor(&D::y2) * 9.81);
    EXPECT_EQ(k >= 0, espera);
    EXPECT_EQ(m.f.Label29.Caption.valor(),
              espera ? "k=  " + texto(Round(Real(k * 100), 2)) + "%  ;Y2=h+Yw" : std::string("former"));
  }
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
  m.poner(inclinadaRapida());
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
  MesaInclinada::ponerEn(rapida, {{"Text5", "1.8"},
                                  {"Text6", "1.20"},
                                  {"Text7", "1"},
                                  {"Text8", "0.015"},
                                  {"Text9", "0.001"},
                                  {"Text10", "0.95"},
                                  {"Text11", "0"},
                                  {"Text12", "0.015"},
                                  {"Text13", "0.25"},
                                  {"Text16", "1.20"},
                                  {"Text18", "1"},
                                  {"Text19", "0.015"},
                                  {"Text20", "0.001"},
                                  {"Text23", "1.00"},
                                  {"Text24", "0"},
                                  {"Text1", "2534.60"},
                                  {"Text2", "2524.60"},
                                  {"Text4", "2524.10"}});
  rapida.Grid1.pulsar(3);
  m.parametros.Text6.Text = "0.5";
  m.parametros.Text8.Text = "0.1";
  rapida.Command3.Click();
  ASSERT_TRUE(rapida.calculado());
  EXPECT_NEAR(m.valor(&D::hRapida), m.valor(&D::yFin) + 0.1, 0.0251);
  EXPECT_NEAR(m.valor(&D::hAbajo), m.valor(&D::ynAbajo) + 0.5, 0.0251);

  const DesignState antes = m.estado;
  m.poner(inclinadaSubcritica());
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
