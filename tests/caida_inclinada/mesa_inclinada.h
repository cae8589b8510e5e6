#pragma once

#include "apoyo/mesa.h"
#include "caida_inclinada/form1.h"

namespace calvento {

/// A lateral canal's drop that calculates without a box once a basin type is chosen.
inline Datos inclinadaSubcritica() {
  return {{"Text5", "1.5"},   {"Text2", "1820.40"}, {"Text25", "3150"}, {"Text21", "2"},     {"Text22", "1.5"},
          {"Text4", "1818"},  {"Text3", "10"},      {"Text6", "1.10"},  {"Text7", "1"},      {"Text8", "0.015"},
          {"Text9", "0.001"}, {"Text16", "1.10"},   {"Text18", "1"},    {"Text19", "0.015"}, {"Text20", "0.001"},
          {"Text23", "1.35"}, {"Text24", "0"}};
}

/// A steep canal whose outlet the supercritical regime finds.
inline Datos inclinadaRapida() {
  return {{"Text5", "0.5"},   {"Text2", "985.00"}, {"Text25", "1210"}, {"Text21", "2"},     {"Text22", "1.5"},
          {"Text4", "983"},   {"Text3", "10"},     {"Text6", "0.80"},  {"Text7", "0"},      {"Text8", "0.015"},
          {"Text9", "0.04"},  {"Text16", "0.80"},  {"Text18", "0"},    {"Text19", "0.015"}, {"Text20", "0.01"},
          {"Text23", "0.80"}, {"Text24", "0"}};
}

template <class Cajas = DialogosGuion>
using MesaInclinadaDe = MesaDe<Form1, Form2, Cajas>;
using MesaInclinada = MesaInclinadaDe<>;

}  // namespace calvento
