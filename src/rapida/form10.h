#pragma once

#include "modelo/design_state.h"
#include "modelo/proyecto.h"
#include "plataforma/control.h"
#include "plataforma/dialogos.h"
#include "plataforma/navegador.h"
#include "plataforma/rejilla.h"
#include "plataforma/ventana_datos.h"
#include "poza/form2.h"
#include "rapida/calculo_rapida.h"

namespace calvento {

/// Data window of the chute: reads the fields, starts the calculation, shows results and live hints.
class Form10 : public VentanaDatos, private PantallaRapida {
 public:
  Form10(DesignState& estado, Form2& parametros, Dialogos& dialogos, Navegador& navegador);

  // Upstream canal
  TextBox Text5{*this, "Text5"};  ///< Q
  TextBox Text6{*this, "Text6"};  ///< bArriba
  TextBox Text7{*this, "Text7"};  ///< zArriba
  TextBox Text8{*this, "Text8"};  ///< nArriba
  TextBox Text9{*this, "Text9"};  ///< sArriba
  // Downstream canal
  TextBox Text16{*this, "Text16"};  ///< bAbajo
  TextBox Text18{*this, "Text18"};  ///< zAbajo
  TextBox Text19{*this, "Text19"};  ///< nAbajo
  TextBox Text20{*this, "Text20"};  ///< sAbajo
  // Chute
  TextBox Text10{*this, "Text10"};       ///< bRapida
  TextBox Text11{*this, "Text11"};       ///< zRapida
  TextBox Text12{*this, "Text12"};       ///< nRapida
  TextBox Text13{*this, "Text13"};       ///< sTramo1
  TextBox Text15{*this, "Text15"};       ///< sTramo2
  TextBox Text14{*this, "Text14"};       ///< sTramo3
  TextBox Text17{*this, "Text17", "1"};  ///< numTramos
  UpDown UpDown1{*this, "UpDown1", 1, 3, 1};
  // Basin
  TextBox Text23{*this, "Text23"};         ///< bPoza
  TextBox Text24{*this, "Text24"};         ///< zPoza
  TextBox Text21{*this, "Text21", "2"};    ///< zRampaEntrada
  TextBox Text22{*this, "Text22", "1.5"};  ///< zRampaSalida
  TextBox Text26{*this, "Text26", "10"};   ///< ahogamiento, percent
  // Chainage and elevations
  TextBox Text25{*this, "Text25"};  ///< progresivaInicio
  TextBox Text1{*this, "Text1"};    ///< cotaInicio
  TextBox Text3{*this, "Text3"};    ///< cotaTramo2
  TextBox Text27{*this, "Text27"};  ///< cotaTramo3
  TextBox Text2{*this, "Text2"};    ///< cotaFin
  TextBox Text4{*this, "Text4"};    ///< cotaAbajo

  // Labels of the fields that go with the number of reaches: of the second and third elevation with their units and
  // sketch symbols, and of the second and third slope with their units
  Label Label36{*this, "Label36", "Elev. inicio 2do tramo(m):"};
  Label Label80{*this, "Label80", "Elev. inicio 3er tramo(m):"};
  Label Label46{*this, "Label46", "3"};
  Label Label45{*this, "Label45", "S"};
  Label Label81{*this, "Label81", "S"};
  Label Label82{*this, "Label82", "2"};
  Label Label76{*this, "Label76", "Pendiente tramo 2(S2):"};
  Label Label75{*this, "Label75", "m/m"};
  Label Label79{*this, "Label79", "Pendiente tramo 3(S3):"};
  Label Label78{*this, "Label78", "m/m"};

  // Results
  Frame Frame1{*this, "Frame1"};
  Label Label27{*this, "Label27"};  ///< rise of the control section
  Label Label41{*this, "Label41"};  ///< regime note
  Label Label35{*this, "Label35"};  ///< drowning ratio
  Grid Grid1{*this, "Grid1"};
  StatusBar sbStatusBar{*this, "sbStatusBar"};

  CommandButton Command1{*this, "Command1"};  ///< suggests the chute width
  CommandButton Command6{*this, "Command6"};  ///< suggests the basin width
  CommandButton Command3{*this, "Command3"};
  CommandButton Command2{*this, "Command2"};

  Menu mnnuevo{*this, "mnnuevo"};
  Menu mnabrir{*this, "mnabrir"};
  Menu mnguardar{*this, "mnguardar"};
  Menu mnguardarcomo{*this, "mnguardarcomo"};
  Menu mnimprimir{*this, "mnimprimir"};
  Menu mncopiar{*this, "mncopiar"};
  Menu mncerrar{*this, "mncerrar"};
  Menu mngrafico{*this, "mngrafico"};
  Menu mntperfil{*this, "mntperfil"};
  Menu mnst{*this, "mnst"};
  Menu mntrayectoria{*this, "mntrayectoria"};
  Menu mntabla{*this, "mntabla"};
  Menu mntanque{*this, "mntanque"};
  Menu mnformondas{*this, "mnformondas"};
  Menu mnparam{*this, "mnparam"};
  Toolbar Toolbar1{*this, "Toolbar1", {"nuevo", "abrir", "guardar", "Copiar", "imprimir"}};

  void Command3_Click() override;
  bool calculado() const override { return calculado_; }
  void abrir(const std::string& ruta) override;
  void Abrir_Archivo();
  void nuevo();
  /// Live preview of the rise at the control section. A statement that fails is passed over.
  void SECONTROL() override;

  CommandButton* botonPredeterminado() override { return &Command3; }

 private:
  // PantallaRapida
  Dialogos& dialogos() override { return dialogos_; }
  bool tieneDatosTramo2() const override { return !vacio(Text3.Text) && !vacio(Text15.Text); }
  bool tieneDatosTramo3() const override { return tieneDatosTramo2() && !vacio(Text14.Text) && !vacio(Text27.Text); }
  void mostrarTaludEntrada(const std::string& texto) override { Text21.Text = texto; }
  void mostrarAhogamiento(const std::string& texto) override { Label35.Caption = texto; }
  void habilitarResultados() override;
  void inhabilitarResultados() override;
  Rejilla& tablaTanques() override { return Grid1.tabla; }

  void unirCampos();
  void unirMenus();
  void unirTabla();
  void leerCampos();
  void ACTIVARTRAMOS(int tramos);
  /// A suggested width for the typed discharge, in the status bar.
  void mostrarAncho(const char* rotulo, Real (*ancho)(Real Q));
  void trasLeer();
  void mostrarBloques();

  DesignState& estado_;
  Form2& parametros_;
  Dialogos& dialogos_;
  Navegador& navegador_;
  Proyecto proyecto_;
  bool calculado_ = false;
};

}  // namespace calvento
