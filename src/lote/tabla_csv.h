#pragma once

#include <string>
#include <vector>

#include "lote/sesion.h"

namespace calvento::lote {

/// The table of --csv: a line of titles, and one for each design. Its columns are those of all structures of the
/// command, whatever each design has.
class TablaCsv {
 public:
  explicit TablaCsv(const Opciones& opciones);

  /// Names of the record with their units.
  std::string titulos() const;
  std::string linea(const Sesion& sesion) const;
  /// The same for a project that could not be treated at all.
  std::string linea(const std::string& archivo, const std::string& fallo) const;

 private:
  struct Titulo {
    std::string nombre, unidad;
  };
  static void anadir(std::vector<Titulo>& titulos, std::string nombre, std::string_view unidad);

  std::vector<Titulo> puestos_, resultados_;
};

}  // namespace calvento::lote
