#pragma once

#include <optional>
#include <vector>

#include "comun/real.h"
#include "modelo/design_state.h"
#include "plataforma/control.h"

// The rules by which the blocks of the basins are sized: one set for the dimension sheets, the drawings and the CAD
// export. After the standard basins of the Bureau of Reclamation (Peterka, "Hydraulic design of stilling basins and
// energy dissipators", Engineering Monograph 25) and of Saint Anthony Falls, in the names and coefficients of the
// program. Lengths in m; a zero depth or width and a count of 0 fail as divisions by zero.

namespace calvento {

/// The least height of blocks: where it is in force, a lower block gets it.
struct MinimoBloques {
  bool activo = false;
  Real alto = 0;
  Real aplicar(Real altura) const { return activo && altura < alto ? alto : altura; }
};
/// As the parameter window has it.
MinimoBloques minimoBloques(const CheckBox& activo, const TextBox& alto);

/// The basins that have blocks, by their rows of the basin table.
enum class Tanque { usbr1 = 2, usbr2 = 3, usbr3 = 4, saf = 5 };
/// The one of a basin type; none for every other value, a broken number too.
std::optional<Tanque> tanqueConBloques(Single tipoTanque);

/// What the rules read of a design.
struct DatosBloques {
  DatosBloques(const DesignState& estado, Real anchoPoza, const MinimoBloques& menor)
      : ancho(anchoPoza), y1(estado.y1), y2(estado.y2), fr1(estado.fr1), longPoza(estado.longPoza), minimo(menor) {}
  Real ancho;  ///< of the basin floor
  Real y1, y2, fr1, longPoza;
  MinimoBloques minimo;
};

/// A row of equal blocks across the basin.
struct HileraBloques {
  Real anchoPoza;  ///< from wall to wall
  Real alto;
  Real numero;  ///< whole, ties to even
  Real ancho;   ///< of one block
  Real hueco;   ///< between two blocks
  Real orilla;  ///< between a wall and the first block
  /// In the place of the first block each wall has a piece of its own: half a block at one, a side space wide at the
  /// other.
  bool piezasEnMuros = false;
};

/// Blocks on the ramp into the basin.
HileraBloques bloquesDeRampa(Tanque tanque, const DatosBloques& datos);
/// Blocks or teeth on the floor; none for USBR I.
std::optional<HileraBloques> bloquesDePiso(Tanque tanque, const DatosBloques& datos);
/// From the foot of the ramp to the blocks on the floor.
Real distanciaBloquesDePiso(Tanque tanque, const DatosBloques& datos);

/// The obstacles of a vertical drop, on the whole width between the walls.
struct ObstaculosCaida {
  HileraBloques hilera;
  Real largo;      ///< along the flow
  Real distancia;  ///< from the face of the drop
};
ObstaculosCaida obstaculosCaida(const DesignState& estado, const MinimoBloques& minimo);

/// Length of the chute block's top, from the foot of the ramp back to the ramp.
inline Real largoBloqueRampa(Real zRampa, Real alto) { return zRampa * alto; }
/// Top width and run of the downstream face of the blocks on the floor, in parts of their height.
inline constexpr double coronaBloquePiso = 0.2;
inline constexpr double taludBloquePiso = 1;

/// Where a block lies across the basin, from the wall on.
struct FranjaBloque {
  Real desde, hasta;
};
/// All blocks of a row. A row of more blocks than anybody builds fails.
std::vector<FranjaBloque> franjas(const HileraBloques& hilera);

}  // namespace calvento
