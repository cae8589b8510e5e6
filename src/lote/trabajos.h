#pragma once

#include <map>
#include <string>
#include <vector>

#include "estudio/estudio.h"
#include "lote/estructuras.h"
#include "lote/opciones.h"

namespace calvento::lote {

/// One design to be calculated: a project and the values that vary in it.
struct Trabajo {
  const std::string& archivo;
  std::vector<Puesto> puestos;
};

/// All designs of a command: each project with all combinations of what varies, the last one fastest.
class Trabajos {
 public:
  /// Fails with OpcionErronea for a name that the structure of a project does not have, a series without values, and
  /// more designs than can be counted.
  explicit Trabajos(const Opciones& opciones);

  std::size_t total() const { return total_; }
  Trabajo operator[](std::size_t i) const;

 private:
  const Opciones& opciones_;
  std::map<const Estructura*, std::vector<Variacion>> variaciones_;
  std::vector<std::size_t> hasta_;  ///< of each project: the number of designs with it and those before
  std::size_t total_ = 0;
};

/// Every name that can be put, with the field's caption, its unit and its window, structure by structure.
std::string listaDeCampos();

}  // namespace calvento::lote
