#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "comun/numeros.h"

namespace calvento {

/// A chainage as "1+234.50", kilometres and metres.
inline std::string textoEstacion(Real metros) { return formato(metros, "0+000.00"); }

/// Which of n computed stations, counted from 0, a report of the chute shows: every twentieth part from the first one
/// on, so that the last one shown is not the last one computed. Fails where none was computed.
inline std::vector<std::size_t> estacionesDeTabla(std::size_t n) {
  constexpr std::size_t enTabla = 20;
  if (n < enTabla) fallar(Motivo::subindice);
  std::vector<std::size_t> elegidas;
  for (std::size_t i = 0; i < n; i += n / enTabla) elegidas.push_back(i);
  return elegidas;
}

}  // namespace calvento
