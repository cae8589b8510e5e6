#pragma once

#include "poza/hoja_bloques.h"

namespace calvento {

/// Dimension sheet of the basin SAF. Lengths in m.
class Form23 : public HojaBloques {
 public:
  Form23(const DesignState& estado, const Form2& parametros, Navegador& navegador);

  Label Label3{*this, "Label3"};    ///< number of blocks on the ramp
  Label Label4{*this, "Label4"};    ///< number of blocks on the floor
  Label Label14{*this, "Label14"};  ///< ramp blocks: height
  Label Label8{*this, "Label8"};    ///< length of the top
  Label Label17{*this, "Label17"};  ///< width
  Label Label16{*this, "Label16"};  ///< space between them
  Label Label15{*this, "Label15"};  ///< space at the walls
  Label Label13{*this, "Label13"};  ///< floor blocks: height
  Label Label9{*this, "Label9"};    ///< top width
  Label Label12{*this, "Label12"};  ///< width
  Label Label11{*this, "Label11"};  ///< space between them
  Label Label10{*this, "Label10"};  ///< space at the walls
  Label Label6{*this, "Label6"};    ///< basin length
  Label Label7{*this, "Label7"};    ///< from the ramp to the blocks on the floor
  Label Label5{*this, "Label5"};    ///< height of the end sill
};

}  // namespace calvento
