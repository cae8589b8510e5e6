#include "rapida/form10.h"

#include <array>

#include "comun/numeros.h"
#include "hidraulica/anchos.h"
#include "hidraulica/solvers.h"
#include "plataforma/campos.h"
#include "poza/tabla_tanques.h"

namespace calvento {

Form10::Form10(DesignState& estado, Form2& parametros, Dialogos& dialogos, Navegador& navegador)
    : VentanaDatos("Form10", std::string(formatoRapida.titulo)),
      estado_(estado),
      parametros_(parametros),
      dialogos_(dialogos),
      navegador_(navegador),
      proyecto_(formatoRapida, estado, *this, parametros, dialogos) {
  prepararTablaTanques(Grid1.tabla);
  unirCampos();
  unirMenus();
  unirTabla();
  ACTIVARTRAMOS(1);
  estado_.esNuevo = true;
  inhabilitarResultados();
  parametros_.Label30.Caption = "En canal rápida:";
}

void Form10::unirCampos() {
  seleccionarAlEnfocar(*this);
  Text5.Change = [this] {
    mostrarAncho("Ancho de canal de rápida calculado (b): ", anchoRapida);
    if (!vacio(Text5.Text)) SECONTROL();
  };
  for (TextBox* campo : {&Text6, &Text7, &Text8, &Text9, &Text10, &Text11}) campo->Change = [this] { SECONTROL(); };
  Text10.GotFocus = [this] {
    Text10.seleccionarTodo();
    mostrarAncho("Ancho de canal de rápida calculado (b): ", anchoRapida);
  };
  for (TextBox* campo : {&Text23, &Text24})
    campo->GotFocus = [this, campo] {
      campo->seleccionarTodo();
      mostrarAncho("Ancho de poza calculado (B): ", anchoPoza);
    };
  // the tooltip and the status bar differ on purpose, and neither limits the entry
  Text21.MouseMove = [this] {
    Text21.ToolTipText = "1.5 < Z1 < 2";
    sbStatusBar.Panel1 = "1.5 <= Z1 <= 2";
  };
  Text22.MouseMove = [this] {
    Text22.ToolTipText = "0 < Z2 < 2";
    sbStatusBar.Panel1 = "0 < Z2 < 2";
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
    if (vacio(Text5.Text)) {
      sbStatusBar.Panel1 = "";
      return;
    }
    pasandoFallos([this] {
      estado_.Q = Val(Text5.Text);
      Text10.Text = texto(Round(anchoRapida(estado_.Q), 3));
    });
  };
  Command6.Click = [this] {
    pasandoFallos([this] {
      if (vacio(Text5.Text)) return;
      estado_.Q = Val(Text5.Text);
      Text23.Text = texto(Round(anchoPoza(estado_.Q), 3));
    });
  };
  Command3.Click = [this] { Command3_Click(); };
  Command2.Click = [this] {
    estado_.tipoTanque = 0;
    navegador_.descargar(*this);
  };
}

void Form10::unirMenus() {
  const auto abre = [this](const char* ventana) { return [this, ventana] { navegador_.mostrar(ventana); }; };
  mnnuevo.Click = [this] { nuevo(); };
  mnabrir.Click = [this] { Abrir_Archivo(); };
  mnguardar.Click = [this] { proyecto_.Guardar_Archivo(); };
  mnguardarcomo.Click = [this] { proyecto_.Guardarcomo_Archivo(); };
  mnimprimir.Click = [this] { navegador_.imprimir(*this); };
  mncopiar.Click = [this] { navegador_.copiar(*this); };
  mncerrar.Click = [this] { navegador_.descargar(*this); };
  mngrafico.Click = abre("Form3");
  mntperfil.Click = abre("Form11");
  mnst.Click = abre("Form19");
  mntrayectoria.Click = abre("Form8");
  mntabla.Click = [this] { mostrarBloques(); };
  mntanque.Click = abre("Form13");
  mnformondas.Click = abre("Form6");
  mnparam.Click = abre("Form2");
  Toolbar1.ButtonClick = [this](const std::string& clave) {
    if (clave == "nuevo") nuevo();
    if (clave == "abrir") Abrir_Archivo();
    if (clave == "guardar") proyecto_.Guardar_Archivo();
    if (clave == "Copiar") navegador_.copiar(*this);
    if (clave == "imprimir") navegador_.imprimir(*this);
  };
}

void Form10::unirTabla() {
  Grid1.Click = [this] {
    const MenuBloques bloques = pulsarTabla(Grid1.tabla, Grid1.MouseRow, estado_, parametros_, true);
    if (bloques != MenuBloques::igual) mntabla.Enabled = bloques == MenuBloques::activo;
    Grid1.cambiado();
  };
  Grid1.DblClick = [this] { estado_.tipoTanque = Grid1.MouseRow; };
}

void Form10::mostrarAncho(const char* rotulo, Real (*ancho)(Real Q)) {
  if (vacio(Text5.Text)) {
    sbStatusBar.Panel1 = "";
    return;
  }
  pasandoFallos([&] {
    estado_.Q = Val(Text5.Text);
    sbStatusBar.Panel1 = rotulo + texto(Round(ancho(estado_.Q), 3));
  });
}

void Form10::SECONTROL() {
  DesignState& e = estado_;
  for (const TextBox* campo : {&Text5, &Text6, &Text7, &Text8, &Text9, &Text10, &Text11}) {
    if (!vacio(campo->Text)) continue;
    sbStatusBar.Panel1 = "";
    Label27.Caption = "";
    return;
  }
  pasandoFallos([&] { e.Q = Val(Text5.Text); });
  // this text differs by a little from the one shown while the discharge is typed, on purpose
  pasandoFallos([&] { sbStatusBar.Panel1 = "Ancho canal rápida calculado(b): " + texto(Round(anchoRapida(e.Q), 3)); });
  pasandoFallos([&] { e.bArriba = Val(Text6.Text); });
  pasandoFallos([&] { e.zArriba = Val(Text7.Text); });
  pasandoFallos([&] { e.nArriba = Val(Text8.Text); });
  pasandoFallos([&] { e.sArriba = Val(Text9.Text); });
  pasandoFallos([&] { e.ynArriba = YNORMAL(e.Q, e.bArriba, e.zArriba, e.nArriba, e.sArriba); });
  const Seccion canal{e.bArriba, e.zArriba};
  Real A = 0;
  Real T = 0;
  pasandoFallos([&] { A = canal.area(e.ynArriba); });
  pasandoFallos([&] { e.vArriba = e.Q / A; });
  pasandoFallos([&] { T = canal.espejo(e.ynArriba); });
  pasandoFallos([&] { e.frArriba = e.vArriba / Sqr(gravedad * A / T); });
  if (e.frArriba > 1) {
    Frame1.Visible = false;
    Label41.Caption = "FLUJO SUPER CRITICO, EN CANAL AGUAS ARRIBA";
    return;
  }
  if (!(e.frArriba < 1)) return;
  Frame1.Visible = true;
  Label41.Caption = "";
  Real E1 = 0, z = 0, b = 0, v = 0, E2 = 0;
  pasandoFallos([&] { E1 = e.vArriba * e.vArriba / dosG + e.ynArriba; });
  pasandoFallos([&] { z = Val(Text11.Text); });
  pasandoFallos([&] { b = Val(Text10.Text); });
  pasandoFallos([&] { e.ycControl = YCRITICO(e.Q, b, z); });
  pasandoFallos([&] { A = e.ycControl * (b + z * e.ycControl); });
  pasandoFallos([&] { v = e.Q / A; });
  pasandoFallos([&] { E2 = e.ycControl + v * v / dosG; });
  pasandoFallos([&] { e.sobreelevacion = Round(E1 - E2, 3); });
  pasandoFallos([&] { Label27.Caption = texto(Round(e.sobreelevacion, 3)); });
}

void Form10::leerCampos() {
  DesignState& e = estado_;
  const auto leer = [&](const TextBox& campo, Single DesignState::*valor) { e.*valor = Val(campo.Text); };
  using D = DesignState;
  leer(Text5, &D::Q);
  leer(Text6, &D::bArriba);
  leer(Text7, &D::zArriba);
  leer(Text8, &D::nArriba);
  leer(Text9, &D::sArriba);
  leer(Text10, &D::bRapida);
  leer(Text11, &D::zRapida);
  leer(Text12, &D::nRapida);
  leer(Text13, &D::sTramo1);
  leer(Text15, &D::sTramo2);
  leer(Text14, &D::sTramo3);
  leer(Text16, &D::bAbajo);
  leer(Text18, &D::zAbajo);
  leer(Text19, &D::nAbajo);
  leer(Text20, &D::sAbajo);
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
  e.ahogamiento = Val(Text26.Text) / 100;
  e.numTramos = enteroCorto(Val(Text17.Text));
}

void Form10::Command3_Click() {
  calculado_ = false;
  try {
    leerCampos();
    calculado_ = calcularRapida(estado_, parametros_, *this);
  } catch (const FalloAritmetico& fallo) {
    dialogos_.fallo(std::string(fallo.what()) + ": Ingresar datos correctamente, verificar");
  }
  Grid1.cambiado();
}

void Form10::habilitarResultados() {
  for (Menu* m : {&mngrafico, &mntanque, &mnst, &mntperfil, &mntrayectoria, &mnformondas}) m->Enabled = true;
  mntabla.Enabled = tieneBloques(estado_);
}

void Form10::inhabilitarResultados() {
  for (Menu* m : {&mngrafico, &mntabla, &mntanque, &mnst, &mntperfil, &mntrayectoria, &mnformondas}) m->Enabled = false;
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
  for (TextBox* campo :
       {&Text5,  &Text6,  &Text7,  &Text8,  &Text9,  &Text10, &Text11, &Text12, &Text13, &Text15, &Text14, &Text16,
        &Text18, &Text19, &Text20, &Text23, &Text24, &Text1,  &Text3,  &Text27, &Text2,  &Text4,  &Text25, &Text26})
    campo->Text = "";
  Text17.Text = "1";
  estado_.numTramos = 1;
  ACTIVARTRAMOS(1);
  limpiarTabla(Grid1.tabla);
  Grid1.cambiado();
  Caption = std::string(formatoRapida.titulo);
  inhabilitarResultados();
  estado_.esNuevo = true;
  Label41.Caption = "";
  Frame1.Visible = true;
}

void Form10::Abrir_Archivo() {
  proyecto_.Abrir_Archivo([this] { trasLeer(); });
}

void Form10::abrir(const std::string& ruta) {
  proyecto_.abrir(ruta, [this] { trasLeer(); });
}

void Form10::trasLeer() {
  estado_.numTramos = enteroCorto(Val(Text17.Text));
  ACTIVARTRAMOS(estado_.numTramos);
  Command3_Click();
  const bool deLaTabla = longitudPoza(estado_, parametros_);
  pintarTabla(Grid1.tabla, deLaTabla ? static_cast<int>(estado_.tipoTanque.valor()) : 0);
  Grid1.cambiado();
  if (!deLaTabla) dialogos_.fallo("El proyecto no indica un tipo de tanque de la tabla (1 a 6)");
}

void Form10::mostrarBloques() {
  // the sheets read one width field for both structures that have them
  estado_.bPozaCaida = estado_.bPoza;
  static constexpr std::array hojas = {"Form22", "Form5", "Form21", "Form23"};
  if (tieneBloques(estado_)) navegador_.mostrar(hojas[static_cast<std::size_t>(estado_.tipoTanque.valor()) - 2]);
}

}  // namespace calvento
