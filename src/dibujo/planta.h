#pragma once

#include "modelo/design_state.h"

namespace calvento {

/// The plan of a figure: the widest water surface, and the world Y of its axis above the highest point of the section,
/// m.
struct Planta {
  Single anchoMaximo;
  Single eje;
};
/// All fail as the arithmetic does.
Planta plantaRapida(const DesignState& estado);
Planta plantaInclinada(const DesignState& estado);
Planta plantaVertical(const DesignState& estado);

}  // namespace calvento
