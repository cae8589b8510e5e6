#pragma once

#include <string>

#include "estructura/ventana_tanques.h"
#include "rapida/calculo_rapida.h"

namespace calvento {

/// Data window of the chute: reads the fields, starts the calculation, shows results and live hints.
class Form10 : public VentanaTanques, private PantallaRapida {
 public:
  Form10(DesignState& estado, Form2& parametros, Dialogos& dialogos, Navegador& navegador);

  // Chute
  TextBox Text10{
      *this, "Text10", "", {"Canal de la rápida: Ancho de base(b)", "m", Dominio::noNegativos, &Text11}};  ///< bRapida
  TextBox Text11{*this, "Text11", "", {"Canal de la rápida: Talud(Z)", "", Dominio::noNegativos}};         ///< zRapida
  TextBox Text12{*this, "Text12", "", {"Canal de la rápida: Rugosidad(n)", "", Dominio::positivos}};       ///< nRapida
  TextBox Text13{
      *this, "Text13", "", {"Canal de la rápida: Pendiente tramo 1(S1)", "m/m", Dominio::positivos}};  ///< sTramo1
  TextBox Text15{
      *this, "Text15", "", {"Canal de la rápida: Pendiente tramo 2(S2)", "m/m", Dominio::positivos}};  ///< sTramo2
  TextBox Text14{
      *this, "Text14", "", {"Canal de la rápida: Pendiente tramo 3(S3)", "m/m", Dominio::positivos}};  ///< sTramo3
  TextBox Text17{*this, "Text17", "1", {"Número de tramos", "", Dominio::positivos}};                  ///< numTramos
  UpDown UpDown1{*this, "UpDown1", 1, 3, 1};
  // Elevations and submergence
  TextBox Text1{*this, "Text1", "", {"Elev. inicio de la rápida", "m"}};  ///< cotaInicio
  TextBox Text3{*this, "Text3", "", {"Elev. inicio 2do tramo", "m"}};     ///< cotaTramo2
  TextBox Text27{*this, "Text27", "", {"Elev. inicio 3er tramo", "m"}};   ///< cotaTramo3
  TextBox Text26{
      *this, "Text26", "10", {"k, ahogamiento del resalto", "%", Dominio::noNegativos}};  ///< ahogamiento, percent

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

  Label Label35{
      *this, "Label35", "", {"Ahogamiento que iguala los niveles de agua a la salida", ""}};  ///< drowning ratio
  CommandButton Command1{*this, "Command1"};  ///< suggests the chute width

  Menu mntperfil{*this, "mntperfil"};
  Menu mntrayectoria{*this, "mntrayectoria"};
  Menu mnformondas{*this, "mnformondas"};

  void nuevo() override;
  /// Live preview of the rise at the control section. A statement that fails is passed over.
  void SECONTROL() override;

 private:
  bool calcular() override;
  void trasLeer(bool calcula) override;
  void antesDeBloques() override;

  // PantallaRapida
  Dialogos& dialogos() override { return dialogos_; }
  bool tieneDatosTramo2() const override { return !algunoVacio({&Text3, &Text15}); }
  bool tieneDatosTramo3() const override { return !algunoVacio({&Text3, &Text15, &Text14, &Text27}); }
  void mostrarTaludEntrada(const std::string& texto) override { Text21.Text = texto; }
  void mostrarAhogamiento(const std::string& texto) override { Label35.Caption = texto; }
  void habilitarResultados() override;
  void inhabilitarResultados() override;
  Rejilla& tablaTanques() override { return Grid1.tabla; }

  void unirCampos();
  void unirMenus();
  void leerCampos();
  void ACTIVARTRAMOS(int tramos);
};

}  // namespace calvento
