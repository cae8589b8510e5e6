#pragma once

#include "plataforma/control.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana.h"

namespace calvento {

/// Freeboards, transition angle and basin constants of the chute and the inclined drop. It computes nothing: the
/// calculations read its fields each time they run. Closing hides it, so its texts serve the whole run.
class Form2 : public Ventana {
 public:
  explicit Form2(Navegador& navegador);

  /// "En canal rápida:" or "En canal de rampa:", by the data window that was loaded last.
  Label Label30{*this, "Label30", "En canal rápida:"};

  TextBox Text5{*this, "Text5", "0.20", {"Bordo libre: En canal aguas arriba", "m"}};  ///< freeboard, upstream canal, m
  TextBox Text6{*this, "Text6", "0.30", {"Bordo libre: En canal rápida", "m"}};        ///< freeboard, chute or ramp, m
  TextBox Text7{*this, "Text7", "0.30", {"Bordo libre: En poza de disipación", "m"}};  ///< freeboard, basin, m
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
  TextBox Text2{*this, "Text2", "6.1", {"Longitud de Tanque ó Poza: K, Tanque USBR - 1", ""}};  ///< K of USBR I
  TextBox Text3{*this, "Text3", "2.8", {"Longitud de Tanque ó Poza: K, Tanque USBR - 2", ""}};  ///< K of USBR II
  TextBox Text4{*this, "Text4", "4.4", {"Longitud de Tanque ó Poza: K, Tanque USBR - 3", ""}};  ///< K of USBR III
  TextBox Text10{
      *this,
      "Text10",
      "6",
      {"Longitud de Tanque ó Poza: K, Tanque Trapezoidal Sin Obstáculos", ""}};  ///< K of the trapezoidal basin

  CommandButton Command1{*this, "Command1"};
  CommandButton Command2{*this, "Command2"};
  CommandButton Command3{*this, "Command3"};

  /// Where the freeboard of `Text6` is: of a chute or of a ramp, by the data window. A text that lives on.
  void nombrarRampa(std::string_view bordoLibre);

  bool seOculta() const override { return true; }
  CommandButton* botonPredeterminado() override { return &Command1; }

 private:
  void Command3_Click();
};

}  // namespace calvento
