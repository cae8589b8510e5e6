#pragma once

#include <string>

#include "lote/sesion.h"

namespace calvento::lote {

/// Writes the structure's drawing, as its window shows it in that view. Throws OpcionErronea for a view that the
/// structure does not have, std::runtime_error where the drawing cannot be made or written.
void exportarDibujoDe(Sesion& sesion, const Opciones& opciones);

/// Writes the structure's CAD export with the options that its window opens with. Throws std::runtime_error where it
/// cannot be made or written.
void exportarDxfDe(Sesion& sesion, const Opciones& opciones);

}  // namespace calvento::lote
