#pragma once

#include "apoyo/mesa.h"
#include "caida_vertical/form16.h"

namespace calvento {

/// A lateral canal's drop that calculates without a box under both options.
inline Datos verticalDeLateral() {
  return {{"Text5", "1"},    {"Text25", "1405"},  {"Text2", "512.30"},  {"Text4", "511.10"}, {"Text22", "0"},
          {"Text6", "0.90"}, {"Text7", "1"},      {"Text8", "0.015"},   {"Text9", "0.001"},  {"Text16", "1.20"},
          {"Text18", "1"},   {"Text19", "0.017"}, {"Text20", "0.0008"}, {"Text23", "1.25"}};
}

template <class Cajas = DialogosGuion>
using MesaVerticalDe = MesaDe<Form16, Form25, Cajas>;

}  // namespace calvento
