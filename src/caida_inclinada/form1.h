#pragma once

#include <string>

#include "caida_inclinada/calculo_inclinada.h"
#include "estructura/ventana_tanques.h"

namespace calvento {

/// Data window of the inclined drop. It has two faces, switched by mnsuper: a subcritical canal with a control section
/// at the crest, and a supercritical canal whose outlet level the calculation finds.
class Form1 : public VentanaTanques, private PantallaInclinada {
 public:
  Form1(DesignState& estado, Form2& parametros, Dialogos& dialogos, Navegador& navegador);

  TextBox Text3{
      *this, "Text3", "10", {"k, ahogamiento del resalto", "%", Dominio::noNegativos}};  ///< ahogamiento, percent
  Label Label29{
      *this, "Label29", "", {"Ahogamiento que iguala los niveles de agua a la salida", ""}};  ///< drowning ratio
  Menu mnsuper{*this, "mnsuper"};

  // Layers of the sketch: lines and symbols of the control section and of the supercritical grade
  Adorno LineasControl{*this, "LineasControl"};
  Adorno LineasSuper{*this, "LineasSuper"};
  Label Label62{*this, "Label62", "Sección"};
  Label Label57{*this, "Label57", "de control"};
  Label Label6{*this, "Label6", "Transición"};
  Label Label40{*this, "Label40", "de entrada"};
  Label Label7{*this, "Label7", "Y"};
  Label Label18{*this, "Label18", "c"};
  Label Label19{*this, "Label19", "Δh"};
  Label Label35{*this, "Label35", "Y"};
  Label Label36{*this, "Label36", "n"};
  Label Label45{*this, "Label45", "R"};
  Label Label46{*this, "Label46", "So"};

  void mnsuper_Click();
  void nuevo() override;
  /// Live preview of the rise at the crest. A statement that fails is passed over.
  void SECONTROL();

 private:
  bool calcular() override;
  void trasLeer(bool calcula) override;
  void mostrarCara();
  void mostrarPiezasControl(bool visibles);

  // PantallaInclinada
  Dialogos& dialogos() override { return dialogos_; }
  bool regimenSupercritico() const override { return mnsuper.Checked; }
  void leerSalida() override;
  void vistaControl() override;
  void vistaRapida() override;
  void mostrarSobreelevacion(const std::string& texto) override { Label27.Caption = texto; }
  void mostrarAhogamiento(const std::string& texto) override { Label29.Caption = texto; }
  void mostrarPendienteSalida(const std::string& texto) override { Text20.Text = texto; }
  void mostrarSalida(const std::string& cota, const std::string& ahogamiento) override;
  void habilitarResultados() override;
  void inhabilitarResultados() override;
  Rejilla& tablaTanques() override { return Grid1.tabla; }
};

}  // namespace calvento
