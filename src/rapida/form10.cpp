#include "rapida/form10.h"

#include "comun/numeros.h"
#include "estructura/pasos.h"
#include "hidraulica/anchos.h"
#include "plataforma/campos.h"

namespace calvento {

Form10::Form10(DesignState& estado, Form2& parametros, Dialogos& dialogos, Navegador& navegador)
    : VentanaTanques(formatoRapida, estado, parametros, dialogos, navegador, "Bordo libre: En canal rápida", true) {
  unirCampos();
  unirMenus();
  ACTIVARTRAMOS(1);
  inhabilitarResultados();
}

void Form10::unirCampos() {
  seleccionarAlEnfocar(*this);
  Text2.magnitud.nombre = "Elev. inicio de trayectoria";
  const auto pistaRapida = [this] { mostrarAncho("Ancho de canal de rápida calculado (b): ", anchoRapida); };
  Text5.Change = [this, pistaRapida] {
    pistaRapida();
    if (vacio(Text5.Text))
      Label27.Caption = "";
    else
      SECONTROL();
  };
  for (TextBox* campo : {&Text6, &Text7, &Text8, &Text9, &Text10, &Text11}) campo->Change = [this] { SECONTROL(); };
  Text10.GotFocus = [this, pistaRapida] {
    Text10.seleccionarTodo();
    pistaRapida();
  };
  for (TextBox* campo : {&Text23, &Text24})
    campo->GotFocus = [this, campo] {
      campo->seleccionarTodo();
      mostrarAncho("Ancho de poza calculado (B): ", anchoPoza);
    };
  // a typed number of reaches opens its fields at once; the record takes it when the calculation reads it
  Text17.Change = [this] {
    pasandoFallos([this] {
      const int tramos = enteroCorto(Val(Text17.Text));
      if (tramos >= 1 && tramos <= 3) UpDown1.Value = tramos;
      ACTIVARTRAMOS(tramos);
    });
  };
  UpDown1.UpClick = UpDown1.DownClick = [this] {
    Text17.Text = texto(UpDown1.Value);
    estado_.numTramos = enteroCorto(Val(Text17.Text));
    ACTIVARTRAMOS(estado_.numTramos);
  };
  Command1.Click = [this] {
    if (vacio(Text5.Text)) sbStatusBar.Panel1 = "";
    ponerAncho(Text10, anchoRapida);
  };
  Command6.Click = [this] { ponerAncho(Text23, anchoPoza); };
}

void Form10::unirMenus() {
  abreResultado(mngrafico, "Form3");
  anotarResultado(mngrafico, "Form12", abre("Form12"));
  abreResultado(mntperfil, "Form11");
  abreResultado(mnst, "Form19");
  abreResultado(mntrayectoria, "Form8");
  abreResultado(mntanque, "Form13");
  abreResultado(mnformondas, "Form6");
}

void Form10::SECONTROL() {
  DesignState& e = estado_;
  if (algunoVacio({&Text5, &Text6, &Text7, &Text8, &Text9, &Text10, &Text11})) {
    sbStatusBar.Panel1 = "";
    Label27.Caption = "";
    return;
  }
  pasandoFallos([&] { leer(Text5, &DesignState::Q); });
  // this text differs by a little from the one shown while the discharge is typed, on purpose
  pasandoFallos([&] { sbStatusBar.Panel1 = "Ancho canal rápida calculado(b): " + texto(Round(anchoRapida(e.Q), 3)); });
  vistaCanalArriba(true);
  if (!vistaRegimen()) return;
  Real E1 = 0, z = 0, b = 0;
  pasandoFallos([&] { E1 = energiaEspecifica(e.vArriba, e.ynArriba); });
  pasandoFallos([&] { z = Val(Text11.Text); });
  pasandoFallos([&] { b = Val(Text10.Text); });
  const Real E2 = vistaEnergiaCritica(b, z);
  pasandoFallos([&] { e.sobreelevacion = Round(E1 - E2, 3); });
  pasandoFallos([&] { Label27.Caption = texto(Round(e.sobreelevacion, 3)); });
}

void Form10::leerCampos() {
  using D = DesignState;
  leerCanalArriba();
  leer(Text10, &D::bRapida);
  leer(Text11, &D::zRapida);
  leer(Text12, &D::nRapida);
  leer(Text13, &D::sTramo1);
  leer(Text15, &D::sTramo2);
  leer(Text14, &D::sTramo3);
  leerCanalAbajo();
  leer(Text23, &D::bPoza);
  leer(Text24, &D::zPoza);
  leer(Text1, &D::cotaInicio);
  leer(Text3, &D::cotaTramo2);
  leer(Text27, &D::cotaTramo3);
  leer(Text2, &D::cotaFin);
  leer(Text4, &D::cotaAbajo);
  leer(Text21, &D::zRampaEntrada);
  leer(Text22, &D::zRampaSalida);
  leer(parametros_.Text9, &D::anguloTransicion);
  leer(Text25, &D::progresivaInicio);
  estado_.ahogamiento = Val(Text26.Text) / 100;
  estado_.numTramos = enteroCorto(Val(Text17.Text));
}

bool Form10::calcular() {
  leerCampos();
  return calcularRapida(estado_, parametros_, *this);
}

void Form10::habilitarResultados() {
  habilitar({&mngrafico, &mntanque, &mnst, &mntperfil, &mntrayectoria, &mnformondas}, true);
  mntabla.Enabled = tieneBloques(estado_);
}

void Form10::inhabilitarResultados() {
  habilitar({&mngrafico, &mntabla, &mntanque, &mnst, &mntperfil, &mntrayectoria, &mnformondas}, false);
}

void Form10::ACTIVARTRAMOS(int tramos) {
  if (tramos < 1 || tramos > 3) return;
  const auto activar = [](bool activo, std::initializer_list<TextBox*> campos, std::initializer_list<Label*> rotulos) {
    for (TextBox* campo : campos) {
      campo->Enabled = activo;
      campo->BackColor = activo ? color::ventana : color::caraBoton;
    }
    for (Label* rotulo : rotulos) rotulo->ForeColor = activo ? color::textoBoton : color::textoGris;
  };
  activar(tramos >= 2, {&Text15, &Text3}, {&Label36, &Label81, &Label82, &Label76, &Label75});
  activar(tramos >= 3, {&Text14, &Text27}, {&Label79, &Label78, &Label80, &Label45, &Label46});
}

void Form10::nuevo() {
  // the ramp slopes keep their texts, and the submergence goes empty, not back to its default
  vaciarCampos({&Text5,  &Text6,  &Text7,  &Text8,  &Text9,  &Text10, &Text11, &Text12,
                &Text13, &Text15, &Text14, &Text16, &Text18, &Text19, &Text20, &Text23,
                &Text24, &Text1,  &Text3,  &Text27, &Text2,  &Text4,  &Text25, &Text26});
  Text17.Text = "1";
  estado_.numTramos = 1;
  ACTIVARTRAMOS(1);
  vaciarTabla();
  Caption = std::string(formatoRapida.titulo);
  inhabilitarResultados();
  estado_.esNuevo = true;
  Label41.Caption = "";
  Frame1.Visible = true;
}

void Form10::trasLeer(bool calcula) {
  estado_.numTramos = enteroCorto(Val(Text17.Text));
  ACTIVARTRAMOS(estado_.numTramos);
  if (calcula) Command3_Click();
  tomarTanqueLeido(calcula);
}

void Form10::antesDeBloques() {
  // the sheets read one width field for both structures that have them
  estado_.bPozaCaida = estado_.bPoza;
}

}  // namespace calvento
