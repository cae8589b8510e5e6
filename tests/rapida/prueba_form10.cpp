#include <gtest/gtest.h>

#include "apoyo/mesa_rapida.h"
#include "apoyo/publicados.h"
#include "apoyo/textos.h"
#include "hidraulica/solvers.h"

namespace calvento {
namespace {

constexpr const char* subcritico = "FLUJO SUB CRITICO EN EL CANAL DE LA RÁPIDA!!!, VERIFIQUE SUS DATOS";
constexpr const char* supercritico =
    "FLUJO SUPER CRITICO EN CANAL AGUAS ARRIBA; DESEA INICIAR EL CALCULO CON Yn EN EL CANAL DE LA RÁPIDA?";

std::string panel(MesaRapida& m) { return m.f.sbStatusBar.Panel1; }

TEST(ChuteWindow, AtItsLoad) {
  MesaRapida m;
  esperarTextos(m.f, "Text17=1 Text21=2 Text22=1.5 Text26=10 Text5= Label41= Label35= Label27=");
  EXPECT_EQ(m.f.Caption.valor(), "Rápida");
  EXPECT_EQ(m.resultadosAbiertos(), 0);
  EXPECT_TRUE(m.estado.esNuevo);
  EXPECT_EQ(m.form2.Label30.Caption.valor(), "En canal rápida:");
}

TEST(ChuteWindow, HintsWhileTyping) {
  MesaRapida m;
  // the width is hinted and emptied again at once by the preview, which lacks its other fields
  std::vector<std::string> paneles;
  m.f.sbStatusBar.alCambiar = [&] { paneles.push_back(panel(m)); };
  m.f.Text5.Text = "2.3";
  EXPECT_EQ(paneles, (std::vector<std::string>{"Ancho de canal de rápida calculado (b): 1.067", ""}));
  m.f.Text10.GotFocus();
  EXPECT_EQ(panel(m), "Ancho de canal de rápida calculado (b): 1.067");
  for (TextBox* campo : {&m.f.Text23, &m.f.Text24}) {
    m.f.sbStatusBar.Panel1 = "";
    campo->GotFocus();
    EXPECT_EQ(panel(m), "Ancho de poza calculado (B): 2.295");
  }
  for (const auto& [campo, dice] :
       {std::pair(&m.f.Text21, "1.5 < Z1 < 2|1.5 <= Z1 <= 2"), {&m.f.Text22, "0 < Z2 < 2|0 < Z2 < 2"}}) {
    campo->MouseMove();
    EXPECT_EQ(campo->ToolTipText.valor() + "|" + panel(m), dice);
  }

  // the published control section: canal 1.80 m, chute 1.20 m
  m.poner({{"Text6", "1.80"}, {"Text7", "1.5"}, {"Text8", "0.03"}, {"Text9", "0.0005"}, {"Text10", "1.2"}});
  EXPECT_EQ(panel(m), "");
  m.f.Text11.Text = "0";
  EXPECT_EQ(panel(m), "Ancho canal rápida calculado(b): 1.067");
  EXPECT_EQ(m.f.Label27.Caption.valor(), "0.076");

  m.f.Text5.Text = "2.4";
  EXPECT_EQ(panel(m), "Ancho canal rápida calculado(b): 1.086") << "the preview has the last word";
  for (const char* otro : {"Text12", "Text13", "Text16", "Text23", "Text26", "Text27"}) {
    m.f.Label27.Caption = "";
    m.poner({{otro, "1"}});
    EXPECT_EQ(m.f.Label27.Caption.valor(), "") << otro;
  }
  for (const char* campo : {"Text6", "Text7", "Text8", "Text9", "Text10", "Text11"}) {
    const std::string antes = m.f.buscar<TextBox>(campo)->Text;
    m.poner({{campo, ""}});
    EXPECT_EQ(panel(m) + m.f.Label27.Caption.valor(), "") << campo;
    m.poner({{campo, antes}});
    EXPECT_NE(panel(m), "") << campo;
    EXPECT_NE(m.f.Label27.Caption.valor(), "") << campo;
  }
  m.f.Label27.Caption = "kept";
  m.f.Text5.Text = "";
  EXPECT_EQ(panel(m) + m.f.Label27.Caption.valor(), "kept") << "an empty discharge runs no preview";
}

TEST(Publicados, ControlSectionOfAChute) {
  compararPublicados("control", 5, [](const CifraPublicada& c) -> Real {
    MesaRapida m;
    const auto t = [&](const char* nombre) { return texto(Real(c.de(nombre))); };
    m.poner({{"Text5", t("Q")},
             {"Text6", t("bArriba")},
             {"Text7", t("zArriba")},
             {"Text8", t("nArriba")},
             {"Text9", t("sArriba")},
             {"Text10", t("bRapida")},
             {"Text11", t("zRapida")}});
    const DesignState& e = m.estado;
    const Real vc = e.Q / Seccion{c.de("bRapida"), c.de("zRapida")}.area(e.ycControl);
    if (c.magnitud == "yn") return e.ynArriba;
    if (c.magnitud == "E") return e.ynArriba + e.vArriba * e.vArriba / dosG;
    if (c.magnitud == "yc") return e.ycControl;
    if (c.magnitud == "Ec") return e.ycControl + vc * vc / dosG;
    if (c.magnitud == "sobreelevación") return e.sobreelevacion;
    throw std::runtime_error("no such figure: " + c.magnitud);
  });
}

TEST(ChuteWindow, PreviewOfASupercriticalCanalAndOfFailures) {
  MesaRapida m;
  m.poner(rapidaDeTresTramos());
  const double antes = m.valor(&DesignState::sobreelevacion);
  m.f.Text9.Text = "0.05";
  EXPECT_FALSE(m.f.Frame1.Visible);
  EXPECT_EQ(m.f.Label41.Caption.valor(), "FLUJO SUPER CRITICO, EN CANAL AGUAS ARRIBA");
  EXPECT_EQ(m.valor(&DesignState::sobreelevacion), antes);
  m.f.Text9.Text = "0";  // the normal depth fails and keeps its value: still supercritical
  EXPECT_FALSE(m.f.Frame1.Visible);
  EXPECT_EQ(m.valor(&DesignState::sArriba), 0);
  m.f.Text9.Text = "0.0006";
  EXPECT_TRUE(m.f.Frame1.Visible);
  EXPECT_EQ(m.f.Label41.Caption.valor(), "");
  // a failure in one statement: the next one runs with what there is
  m.f.Text5.Text = "1e400";
  EXPECT_EQ(panel(m), "Ancho canal rápida calculado(b): 2.067");
  m.f.Text5.Text = "-3";
  EXPECT_EQ(m.valor(&DesignState::Q), -3);
}

TEST(ChuteWindow, SuggestedWidths) {
  MesaRapida m;
  m.f.sbStatusBar.Panel1 = "former";
  m.f.Command6.Click();
  EXPECT_EQ(panel(m) + m.f.Text23.Text.valor(), "former");
  m.f.Command1.Click();
  EXPECT_EQ(panel(m) + m.f.Text10.Text.valor(), "");
  m.f.Text5.Text = "12";
  m.f.Command6.Click();
  EXPECT_EQ(m.f.Text23.Text.valor(), "2.942");  // 18.78·3.4641/22.11
  m.poner({{"Text6", "3"}, {"Text7", "1.5"}, {"Text8", "0.0225"}, {"Text9", "0.0006"}, {"Text11", "0.5"}});
  m.f.Command1.Click();
  EXPECT_EQ(m.f.Text10.Text.valor(), "2.067");
  EXPECT_NE(m.f.Label27.Caption.valor(), "") << "the new width runs the preview";
}

TEST(ChuteWindow, NumberOfReachesOpensItsFields) {
  MesaRapida m;
  const auto comprobar = [&](int n) {
    for (const auto& [tramo, campo] :
         {std::pair(2, &m.f.Text15), {2, &m.f.Text3}, {3, &m.f.Text14}, {3, &m.f.Text27}}) {
      EXPECT_EQ(campo->Enabled, n >= tramo) << n;
      EXPECT_EQ(campo->BackColor.valor().valor, n >= tramo ? -2147483643 : -2147483633) << n;
    }
    for (const char* rotulo : {"236", "281", "282", "276", "275", "379", "378", "380", "345", "346"})  // reach, number
      EXPECT_EQ(m.f.buscar<Label>(std::string("Label") + (rotulo + 1))->ForeColor.valor().valor,
                n >= rotulo[0] - '0' ? -2147483630 : 8421504)
          << n << rotulo;
  };
  comprobar(1);
  m.f.Text3.Text = "417";
  for (const int n : {2, 3, 3}) {  // the arrows stop at 3
    m.f.UpDown1.subir();
    EXPECT_EQ(m.f.Text17.Text.valor(), std::to_string(n));
    EXPECT_EQ(m.estado.numTramos, n);
    comprobar(n);
  }
  m.f.Text17.Text = "7";
  comprobar(3);
  m.f.Text17.Text = "1";
  comprobar(1);
  EXPECT_EQ(m.f.Text3.Text.valor(), "417") << "a disabled field keeps its text";
}

TEST(ChuteWindow, New) {
  MesaRapida m;
  m.poner(rapidaDeUnTramo());
  m.poner({{"Text22", "1.2"}, {"Text3", "5"}, {"Text15", "5"}, {"Text14", "5"}, {"Text27", "5"}});
  m.f.Grid1.pulsar(3);
  m.f.Command3.Click();
  ASSERT_EQ(m.resultadosAbiertos(), 7);
  m.f.Text21.Text = "1.8";
  m.f.Text9.Text = "0.3";  // hides the control section
  m.estado.esNuevo = false;
  const double y2 = m.valor(&DesignState::y2);
  m.f.Text17.Text = "3";
  m.f.mnnuevo.Click();
  std::string llenos;
  for (const Control* c : m.f.controles())
    if (const auto* campo = dynamic_cast<const TextBox*>(c); campo != nullptr && !campo->Text.valor().empty())
      llenos += " " + campo->nombre();
  EXPECT_EQ(llenos, " Text21 Text22 Text17");
  esperarTextos(m.f, "Text17=1 Text21=1.8 Text22=1.2 Label41=");
  EXPECT_EQ(m.estado.numTramos, 1);
  EXPECT_FALSE(m.f.Text3.Enabled);
  EXPECT_EQ(m.resultadosAbiertos(), 0);
  EXPECT_TRUE(m.estado.esNuevo);
  EXPECT_TRUE(m.f.Frame1.Visible);
  for (int fila = 1; fila < 7; ++fila) {
    EXPECT_EQ(m.f.Grid1.tabla.texto(fila, 2) + m.f.Grid1.tabla.texto(fila, 3), "");
    EXPECT_EQ(m.f.Grid1.tabla.fondo(fila, 0), color::celda);
  }
  EXPECT_NE(m.f.Grid1.tabla.texto(1, 0), "");
  EXPECT_EQ(m.valor(&DesignState::y2), y2) << "computed values stay";
  EXPECT_EQ(m.valor(&DesignState::tipoTanque), 3) << "so does the basin type";
}

TEST(ChuteWindow, MenusAndToolbarGoToTheirWindows) {
  MesaRapida m;
  for (const char* menu : {"mngrafico", "mntperfil", "mnst", "mntrayectoria", "mntanque", "mnformondas", "mnparam",
                           "mnimprimir", "mncopiar"})
    m.f.buscar<Menu>(menu)->Click();
  m.f.Toolbar1.ButtonClick("imprimir");
  m.f.Toolbar1.ButtonClick("Copiar");
  m.f.mncerrar.Click();
  m.estado.bPoza = 2.5;
  for (const int tipo : {0, 1, 2, 3, 4, 5, 6}) {
    m.estado.tipoTanque = tipo;
    m.f.mntabla.Click();
  }
  EXPECT_EQ(m.navegador.llamadas,
            (std::vector<std::string>{"mostrar Form3", "mostrar Form11", "mostrar Form19", "mostrar Form8",
                                      "mostrar Form13", "mostrar Form6", "mostrar Form2", "imprimir Form10",
                                      "copiar Form10", "imprimir Form10", "copiar Form10", "descargar Form10",
                                      "mostrar Form22", "mostrar Form5", "mostrar Form21", "mostrar Form23"}));
  EXPECT_EQ(m.valor(&DesignState::bPozaCaida), 2.5);
  for (const int fila : {2, 3, 4, 5, 1, 5, 6}) {
    m.f.Grid1.pulsar(fila);
    EXPECT_EQ(m.f.mntabla.Enabled, fila > 1 && fila < 6) << fila;
  }
  m.f.Grid1.pulsarDoble(2);
  EXPECT_EQ(m.valor(&DesignState::tipoTanque), 2);
  EXPECT_FALSE(m.f.mntabla.Enabled) << "a double click alone only takes the type";
}

TEST(ChuteWindow, WhatEachStopLeaves) {
  const std::string datos =
      "Q progresivaInicio bArriba zArriba nArriba sArriba bAbajo zAbajo nAbajo sAbajo bRapida zRapida nRapida sTramo1 "
      "sTramo2 sTramo3 bPoza zPoza cotaInicio cotaTramo2 cotaTramo3 cotaFin cotaAbajo zRampaEntrada zRampaSalida "
      "ahogamiento anguloTransicion ynArriba hArriba vArriba frArriba ycControl sobreelevacion";
  const std::string control = datos + " espejoArriba espejoRapida longTransEntrada";
  // the control depth counts with the canal: the preview writes it too
  using Clase = DialogosGuion::Clase;
  const char* segundo = "Ingrese datos 2do tramo canal de la rápida";
  const char* tercero = "Ingrese cotas y pendientes de los tramos del canal de la rápida";
  const struct {
    Datos cambio;
    Clase caja;
    const char* dice;
    std::string escritos;  ///< empty: not looked at
    int menus;
    std::size_t filas;
  } casos[] = {
      {{{"Text13", "0.0001"}}, Clase::aviso, subcritico, datos, 7, 3},
      {{{"Text9", "0.05"}}, Clase::pregunta, supercritico, "", 0, 3},
      {{{"Text17", "2"}, {"Text15", ""}}, Clase::aviso, segundo, control, 7, 3},
      {{{"Text17", "2"}, {"Text3", ""}}, Clase::aviso, segundo, control, 7, 3},
      {{{"Text27", ""}}, Clase::aviso, tercero, control, 7, 3},
      {{{"Text14", ""}}, Clase::aviso, tercero, control, 7, 3},
      {{{"Text14", "0"}}, Clase::fallo, falloDivision, "", 7, 300},
      {{{"Text20", "0"}}, Clase::fallo, falloDivision, "", 7, 300},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.dice);
    MesaRapida m;
    m.poner(rapidaDeTresTramos());
    m.f.Grid1.pulsar(4);
    m.dialogos.esperaAviso(avisoAnchoDeTresTramos);
    m.f.Command3.Click();
    EXPECT_TRUE(m.f.calculado());
    EXPECT_EQ(m.resultadosAbiertos(), 7);
    m.poner(c.cambio);
    if (c.caja == Clase::aviso) m.dialogos.esperaAviso(c.dice);
    if (c.caja == Clase::fallo) m.dialogos.esperaFallo(c.dice);
    if (c.caja == Clase::pregunta) m.dialogos.responde(false, c.dice);
    m.estado.perfil.assign(3, FilaPerfil{});
    const std::string s = camposEscritos(m.estado, [&] { m.f.Command3.Click(); });
    if (!c.escritos.empty()) {
      EXPECT_EQ(s, enOrden(c.escritos));
    }
    EXPECT_EQ((" " + s + " ").find(" y1 "), std::string::npos);
    EXPECT_FALSE(m.f.calculado());
    EXPECT_EQ(m.resultadosAbiertos(), c.menus);
    EXPECT_EQ(m.estado.perfil.size(), c.filas);
  }
}

TEST(ChuteWindow, EmptyDischargeAndReachesOutsideOneToThree) {
  for (const char* caudal : {"", "0", "x"}) {
    MesaRapida m;
    m.poner(rapidaDeUnTramo());
    m.f.Text5.Text = caudal;
    // still water is the first thing that is noticed, before any division by it
    m.dialogos.esperaAviso(subcritico);
    m.f.Command3.Click();
  }
  for (const char* tramos : {"0", "4", "-2", "", "x"}) {
    MesaRapida m;
    m.poner(rapidaDeUnTramo());
    m.f.Text17.Text = tramos;
    m.estado.perfil.assign(3, FilaPerfil{});
    m.estado.longRapida = 40;
    m.f.Grid1.pulsar(3);
    m.f.Command3.Click();
    EXPECT_TRUE(m.f.calculado()) << tramos;
    EXPECT_EQ(m.estado.perfil.size(), 3U) << tramos;
    EXPECT_EQ(m.valor(&DesignState::yFin), m.valor(&DesignState::ycControl)) << "no reach: the control depth ends it";
    EXPECT_EQ(m.valor(&DesignState::longRapida), 40);
  }
  MesaRapida m;
  m.poner(rapidaDeUnTramo());
  m.f.Text17.Text = "40000";
  m.dialogos.esperaFallo("Desbordamiento: el número es demasiado grande: Ingresar datos correctamente, verificar");
  m.f.Command3.Click();
  m.f.Text17.Text = "1";
  // without a chosen type it calculates and asks for one
  m.dialogos.esperaAviso(avisoSinTanque);
  m.f.Command3.Click();
  EXPECT_TRUE(m.f.calculado());
  EXPECT_EQ(m.resultadosAbiertos(), 6);
  EXPECT_FALSE(m.f.mntabla.Enabled);
  EXPECT_EQ(m.f.Grid1.tabla.texto(3, 2), "Factible");
}

}  // namespace
}  // namespace calvento
