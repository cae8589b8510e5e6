#pragma once

#include "modelo/design_state.h"
#include "plataforma/control.h"
#include "plataforma/dialogos.h"
#include "plataforma/lienzo.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana.h"

namespace calvento {

/// Calculator of one trapezoidal section: its elements at a depth, its critical depth, or its normal depth.
class Form14 : public Ventana {
 public:
  Form14(DesignState& estado, Dialogos& dialogos, Navegador& navegador);

  OptionButton Option1{*this, "Option1", 1, false};  ///< elements of the section
  OptionButton Option2{*this, "Option2", 1, false};  ///< critical depth
  OptionButton Option3{*this, "Option3", 1, true};   ///< normal depth

  // Data
  Label Label1{*this, "Label1"};
  Label Label4{*this, "Label4"};
  Label Label5{*this, "Label5"};
  TextBox Text1{*this, "Text1"};  ///< depth, or discharge
  TextBox Text2{*this, "Text2"};  ///< side slope
  TextBox Text3{*this, "Text3"};  ///< bottom width
  TextBox Text4{*this, "Text4"};  ///< Manning n
  TextBox Text5{*this, "Text5"};  ///< bottom slope

  // Results; the captions tell what each field holds in the mode in force
  Label Label6{*this, "Label6"};
  Label Label7{*this, "Label7"};
  Label Label8{*this, "Label8"};
  Label Label10{*this, "Label10"};
  Label Label11{*this, "Label11"};
  Label Label13{*this, "Label13"};
  Label Label14{*this, "Label14"};
  TextBox Text6{*this, "Text6"};
  TextBox Text7{*this, "Text7"};
  TextBox Text8{*this, "Text8"};
  TextBox Text9{*this, "Text9"};    ///< top width
  TextBox Text10{*this, "Text10"};  ///< hydraulic radius
  TextBox Text11{*this, "Text11"};  ///< normal depth
  TextBox Text12{*this, "Text12"};  ///< area
  TextBox Text13{*this, "Text13"};  ///< velocity
  TextBox Text14{*this, "Text14"};  ///< critical slope

  PictureBox P1{*this, "P1", 300, 200};
  CommandButton Command1{*this, "Command1"};
  Toolbar Toolbar1{*this, "Toolbar1", {"botonimprimir", "botoncopiar"}};

  void Command1_Click();

  CommandButton* botonPredeterminado() override { return &Command1; }

 private:
  enum class Modo { parametros, critico, normal };
  void ponerModo(Modo modo);
  void calcularParametros();
  void calcularCritico();
  void calcularNormal();

  DesignState& estado_;
  Dialogos& dialogos_;
};

}  // namespace calvento
