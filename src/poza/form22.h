#pragma once

#include "poza/hoja_bloques.h"

namespace calvento {

/// Dimension sheet of the basin USBR I. Lengths in m.
class Form22 : public HojaBloques {
 public:
  Form22(const DesignState& estado, const Form2& parametros, Navegador& navegador);

  Label Label13{*this, "Label13"};  ///< basin length
  Label Label5{*this, "Label5"};    ///< depth of the basin
  Label Label8{*this, "Label8"};    ///< height of the blocks
  Label Label11{*this, "Label11"};  ///< width of a block
  Label Label9{*this, "Label9"};    ///< space between blocks
  Label Label10{*this, "Label10"};  ///< space at the walls
  Label Label12{*this, "Label12"};  ///< length of the top of a block
  Label Label4{*this, "Label4"};    ///< number of blocks
};

}  // namespace calvento
