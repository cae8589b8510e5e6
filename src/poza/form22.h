#pragma once

#include "poza/hoja_bloques.h"

namespace calvento {

/// Dimension sheet of the basin USBR I. Lengths in m.
class Form22 : public HojaBloques {
 public:
  Form22(const DesignState& estado, const Form2& parametros, Navegador& navegador);

  Label Label13{*this, "Label13", "", {"Longitud de la poza", "m"}};              ///< basin length
  Label Label5{*this, "Label5", "", {"Profundidad de la poza", "m"}};             ///< depth of the basin
  Label Label8{*this, "Label8", "", {"Altura del bloque", "m"}};                  ///< height of the blocks
  Label Label11{*this, "Label11", "", {"Ancho de bloque", "m"}};                  ///< width of a block
  Label Label9{*this, "Label9", "", {"Espacio entre bloques", "m"}};              ///< space between blocks
  Label Label10{*this, "Label10", "", {"Espacio entre muro y bloque", "m"}};      ///< space at the walls
  Label Label12{*this, "Label12", "", {"Largo del bloque sobre la rampa", "m"}};  ///< length of the top of a block
  Label Label4{*this, "Label4", "", {"Número de bloques", ""}};                   ///< number of blocks
};

}  // namespace calvento
