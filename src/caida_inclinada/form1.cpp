#include "caida_inclinada/form1.h"

#include "comun/numeros.h"
#include "estructura/pasos.h"
#include "hidraulica/anchos.h"
#include "plataforma/campos.h"

namespace calvento {

Form1::Form1(DesignState& estado, Form2& parametros, Dialogos& dialogos, Navegador& navegador)
    : VentanaTanques(formatoCaidaInclinada, estado, parametros, dialogos, navegador, "Bordo libre: En canal de rampa",
                     false) {
  seleccionarAlEnfocar(*this);
  Text5.Change = [this] { mostrarAncho("Ancho de poza calculado (B): ", anchoPoza); };
  Command6.Click = [this] { ponerAncho(Text23, anchoPoza); };
  for (TextBox* campo : {&Text6, &Text7, &Text8, &Text9, &Text23, &Text24}) campo->Change = [this] { SECONTROL(); };
  for (TextBox* campo : {&Text23, &Text24})
    campo->GotFocus = [this, campo] {
      campo->seleccionarTodo();
      SECONTROL();
    };
  abreResultado(mngrafico, "Form4");
  anotarResultado(mngrafico, "Form9", abre("Form9"));
  abreResultado(mnst, "Form20");
  abreResultado(mntanque, "Form7");
  mnsuper.conMarca = true;
  mnsuper.Click = [this] { mnsuper_Click(); };
  inhabilitarResultados();
  LineasSuper.Visible = false;
  for (Label* rotulo : {&Label35, &Label36, &Label45, &Label46}) rotulo->Visible = false;
}

void Form1::SECONTROL() {
  DesignState& e = estado_;
  if (algunoVacio({&Text5, &Text6, &Text7, &Text8, &Text9})) {
    sbStatusBar.Panel1 = "";
    Label27.Caption = "";
    return;
  }
  pasandoFallos([&] { leer(Text5, &DesignState::Q); });
  pasandoFallos([&] { sbStatusBar.Panel1 = "Ancho de poza calculado (B): " + texto(Round(anchoPoza(e.Q), 3)); });
  const Real v = vistaCanalArriba(false);
  if (mnsuper.Checked) return;
  if (e.frArriba > 1) {
    vistaRapida();
    return;
  }
  if (!(e.frArriba < 1)) return;
  vistaControl();
  Real b = 0, z = 0, E0 = 0;
  pasandoFallos([&] { b = Val(Text23.Text); });
  pasandoFallos([&] { z = Val(Text24.Text); });
  pasandoFallos([&] { E0 = energiaEspecifica(v, e.ynArriba); });
  const Real Ec = vistaEnergiaCritica(b, z);
  pasandoFallos([&] { Label27.Caption = texto(Round(E0 - Ec, 3)); });
  pasandoFallos([&] { e.sobreelevacion = Round(E0 - Ec, 3); });
}

bool Form1::calcular() {
  using D = DesignState;
  leerCanalArriba();
  leer(Text23, &D::bPozaCaida);
  leer(Text24, &D::zPozaCaida);
  leerCanalAbajo();
  leer(Text2, &D::cotaFin);
  leer(Text4, &D::cotaAbajo);
  leer(Text21, &D::zRampaEntrada);
  leer(Text22, &D::zRampaSalida);
  leer(Text25, &D::progresivaInicio);
  leer(parametros_.Text9, &D::anguloTransicion);
  estado_.zCaida = 2;
  estado_.anguloCaida = Atn(estado_.sArriba).valor();
  estado_.ahogamiento = Val(Text3.Text) / 100;
  return calcularInclinada(estado_, parametros_, *this);
}

void Form1::leerSalida() {
  leer(Text20, &DesignState::sAbajo);
  leer(Text4, &DesignState::cotaAbajo);
}

void Form1::mostrarSalida(const std::string& cota, const std::string& ahogamiento) {
  Text4.Text = cota;
  Text3.Text = ahogamiento;
}

void Form1::mostrarPiezasControl(bool visibles) {
  Frame1.Visible = visibles;
  LineasControl.Visible = visibles;
  for (Label* rotulo : {&Label62, &Label57, &Label6, &Label40, &Label7, &Label18, &Label19}) rotulo->Visible = visibles;
}

void Form1::vistaControl() {
  mostrarPiezasControl(true);
  Label41.Caption = "";
}

void Form1::vistaRapida() {
  mostrarPiezasControl(false);
  Label41.Caption = notaRapido;
}

void Form1::mnsuper_Click() {
  mnsuper.Checked = !mnsuper.Checked;
  mostrarCara();
}

void Form1::mostrarCara() {
  const bool super = mnsuper.Checked;
  LineasSuper.Visible = super;
  for (Label* rotulo : {&Label35, &Label36, &Label45, &Label46}) rotulo->Visible = super;
  // the calculation fills these two in the supercritical regime
  for (TextBox* campo : {&Text4, &Text20}) {
    campo->Enabled = !super;
    campo->BackColor = super ? color::caraBoton : color::ventana;
  }
  mostrarPiezasControl(!super);
  if (super) return;
  if (estado_.frArriba > 1) vistaRapida();
  if (estado_.frArriba < 1) vistaControl();
}

void Form1::habilitarResultados() {
  habilitar({&mngrafico, &mntanque, &mnst}, true);
  mntabla.Enabled = tieneBloques(estado_);
}

void Form1::inhabilitarResultados() { habilitar({&mngrafico, &mnst, &mntabla, &mntanque}, false); }

void Form1::nuevo() {
  // the ramps and the submergence go empty too: their defaults do not return
  vaciarCampos({&Text5, &Text25, &Text2, &Text6, &Text7, &Text8, &Text9, &Text16, &Text18, &Text19, &Text20, &Text23,
                &Text24, &Text21, &Text22, &Text4, &Text3});
  estado_.frArriba = 0;
  vaciarTabla();
  Caption = std::string(formatoCaidaInclinada.titulo);
  inhabilitarResultados();
  estado_.esNuevo = true;
  Label41.Caption = "";
  Frame1.Visible = !mnsuper.Checked;
}

void Form1::trasLeer(bool calcula) {
  // a project is always calculated in the subcritical regime, and its window shows that face
  mnsuper.Checked = false;
  if (calcula) Command3_Click();
  mostrarCara();
  tomarTanqueLeido(calcula);
}

}  // namespace calvento
