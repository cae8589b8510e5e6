#pragma once

#include "comun/fallo.h"
#include "plataforma/dialogos.h"

namespace calvento {

/// Runs the calculation of a calculator window. Whatever fails in it ends it with one box; what it had written stays.
template <class Calculo>
void calcularAvisando(Dialogos& dialogos, Calculo&& calculo) {
  try {
    calculo();
  } catch (const FalloAritmetico&) {
    dialogos.fallo("Ingreso de datos incorrectos");
  }
}

}  // namespace calvento
