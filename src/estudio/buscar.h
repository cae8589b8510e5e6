#pragma once

#include <functional>
#include <string>
#include <vector>

#include "estudio/banco.h"
#include "estudio/serie.h"

namespace calvento {

/// A value of the varied input and the result that the design has with it.
struct Hallado {
  std::string texto;  ///< of the field, with no more digits than the result needs
  double resultado;
};

struct Busqueda {
  /// Where the result takes the wanted value, to half a unit of the column's last decimal; in the order of the field.
  std::vector<Hallado> soluciones;
  /// Where there is none: the design whose result comes nearest. Without text and result where no design has that
  /// result at all.
  Hallado cercano;
  /// `sigue` stopped it: beyond the designs looked at there may be a solution, or another one.
  bool detenida = false;
  /// For the user: the first solution, or that there is none and what is nearest, as far as was looked.
  std::string frase;
};

/// The values of the input between both ends of the series for which a result takes the wanted value: the designs of
/// the series, then halving between neighbours on both sides of it. Only numbers can be searched, in a column that is
/// one. `sigue` is asked after each design and stops the search with what there is when it says no.
/// Fails with FalloEstudio as `valores` does, and for a wanted value or a column that is no number.
Busqueda buscar(const Diseno& base, const Entrada& entrada, const Serie& serie, std::size_t columna,
                const std::string& buscado, const std::function<bool()>& sigue = {});

}  // namespace calvento
