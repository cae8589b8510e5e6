#pragma once

#include <string>
#include <string_view>

namespace calvento {

/// A quantity as it is read: "1.25 m"; without a blank where it has no unit.
inline std::string conUnidad(std::string valor, std::string_view unidad) {
  return unidad.empty() ? valor : valor.append(" ").append(unidad);
}

/// What stands above a column or beside an axis: "Ancho de base (m)".
inline std::string tituloConUnidad(std::string nombre, std::string_view unidad) {
  return unidad.empty() ? nombre : nombre.append(" (").append(unidad).append(")");
}

}  // namespace calvento
