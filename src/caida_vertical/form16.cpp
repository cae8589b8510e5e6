#include "caida_vertical/form16.h"

#include "comun/numeros.h"
#include "estructura/pasos.h"
#include "hidraulica/solvers.h"
#include "plataforma/campos.h"

namespace calvento {

Form16::Form16(DesignState& estado, Form25& parametros, Dialogos& dialogos, Navegador& navegador)
    : VentanaEstructura(formatoCaidaVertical, estado, parametros, dialogos, navegador), parametros_(parametros) {
  seleccionarAlEnfocar(*this);
  Text23.magnitud.nombre = "Poza: Ancho poza(B)";
  Text5.Change = [this] {
    if (algunoVacio({&Text5, &Text6, &Text7, &Text8, &Text9})) {
      sbStatusBar.Panel1 = "";
      return;
    }
    sugerirAncho([this](Real H) { sbStatusBar.Panel1 = textoAnchoSugerido(estado_.Q, H); });
  };
  Command6.Click = [this] {
    if (algunoVacio({&Text5, &Text6, &Text7, &Text8, &Text9})) return;
    sugerirAncho([this](Real H) { Text23.Text = texto(Round(estado_.Q / caudalUnitario(H), 3)); });
  };
  for (TextBox* campo : {&Text6, &Text7, &Text8, &Text9, &Text23}) campo->Change = [this] { SECONTROL(); };
  Text23.GotFocus = [this] {
    Text23.seleccionarTodo();
    SECONTROL();
  };
  pistaTalud(Text22, "0 < Z2 < 2", "0 < Z2 < 2");
  Option1.Click = [this] { Option1_Click(); };
  Option2.Click = [this] { Option2_Click(); };
  abreResultado(mngrafico, "Form17");
  anotarResultado(mngrafico, "Form18", abre("Form18"));
  abreResultado(mnseccion, "Form24");
  abreResultado(mntanque, "Form26");
  mnparam.Click = abre("Form25");
  // unlike in the other two structures the basin type stays
  Command2.Click = [this] { navegador_.descargar(*this); };
  habilitar({&mngrafico, &mnseccion, &mntanque}, false);
  mostrarSinObstaculos(true);
  parametros_.prepararVentilacion();
}

void Form16::mostrarSinObstaculos(bool sin) {
  Bloques.Visible = !sin;
  Label32.Caption = sin ? "Ld" : "L1+L2";
  Label24.Caption = sin ? "Lr" : "L3";
}

void Form16::Option1_Click() {
  mostrarSinObstaculos(true);
  estado_.tipoTanque = 1;
}

void Form16::Option2_Click() {
  mostrarSinObstaculos(false);
  estado_.tipoTanque = 0;
}

void Form16::sugerirAncho(const std::function<void(Real H)>& mostrar) {
  pasandoFallos([&] {
    DesignState& e = estado_;
    leerCanalArriba();
    e.ynArriba = YNORMAL(e.Q, e.bArriba, e.zArriba, e.nArriba, e.sArriba);
    e.vArriba = e.Q / Seccion{e.bArriba, e.zArriba}.area(e.ynArriba);
    mostrar(energiaEspecifica(e.vArriba, e.ynArriba));
  });
}

void Form16::SECONTROL() {
  DesignState& e = estado_;
  const bool todosVacios =
      vacio(Text5.Text) && vacio(Text6.Text) && vacio(Text7.Text) && vacio(Text8.Text) && vacio(Text9.Text);
  Real B = 0;
  pasandoFallos([&] { B = Val(Text23.Text); });
  if (todosVacios || B == 0) {
    sbStatusBar.Panel1 = "";
    Label48.Caption = "";
    return;
  }
  pasandoFallos([&] { leer(Text5, &DesignState::Q); });
  vistaCanalArriba(true);
  pasandoFallos([&] { sbStatusBar.Panel1 = textoAnchoSugerido(e.Q, energiaEspecifica(e.vArriba, e.ynArriba)); });
  if (!vistaRegimen()) return;
  // the velocity head of the canal is left out of this rise, unlike in the inclined drop
  const Real H = e.ynArriba;
  const Real Ec = vistaEnergiaCritica(B, 0);
  pasandoFallos([&] { Label48.Caption = texto(Round(H - Ec, 3)); });
  pasandoFallos([&] { e.sobreelevacion = Round(H - Ec, 3); });
}

bool Form16::calcular() {
  using D = DesignState;
  leerCanalArriba();
  leer(Text23, &D::bPozaCaida);
  leerCanalAbajo();
  leer(Text2, &D::cotaFin);
  leer(Text4, &D::cotaAbajo);
  leer(Text22, &D::zRampaSalida);
  leer(Text25, &D::progresivaInicio);
  leer(parametros_.Text9, &D::anguloTransicion);
  leer(parametros_.Text1, &D::kLongPoza);
  estado_.longTransVert = parametros_.Option3.Value ? Val(parametros_.Text2.Text) : Real(0);
  return calcularVertical(estado_, parametros_, *this);
}

void Form16::nuevo() {
  // the basin's width goes first: without it the preview stops before it writes into the record, which stays
  vaciarCampos({&Text23, &Text5, &Text25, &Text2, &Text4, &Text6, &Text7, &Text8, &Text9, &Text16, &Text18, &Text19,
                &Text20, &Text22});
  Caption = std::string(formatoCaidaVertical.titulo);
  habilitar({&mngrafico, &mnseccion, &mntanque}, false);
  estado_.esNuevo = true;
  Label41.Caption = "";
  Frame1.Visible = true;
}

void Form16::trasLeer(bool calcula) {
  // the options take what the file says, also where they stood so already
  if (estado_.tipoTransVert == 0) {
    parametros_.Option3.Value = true;
    parametros_.Option3_Click();
  } else if (estado_.tipoTransVert == 1) {
    parametros_.Option4.Value = true;
    parametros_.Option4_Click();
  }
  if (estado_.tipoTanque == 1) Option1.Value = true;
  if (estado_.tipoTanque == 0) Option2.Value = true;
  if (calcula) Command3_Click();
}

}  // namespace calvento
