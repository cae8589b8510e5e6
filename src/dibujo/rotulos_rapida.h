#pragma once

#include <string>

#include "dibujo/geometria_rapida.h"

namespace calvento {

/// The equation of the trajectory as it is written, and where it begins.
struct RotuloEcuacion {
  std::string texto;
  double x;
};
RotuloEcuacion ecuacionTrayectoria(const GeometriaRapida& g);

}  // namespace calvento
