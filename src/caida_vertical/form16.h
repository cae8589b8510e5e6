#pragma once

#include <string>

#include "caida_vertical/calculo_vertical.h"
#include "estructura/ventana_estructura.h"
#include "poza/form25.h"

namespace calvento {

/// Data window of the vertical drop, with two options in place of a basin table.
class Form16 : public VentanaEstructura, private PantallaVertical {
 public:
  Form16(DesignState& estado, Form25& parametros, Dialogos& dialogos, Navegador& navegador);

  TextBox Text22{*this, "Text22", "0", {"Rampa de salida: Talud", "", Dominio::noNegativos}};  ///< zRampaSalida
  OptionButton Option1{*this, "Option1", 1, true};                                             ///< without obstacles
  OptionButton Option2{*this, "Option2", 1, false};                                            ///< with obstacles
  Label Label48{
      *this, "Label48", "", {"Sobre elevación en la sección de control", "m"}};  ///< rise of the control section
  Menu mnseccion{*this, "mnseccion"};

  // The sketch: the row of blocks, and the two lengths that are named by the option
  Adorno Bloques{*this, "Bloques"};
  Label Label32{*this, "Label32", "Ld"};
  Label Label24{*this, "Label24", "Lr"};

  void nuevo() override;
  /// Live preview of the rise at the crest. A statement that fails is passed over.
  void SECONTROL();

 private:
  bool calcular() override;
  void trasLeer(bool calcula) override;
  void Option1_Click();
  void Option2_Click();
  void mostrarSinObstaculos(bool sin);
  void sugerirAncho(const std::function<void(Real ancho)>& mostrar);

  // PantallaVertical
  Dialogos& dialogos() override { return dialogos_; }
  bool sinObstaculos() const override { return Option1.Value; }
  void mostrarAnchoSugerido(const std::string& texto) override { sbStatusBar.Panel1 = texto; }
  void habilitarResultados() override { habilitar({&mngrafico, &mnseccion, &mntanque}, true); }
  void inhabilitarGraficoYTanque() override { habilitar({&mngrafico, &mntanque}, false); }

  Form25& parametros_;
};

}  // namespace calvento
