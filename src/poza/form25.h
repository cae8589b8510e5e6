#pragma once

#include "modelo/design_state.h"
#include "plataforma/control.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana.h"

namespace calvento {

/// Freeboards, transition angle, basin constant and aeration of the vertical drop. Like its twin of the other two
/// structures it computes nothing and is hidden, not unloaded.
class Form25 : public Ventana {
 public:
  Form25(DesignState& estado, Navegador& navegador);

  TextBox Text5{*this, "Text5", "0.20", {"Bordo libre: En canal aguas arriba", "m"}};  ///< freeboard, upstream canal, m
  TextBox Text8{
      *this, "Text8", "0.20", {"Bordo libre: En canal aguas abajo", "m"}};  ///< freeboard, downstream canal, m
  TextBox Text9{*this,
                "Text9",
                "12.5",
                {"Transición de entrada y salida: Ø", "grados", Dominio::positivos}};  ///< transition angle, degrees
  CheckBox Check1{*this, "Check1"};  ///< least height of blocks in force
  TextBox Text11{
      *this,
      "Text11",
      "0.20",
      {"Bloques u Obstáculos: Altura mínima", "m", Dominio::todos, nullptr, false}};  ///< least height of blocks, m
  TextBox Text1{*this,
                "Text1",
                "5",
                {"Longitud de Tanque ó Poza: K, Tanque Rectangular Sin Obstáculos",
                 ""}};  ///< K of the rectangular basin without obstacles

  OptionButton Option3{*this, "Option3", 1, true};  ///< aeration by a lateral contraction
  Label Label4{*this, "Label4", "m"};
  TextBox Text2{
      *this, "Text2", "0.20", {"Contracción Lateral: ancho a cada lado", "m"}};  ///< contraction on each side, m
  OptionButton Option4{*this, "Option4", 1, false};                              ///< aeration by vent pipes
  ComboBox Combo1{*this, "Combo1", {"Tubería de PVC", "Tubería de Fierro"}, 0};
  Label Label27{*this, "Label27", "Long. Tubería: "};
  TextBox Text10{*this, "Text10", "2", {"Agujeros de Ventilación: Long. Tubería", "m"}};  ///< pipe length, m
  Label Label50{*this, "Label50", "m"};
  Label Label52{*this, "Label52", "Diámetro de Tubería:"};
  ComboBox Combo2{*this, "Combo2", {"2", "2.5", "3", "4", "6"}, 0};  ///< pipe diameter, inches
  Label Label53{*this, "Label53", "Pulg."};

  CommandButton Command1{*this, "Command1"};
  CommandButton Command2{*this, "Command2"};

  bool seOculta() const override { return true; }
  CommandButton* botonPredeterminado() override { return &Command1; }

  void Option3_Click();
  void Option4_Click();
  /// As the data window finds it when it loads: pipes disabled, and the record on lateral contraction.
  void prepararVentilacion();

 private:
  void activarTubos(bool activos);

  DesignState& estado_;
};

}  // namespace calvento
