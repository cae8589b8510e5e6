#pragma once

#include "poza/hoja_bloques.h"

namespace calvento {

/// Dimension sheet of the basin SAF. Lengths in m.
class Form23 : public HojaBloques {
 public:
  Form23(const DesignState& estado, const Form2& parametros, Navegador& navegador);

  Label Label3{*this, "Label3", "", {"Número de bloques", ""}};                    ///< number of blocks on the ramp
  Label Label4{*this, "Label4", "", {"Número de dados", ""}};                      ///< number of blocks on the floor
  Label Label14{*this, "Label14", "", {"Altura del bloque de rampa", "m"}};        ///< ramp blocks: height
  Label Label8{*this, "Label8", "", {"Largo superior del bloque de rampa", "m"}};  ///< length of the top
  Label Label17{*this, "Label17", "", {"Ancho de bloque", "m"}};                   ///< width
  Label Label16{*this, "Label16", "", {"Espacio entre bloques", "m"}};             ///< space between them
  Label Label15{*this, "Label15", "", {"Ancho de la pieza junto al muro", "m"}};   ///< space at the walls
  Label Label13{*this, "Label13", "", {"Altura del dado", "m"}};                   ///< floor blocks: height
  Label Label9{*this, "Label9", "", {"Ancho superior del dado", "m"}};             ///< top width
  Label Label12{*this, "Label12", "", {"Ancho de dado", "m"}};                     ///< width
  Label Label11{*this, "Label11", "", {"Espacio entre dados", "m"}};               ///< space between them
  Label Label10{*this, "Label10", "", {"Espacio entre muro y dado", "m"}};         ///< space at the walls
  Label Label6{*this, "Label6", "", {"Longitud de la poza", "m"}};                 ///< basin length
  Label Label7{
      *this, "Label7", "", {"Del pie de la rampa a los dados", "m"}};   ///< from the ramp to the blocks on the floor
  Label Label5{*this, "Label5", "", {"Altura del umbral final", "m"}};  ///< height of the end sill
};

}  // namespace calvento
