#pragma once

#include "poza/hoja_bloques.h"

namespace calvento {

/// Dimension sheet of the basin USBR II. Lengths in m.
class Form5 : public HojaBloques {
 public:
  Form5(const DesignState& estado, const Form2& parametros, Navegador& navegador);

  Label Label14{*this, "Label14", "", {"Número de bloques", ""}};        ///< number of blocks on the ramp
  Label Label15{*this, "Label15", "", {"Número de dados", ""}};          ///< number of blocks on the floor
  Label Label3{*this, "Label3", "", {"Longitud de la poza", "m"}};       ///< basin length
  Label Label17{*this, "Label17", "", {"Profundidad de la poza", "m"}};  ///< depth of the basin
  Label Label9{
      *this, "Label9", "", {"Del pie de la rampa a los dados", "m"}};  ///< from the ramp to the blocks on the floor
  Label Label10{*this, "Label10", "", {"Altura del bloque de rampa", "m"}};        ///< ramp blocks: height
  Label Label13{*this, "Label13", "", {"Ancho de bloque", "m"}};                   ///< width
  Label Label12{*this, "Label12", "", {"Espacio entre bloques", "m"}};             ///< space between them
  Label Label11{*this, "Label11", "", {"Espacio entre muro y bloque", "m"}};       ///< space at the walls
  Label Label4{*this, "Label4", "", {"Largo superior del bloque de rampa", "m"}};  ///< length of the top
  Label Label5{*this, "Label5", "", {"Ancho superior del dado", "m"}};    ///< top width of the blocks on the floor
  Label Label16{*this, "Label16", "", {"Altura del dado", "m"}};          ///< floor blocks: height
  Label Label6{*this, "Label6", "", {"Espacio entre muro y dado", "m"}};  ///< space at the walls
  Label Label7{*this, "Label7", "", {"Ancho de dado", "m"}};              ///< width
  Label Label8{*this, "Label8", "", {"Espacio entre dados", "m"}};        ///< space between them
};

}  // namespace calvento
