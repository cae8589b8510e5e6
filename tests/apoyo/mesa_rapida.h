#pragma once

#include <vector>

#include "apoyo/mesa.h"
#include "rapida/form10.h"

namespace calvento {

/// Sensible data of a chute of three reaches with a rectangular basin; its one warning is the width of the basin.
inline Datos rapidaDeTresTramos() {
  return {{"Text5", "12"},      {"Text6", "3"},       {"Text7", "1.5"},    {"Text8", "0.0225"}, {"Text9", "0.0006"},
          {"Text10", "2.1"},    {"Text11", "0.5"},    {"Text12", "0.015"}, {"Text13", "0.06"},  {"Text15", "0.15"},
          {"Text14", "0.40"},   {"Text17", "3"},      {"Text16", "3.5"},   {"Text18", "1.5"},   {"Text19", "0.0225"},
          {"Text20", "0.0005"}, {"Text23", "2.95"},   {"Text24", "0"},     {"Text25", "15200"}, {"Text1", "420.00"},
          {"Text3", "417.25"},  {"Text27", "410.10"}, {"Text2", "388.75"}, {"Text4", "387.20"}, {"Text21", "2"},
          {"Text22", "1.5"},    {"Text26", "10"}};
}

/// Sensible data of a chute of one reach that calculates without a box but the one of the basin type.
inline Datos rapidaDeUnTramo() {
  return {{"Text5", "1.8"},    {"Text6", "1.20"},  {"Text7", "1"},       {"Text8", "0.015"},   {"Text9", "0.001"},
          {"Text10", "0.95"},  {"Text11", "0"},    {"Text12", "0.015"},  {"Text13", "0.25"},   {"Text15", ""},
          {"Text14", ""},      {"Text17", "1"},    {"Text16", "1.20"},   {"Text18", "1"},      {"Text19", "0.015"},
          {"Text20", "0.001"}, {"Text23", "1.00"}, {"Text24", "0"},      {"Text25", "1250"},   {"Text1", "2534.60"},
          {"Text3", ""},       {"Text27", ""},     {"Text2", "2524.60"}, {"Text4", "2524.10"}, {"Text21", "2"},
          {"Text22", "1.5"},   {"Text26", "10"}};
}

/// The chute window on its table.
template <class Cajas = DialogosGuion>
struct Mesa : MesaDe<Form10, Form2, Cajas> {
  Form2& form2 = this->parametros;
};
using MesaRapida = Mesa<>;

}  // namespace calvento
