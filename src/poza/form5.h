#pragma once

#include "poza/hoja_bloques.h"

namespace calvento {

/// Dimension sheet of the basin USBR II. Lengths in m.
class Form5 : public HojaBloques {
 public:
  Form5(const DesignState& estado, const Form2& parametros, Navegador& navegador);

  Label Label14{*this, "Label14"};  ///< number of blocks on the ramp
  Label Label15{*this, "Label15"};  ///< number of blocks on the floor
  Label Label3{*this, "Label3"};    ///< basin length
  Label Label17{*this, "Label17"};  ///< depth of the basin
  Label Label9{*this, "Label9"};    ///< from the ramp to the blocks on the floor
  Label Label10{*this, "Label10"};  ///< ramp blocks: height
  Label Label13{*this, "Label13"};  ///< width
  Label Label12{*this, "Label12"};  ///< space between them
  Label Label11{*this, "Label11"};  ///< space at the walls
  Label Label4{*this, "Label4"};    ///< length of the top
  Label Label5{*this, "Label5"};    ///< top width of the blocks on the floor
  Label Label16{*this, "Label16"};  ///< floor blocks: height
  Label Label6{*this, "Label6"};    ///< space at the walls
  Label Label7{*this, "Label7"};    ///< width
  Label Label8{*this, "Label8"};    ///< space between them
};

}  // namespace calvento
