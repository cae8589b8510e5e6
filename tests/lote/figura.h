#pragma once

#include <algorithm>
#include <cmath>

#include "lote/caso.h"
#include "plataforma/lienzo.h"

namespace calvento::lote {

/// Points are given to a tenth of a millimetre; elevations in 4 bytes are no finer.
inline bool cerca(Punto p, const Json& debe, double dx = 0) {
  constexpr double tolerancia = 1e-3;
  return std::fabs(p.x - dx - debe[0].get<double>()) < tolerancia &&
         std::fabs(p.y - debe[1].get<double>()) < tolerancia;
}

/// An outline, dx further on, against all of its points or against some of them by their number.
inline bool sonLosPuntos(const std::vector<Punto>& son, const Json& deben, double dx = 0) {
  if (son.size() != (deben.is_array() ? deben.size() : deben["de"].get<std::size_t>())) return false;
  for (const auto& [i, punto] : deben.items())
    if (i != "de" && !cerca(son[std::stoul(i)], punto, dx)) return false;
  return true;
}

/// Takes the outline out of those that were found; a failure where it is not among them.
inline void quitar(std::vector<std::vector<Punto>>& hay, const Json& debe, const Json& puntos, double dx = 0) {
  const auto p = std::find_if(hay.begin(), hay.end(), [&](const auto& c) { return sonLosPuntos(c, puntos, dx); });
  if (p == hay.end())
    ADD_FAILURE() << "expected " << debe << ", found nothing like it";
  else
    hay.erase(p);
}

}  // namespace calvento::lote
