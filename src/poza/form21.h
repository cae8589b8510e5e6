#pragma once

#include "poza/hoja_bloques.h"

namespace calvento {

/// Dimension sheet of the basin USBR III. Lengths in m.
class Form21 : public HojaBloques {
 public:
  Form21(const DesignState& estado, const Form2& parametros, Navegador& navegador);

  Label Label3{*this, "Label3", "", {"Número de bloques", ""}};                    ///< number of blocks on the ramp
  Label Label4{*this, "Label4", "", {"Número de dientes", ""}};                    ///< number of teeth
  Label Label14{*this, "Label14", "", {"Longitud de la poza", "m"}};               ///< basin length
  Label Label5{*this, "Label5", "", {"Altura del bloque de rampa", "m"}};          ///< ramp blocks: height
  Label Label9{*this, "Label9", "", {"Ancho de bloque", "m"}};                     ///< width
  Label Label8{*this, "Label8", "", {"Espacio entre bloques", "m"}};               ///< space between them
  Label Label7{*this, "Label7", "", {"Espacio entre muro y bloque", "m"}};         ///< space at the walls
  Label Label6{*this, "Label6", "", {"Largo superior del bloque de rampa", "m"}};  ///< length of the top
  Label Label13{*this, "Label13", "", {"Altura del diente", "m"}};                 ///< teeth: height
  Label Label11{*this, "Label11", "", {"Ancho de diente", "m"}};                   ///< width
  Label Label12{*this, "Label12", "", {"Espacio entre dientes", "m"}};             ///< space between them
  Label Label10{*this, "Label10", "", {"Ancho superior del diente", "m"}};         ///< top width
};

}  // namespace calvento
