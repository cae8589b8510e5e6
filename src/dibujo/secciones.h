#pragma once

#include <functional>
#include <string>
#include <vector>

#include "modelo/design_state.h"

namespace calvento {

/// A cross-section of the structure: bed elevation c, height of the lining H, depth of water y, bottom width b and side
/// slope z; m.
struct DatosSeccion {
  Real c, H, y, b, z;
};

/// A cross-section by its name. Its data are computed when asked for, and may then fail.
struct SeccionNombrada {
  std::string nombre;
  std::function<DatosSeccion()> datos;
};

/// The cross-sections of each structure, downstream. The reaches of a chute are shown with the normal depth of their
/// slopes, not with that of the profile: meant. None for a chute of no reach and for an inclined drop whose canal flows
/// exactly at the critical state.
std::vector<SeccionNombrada> seccionesRapida(const DesignState& estado);
std::vector<SeccionNombrada> seccionesInclinada(const DesignState& estado);
std::vector<SeccionNombrada> seccionesVertical(const DesignState& estado);

}  // namespace calvento
