#pragma once

#include <vector>

#include "dibujo/cotas.h"
#include "dibujo/geometria_vertical.h"
#include "dibujo/rotulos.h"
#include "poza/reglas_bloques.h"

// Where the labels and dimensions of the vertical drop stand: the window paints them and the CAD export sends them.

namespace calvento {

/// Stations and elevations of the bed: crest and top of the exit ramp.
std::vector<ParEstacion> paresEstacion(const GeometriaVertical& g);
/// Slope of the upstream canal.
RotuloPendiente pendienteArriba(const GeometriaVertical& g);
/// The whole section from the inlet transition to the end of the outlet transition.
CadenaCotas cadenaSeccion(const GeometriaVertical& g);
/// Depths of the water and of the basin, and the height of the fall.
std::vector<CotaAltura> alturasAcotadas(const GeometriaVertical& g);
/// Half widths between the tops of the walls in plan.
std::vector<AnchoEn> anchosAcotados(const GeometriaVertical& g);

/// Distance of the obstacles from the face, in the plan between axis and lower wall.
Segmento distanciaObstaculos(const GeometriaVertical& g, const ObstaculosCaida& o, double eje);

}  // namespace calvento
