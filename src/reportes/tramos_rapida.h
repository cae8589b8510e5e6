#pragma once

#include <vector>

#include "modelo/design_state.h"

namespace calvento {

/// One reach of the chute in the record.
struct TramoRapida {
  Real S, cotaA, cotaB;
};

/// The reaches from the head down; none where their number is not 1, 2 or 3.
inline std::vector<TramoRapida> tramosRapida(const DesignState& e) {
  switch (e.numTramos) {
    case 1:
      return {{e.sTramo1, e.cotaInicio, e.cotaFin}};
    case 2:
      return {{e.sTramo1, e.cotaInicio, e.cotaTramo2}, {e.sTramo2, e.cotaTramo2, e.cotaFin}};
    case 3:
      return {{e.sTramo1, e.cotaInicio, e.cotaTramo2},
              {e.sTramo2, e.cotaTramo2, e.cotaTramo3},
              {e.sTramo3, e.cotaTramo3, e.cotaFin}};
    default:
      return {};
  }
}

}  // namespace calvento
