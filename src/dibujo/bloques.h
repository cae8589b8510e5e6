#pragma once

#include <vector>

#include "dibujo/geometria_poza.h"
#include "poza/reglas_bloques.h"

// The blocks of the basins in section and plan, in world metres. The window paints them and the CAD export sends them.

namespace calvento {

/// Opposite corners of a block in plan.
struct CajaPlanta {
  Punto a, b;
};
/// One row of blocks.
struct HileraDibujada {
  std::vector<Punto> seccion;  ///< closed outline
  std::vector<CajaPlanta> planta;
};

/// The blocks of the basin type in force about the plan's axis `eje`, on a floor of that width: none, the row on the
/// ramp, or that one and the row on the floor. A row that cannot be computed is left out.
std::vector<HileraDibujada> bloquesDePoza(const Valores& v, const EstacionesPoza& p, Single anchoPoza, double eje,
                                          const MinimoBloques& minimo);

/// The row of obstacles of a vertical drop; none where it has none.
std::vector<HileraDibujada> bloquesDeCaida(const Valores& v, double eje, const MinimoBloques& minimo);

/// Paints rows of blocks, light grey.
void pintarBloques(Lienzo& lienzo, const std::vector<HileraDibujada>& hileras);

}  // namespace calvento
