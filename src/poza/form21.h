#pragma once

#include "poza/hoja_bloques.h"

namespace calvento {

/// Dimension sheet of the basin USBR III. Lengths in m.
class Form21 : public HojaBloques {
 public:
  Form21(const DesignState& estado, const Form2& parametros, Navegador& navegador);

  Label Label3{*this, "Label3"};    ///< number of blocks on the ramp
  Label Label4{*this, "Label4"};    ///< number of teeth
  Label Label14{*this, "Label14"};  ///< basin length
  Label Label5{*this, "Label5"};    ///< ramp blocks: height
  Label Label9{*this, "Label9"};    ///< width
  Label Label8{*this, "Label8"};    ///< space between them
  Label Label7{*this, "Label7"};    ///< space at the walls
  Label Label6{*this, "Label6"};    ///< length of the top
  Label Label13{*this, "Label13"};  ///< teeth: height
  Label Label11{*this, "Label11"};  ///< width
  Label Label12{*this, "Label12"};  ///< space between them
  Label Label10{*this, "Label10"};  ///< top width
};

}  // namespace calvento
