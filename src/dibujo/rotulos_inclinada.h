#pragma once

#include <vector>

#include "dibujo/cotas.h"
#include "dibujo/geometria_inclinada.h"
#include "dibujo/rotulos.h"

// Where the labels and dimensions of the inclined drop stand: the window paints them and the CAD export sends them.

namespace calvento {

/// Stations and elevations of the bed: crest, both ends of the slope, top of the exit ramp.
std::vector<ParEstacion> paresEstacion(const GeometriaInclinada& g);
/// Slope of the upstream canal.
RotuloPendiente pendienteArriba(const GeometriaInclinada& g);
/// The whole section from the inlet transition to the end of the outlet transition.
CadenaCotas cadenaSeccion(const GeometriaInclinada& g);
/// Depths of the water and of the basin.
std::vector<CotaAltura> alturasAcotadas(const GeometriaInclinada& g);
/// Half widths between the tops of the walls in plan.
std::vector<AnchoEn> anchosAcotados(const GeometriaInclinada& g);

}  // namespace calvento
