#pragma once

#include <vector>

#include "cad/entidades_dxf.h"

namespace calvento {

/// How a dimension looks: the lines and texts that a viewer shows which does not compute dimensions by itself.
struct DibujoCota {
  std::vector<LineaDxf> lineas;
  std::vector<FlechaDxf> flechas;
  TextoDxf texto;
  PuntoCad enLinea;  ///< end of the dimension line over the second point
  double medida = 0;
};
DibujoCota dibujarCota(const CotaDxf& cota);

}  // namespace calvento
