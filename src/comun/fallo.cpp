#include "comun/fallo.h"

namespace calvento {

namespace {

const char* textoDe(Motivo motivo) {
  switch (motivo) {
    case Motivo::divisionPorCero:
      return "División por cero";
    case Motivo::desbordamiento:
      return "Desbordamiento: el número es demasiado grande";
    case Motivo::argumentoNoValido:
      return "Raíz o potencia de un número negativo";
    case Motivo::sinConvergencia:
      return "Cálculo sin convergencia";
    case Motivo::subindice:
      return "Subíndice fuera del intervalo";
  }
  return "Fallo aritmético";
}

}  // namespace

FalloAritmetico::FalloAritmetico(Motivo motivo) : std::runtime_error(textoDe(motivo)), motivo_(motivo) {}

void fallar(Motivo motivo) { throw FalloAritmetico(motivo); }

}  // namespace calvento
