#pragma once

#include <string>
#include <vector>

#include "dibujo/cotas.h"
#include "dibujo/geometria_rapida.h"
#include "dibujo/rotulos.h"

// Where the labels and dimensions of the chute stand: the window paints them and the CAD export sends them.

namespace calvento {

/// The equation of the trajectory as it is written, and where it begins.
struct RotuloEcuacion {
  std::string texto;
  double x;
};
RotuloEcuacion ecuacionTrayectoria(const GeometriaRapida& g);

/// Stations and elevations of the bed: the control section, the end of each reach, both ends of the ramp into the
/// basin, the top of the ramp out of it.
std::vector<ParEstacion> paresEstacion(const GeometriaRapida& g);

/// Slopes of the upstream canal, and of each reach in its order.
RotuloPendiente pendienteArriba(const GeometriaRapida& g);
std::vector<RotuloPendiente> pendientesTramos(const GeometriaRapida& g);

/// The inlet transition, the whole section, and the plan from the end of the chute on; pie is the lower edge of the
/// plan.
CadenaCotas cadenaEntrada(const GeometriaRapida& g);
CadenaCotas cadenaSeccion(const GeometriaRapida& g);
CadenaCotas cadenaPlanta(const GeometriaRapida& g, double pie);
/// Depths of the water and of the basin; the depth at the end of the chute, which has no room for a line, comes last.
std::vector<CotaAltura> alturasAcotadas(const GeometriaRapida& g);
/// Half widths between the tops of the walls in plan.
std::vector<AnchoEn> anchosAcotados(const GeometriaRapida& g);

}  // namespace calvento
