#pragma once

#include "modelo/design_state.h"
#include "plataforma/control.h"
#include "plataforma/dialogos.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana.h"

namespace calvento {

/// Calculator of the hydraulic jump in a trapezoidal or rectangular canal. It works on the record itself: a run
/// overwrites what a design left in Q, y1, y2, v1, v2, espejoArriba, espejoAbajo and longRapida.
class Form15 : public Ventana {
 public:
  Form15(DesignState& estado, Dialogos& dialogos, Navegador& navegador);

  // Data
  TextBox Text1{*this, "Text1"};  ///< discharge
  TextBox Text2{*this, "Text2"};  ///< side slope
  TextBox Text3{*this, "Text3"};  ///< bottom width
  TextBox Text4{*this, "Text4"};  ///< upstream depth y1

  // Results
  TextBox Text6{*this, "Text6"};    ///< downstream depth y2
  TextBox Text7{*this, "Text7"};    ///< y2/y1
  TextBox Text8{*this, "Text8"};    ///< length of the jump
  TextBox Text9{*this, "Text9"};    ///< loss of energy
  TextBox Text10{*this, "Text10"};  ///< F1
  TextBox Text11{*this, "Text11"};  ///< F2
  TextBox Text12{*this, "Text12"};  ///< efficiency, percent
  TextBox Text13{*this, "Text13"};  ///< v1
  TextBox Text14{*this, "Text14"};  ///< v2

  Adorno P11{*this, "P11"};  ///< sketch of a trapezoidal section
  Adorno P22{*this, "P22"};  ///< sketch of a rectangular section
  CommandButton Command1{*this, "Command1"};
  Toolbar Toolbar1{*this, "Toolbar1", {"botonimprimir", "botoncopiar"}};

  void Command1_Click();
  void Text2_Change();

  CommandButton* botonPredeterminado() override { return &Command1; }

 private:
  DesignState& estado_;
  Dialogos& dialogos_;
};

}  // namespace calvento
