#include "apoyo/seccion_desnuda.h"
#include "caida_vertical/mesa_vertical.h"

namespace calvento {
namespace {

using D = DesignState;
using Clase = DialogosGuion::Clase;

constexpr const char* todos = "mngrafico mnseccion mntanque";
constexpr const char* preguntaDesnivel =
    "DESNIVEL > 4.6 M; SE RECOMIENDA DISEÑAR COMO RAPIDA, DESEA CONTINUAR EL CALCULO?";
constexpr const char* avisoRapido =
    "FLUJO SUPER CRITICO, EN CANAL AGUAS ARRIBA, SE RECOMIENDA DISEÑAR COMO CAIDA INCLINADA EN REGIMEN SUPER CRITICO";

TEST(VerticalDropWindow, AtItsLoadAndWhileTyping) {
  MesaVertical m;
  EXPECT_EQ(m.f.Caption.valor() + "|" + m.f.Text22.Text.valor() + "|" + m.menus(), "Caída Vertical|0|");
  EXPECT_TRUE(m.f.Option1.Value && !m.f.Option2.Value && m.estado.esNuevo);
  m.f.Command6.Click();
  EXPECT_EQ(m.f.Text23.Text.valor(), "");
  // the published canal: E = 1.0512 + 1.855²/2g = 1.2266 m takes 1.48·1.3585 = 2.0106 m²/s over a crest
  m.poner({{"Text6", "1.5"}, {"Text7", "1.5"}, {"Text8", "0.014"}, {"Text9", "0.0013"}, {"Text5", "6"}});
  EXPECT_EQ(m.f.sbStatusBar.Panel1.valor(), "Ancho de poza calculado(B): 2.984");
  EXPECT_EQ(m.f.Label48.Caption.valor(), "") << "no width, no rise";
  m.f.Text23.GotFocus();
  EXPECT_EQ(m.f.sbStatusBar.Panel1.valor(), "") << "the preview wants a width";
  m.f.Command6.Click();
  EXPECT_EQ(m.f.Text23.Text.valor(), "2.984");
  EXPECT_EQ(m.f.sbStatusBar.Panel1.valor(), "Ancho de poza calculado(B): 2.984");
  // without the velocity head: 1.0512 - 1.5·(2.0107²/9.81)^(1/3) = 1.0512 - 1.1162
  EXPECT_EQ(m.f.Label48.Caption.valor(), "-0.065");
  EXPECT_NEAR(m.valor(&D::sobreelevacion), -0.065, 1e-6);

  for (const char* campo : {"Text6", "Text7", "Text8", "Text9"}) {
    const std::string antes = m.f.buscar<TextBox>(campo)->Text;
    m.poner({{campo, ""}});
    m.f.Text5.Text = "7";
    EXPECT_EQ(m.f.sbStatusBar.Panel1.valor(), "") << "the suggestion wants all five: " << campo;
    m.f.Text23.Text = "3";
    m.f.Command6.Click();
    EXPECT_EQ(m.f.Text23.Text.valor(), "3") << campo;
    m.poner({{campo, antes}, {"Text5", "6"}, {"Text23", "2.984"}});
  }
  m.f.Text9.Text = "0.05";
  EXPECT_FALSE(m.f.Frame1.Visible);
  EXPECT_EQ(m.f.Label41.Caption.valor(), "FLUJO SUPER CRITICO, EN CANAL AGUAS ARRIBA");
  m.f.Text9.Text = "0.0013";
  EXPECT_TRUE(m.f.Frame1.Visible);
  EXPECT_EQ(m.f.Label41.Caption.valor() + m.f.Label48.Caption.valor(), "-0.065");
  for (const char* campo : {"Text5", "Text6", "Text7", "Text8", "Text9"}) m.poner({{campo, ""}});
  EXPECT_EQ(m.f.sbStatusBar.Panel1.valor() + m.f.Label48.Caption.valor(), "") << "all five empty";
}

TEST(VerticalDropWindow, LimitsOptionsAndMenus) {
  const struct {
    const char* que;
    Datos cambio;
    Clase clase;
    const char* caja;  ///< nothing: it calculates without a word
  } casos[] = {
      // as 4-byte values 104.6 - 100 stays under the limit, 14.6 - 10 goes over it
      {"4.6 of 104.6", {{"Text2", "104.6"}, {"Text4", "100"}}, Clase::aviso, nullptr},
      {"4.6 of 4.6", {{"Text2", "4.6"}, {"Text4", "0"}}, Clase::aviso, nullptr},
      {"4.6 of 14.6", {{"Text2", "14.6"}, {"Text4", "10"}}, Clase::pregunta, preguntaDesnivel},
      {"fast", {{"Text9", "0.02"}}, Clase::aviso, avisoRapido},
      {"no fall", {{"Text2", "511.10"}}, Clase::fallo, falloDivision},
      {"no width", {{"Text23", "0"}}, Clase::fallo, falloDivision},
  };
  for (const auto& c : casos) {
    for (const bool respuesta : {true, false}) {
      MesaVertical m;
      m.poner(verticalDeLateral());
      m.f.Command3.Click();
      ASSERT_EQ(m.menus(), todos);
      m.poner(c.cambio);
      const bool pregunta = c.clase == Clase::pregunta;
      if (pregunta) m.dialogos.responde(respuesta, c.caja);
      if (c.caja != nullptr && c.clase == Clase::aviso) m.dialogos.esperaAviso(c.caja);
      if (c.clase == Clase::fallo) m.dialogos.esperaFallo(c.caja);
      m.f.Command3.Click();
      const bool rehusado = c.caja == avisoRapido || (pregunta && !respuesta);
      EXPECT_EQ(m.f.calculado(), c.caja == nullptr || (pregunta && respuesta)) << c.que;
      EXPECT_EQ(m.menus(), rehusado ? "mnseccion" : todos) << c.que;
    }
  }
  MesaVertical m;
  m.poner(verticalDeLateral());
  m.poner({{"Text7", "0"}, {"Text8", "0.035"}, {"Text23", "0.9"}});
  buscarFroudeUno(m);
  ASSERT_EQ(m.valor(&D::frArriba), 1);
  m.f.Command3.Click();
  EXPECT_TRUE(m.f.calculado()) << "critical is not fast";
  EXPECT_EQ(m.valor(&D::frArriba), 1);
  for (Menu* menu : {&m.f.mngrafico, &m.f.mnseccion, &m.f.mntanque, &m.f.mnparam}) menu->Click();
  m.estado.tipoTanque = 1;
  m.f.Command2.Click();
  EXPECT_EQ(m.navegador.llamadas, (std::vector<std::string>{"mostrar Form17", "mostrar Form24", "mostrar Form26",
                                                            "mostrar Form25", "descargar Form16"}));
  EXPECT_EQ(m.valor(&D::tipoTanque), 1);
}

TEST(VerticalDropWindow, WhatEachStopLeaves) {
  const std::string datos =
      "Q progresivaInicio bArriba zArriba nArriba sArriba bAbajo zAbajo nAbajo sAbajo bPozaCaida cotaFin cotaAbajo "
      "zRampaSalida anguloTransicion kLongPoza longTransVert";
  const std::string canal = datos + " ynArriba hArriba vArriba frArriba";
  const std::string cresta =
      canal + " bEntradaCaida ycControl yFin vFin espejoArriba espejoRapida longTransEntrada tipoTanque";
  const std::string poza = cresta + " yVert94 y1 y2 v1 v2 longPoza longRapida";
  const struct {
    const char* que;
    Datos cambio;
    DialogosGuion::Caja caja;
    std::string escritos;
    std::size_t filas;  ///< of the drawdown, three stand in it before
  } casos[] = {
      {"No", {{"Text2", "520"}}, {Clase::pregunta, preguntaDesnivel}, datos, 3},
      {"fast", {{"Text9", "0.02"}}, {Clase::aviso, avisoRapido}, canal, 3},
      {"no fall", {{"Text2", "511.1"}}, {Clase::fallo, falloDivision}, cresta, 3},
      {"flat canal behind", {{"Text20", "0"}}, {Clase::fallo, falloDivision}, poza, 3},
  };
  for (const auto& c : casos) {
    MesaVertical m;
    m.poner(verticalDeLateral());
    m.poner(c.cambio);
    m.estado.perfilCaida.assign(3, FilaPerfilCaida{});
    m.estado.perfil.assign(7, FilaPerfil{});
    if (c.caja.clase == Clase::pregunta) m.dialogos.responde(false, c.caja.texto);
    if (c.caja.clase == Clase::aviso) m.dialogos.esperaAviso(c.caja.texto);
    if (c.caja.clase == Clase::fallo) m.dialogos.esperaFallo(c.caja.texto);
    EXPECT_EQ(camposEscritos(m.estado, [&] { m.f.Command3.Click(); }), enOrden(c.escritos)) << c.que;
    EXPECT_EQ(m.estado.perfilCaida.size(), c.filas) << c.que;
    // a whole one leaves the chute's fields and its profile alone
    m.poner(verticalDeLateral());
    const std::string entero =
        poza +
        " profPoza cotaPoza trayA trayB longControl ynAbajo vAbajo hAbajo longTransSalida espejoPoza "
        "espejoAbajo longTubo diamTubo numTubos";
    EXPECT_EQ(camposEscritos(m.estado, [&] { m.f.Command3.Click(); }), enOrden(entero));
    EXPECT_EQ(m.estado.perfil.size(), 7U);
    EXPECT_EQ(m.estado.perfilCaida.size(), 15U);
  }
}

TEST(VerticalDropWindow, ItsBasinByHand) {
  MesaVertical m;
  m.poner(verticalDeLateral());
  m.f.Command3.Click();
  const float sin = m.estado.longRapida.valor();
  m.f.Option2.Value = true;
  EXPECT_EQ(m.estado.longRapida.valor(), sin) << "an option calculates nothing";
  EXPECT_EQ(m.f.Label32.Caption.valor() + m.f.Label24.Caption.valor(), "L1+L2L3");
  EXPECT_TRUE(m.f.Bloques.Visible);
  EXPECT_EQ(m.valor(&D::tipoTanque), 0);
  m.f.Command3.Click();
  EXPECT_NE(m.estado.longRapida.valor(), sin);

  // two centimetres too much of tail water: on the grid that is no depth, and no negative zero either
  m.f.Option1.Value = true;
  m.poner({{"Text16", "0.90"}, {"Text19", "0.015"}, {"Text20", "0.0003"}});
  m.f.Command3.Click();
  EXPECT_EQ(m.valor(&D::profPoza), 0);
  EXPECT_FALSE(std::signbit(m.estado.profPoza.valor()));
  const double y2 = m.valor(&D::y2), yn = m.valor(&D::ynAbajo);
  EXPECT_NEAR(desnuda::energia(1, 1.65, 0, y2) - desnuda::energia(1, 0.9, 1, yn), -0.0125, 0.0125);
  EXPECT_EQ(m.valor(&D::cotaPoza), m.valor(&D::cotaAbajo));
  m.f.Option2.Value = true;

  // a canal as wide as the basin with vertical sides has no transition and ten rows; a deep tail water needs no pool
  m.poner({{"Text6", "1.25"}, {"Text7", "0"}, {"Text20", "0.00001"}});
  m.f.Command3.Click();
  EXPECT_EQ(m.valor(&D::longTransEntrada), 0);
  ASSERT_EQ(m.estado.perfilCaida.size(), 10U);
  EXPECT_NEAR(m.estado.perfilCaida[9].x, -5 - m.valor(&D::longControl), 1e-6);
  EXPECT_EQ(m.valor(&D::profPoza), 0);
  // both canals alike and no contraction: the outlet transition has no least length
  m.poner({{"Text16", "1.25"}, {"Text18", "0"}});
  m.parametros.Option4.Value = true;
  m.f.Command3.Click();
  EXPECT_EQ(m.valor(&D::longTransVert), 0);
  EXPECT_EQ(m.valor(&D::longTransSalida), 0);
  EXPECT_EQ(m.valor(&D::espejoPoza), 1.25);
  // a steep but rough canal: the jet leaves along it
  m.poner({{"Text8", "0.09"}, {"Text9", "0.03"}});
  m.f.Command3.Click();
  EXPECT_NEAR(m.valor(&D::trayA) * 2 * std::pow(m.valor(&D::vFin), 2), -9.81 * 1.0009, 1e-4);
  m.parametros.Text9.Text = "0";
  m.dialogos.esperaFallo(falloDivision);
  m.f.Command3.Click();

  m.f.mnnuevo.Click();
  for (const Control* c : m.f.controles())
    if (const auto* campo = dynamic_cast<const TextBox*>(c)) {
      EXPECT_EQ(campo->Text.valor(), "") << campo->nombre();
    }
  EXPECT_EQ(m.menus(), "");
  EXPECT_TRUE(m.estado.esNuevo && m.f.Frame1.Visible);
}

}  // namespace
}  // namespace calvento
