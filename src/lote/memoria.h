#pragma once

#include "lote/sesion.h"

namespace calvento::lote {

/// Writes the design report, as its window shows it, with an empty cover. Throws std::runtime_error where it cannot be
/// made or written.
void escribirMemoriaDe(const Sesion& sesion, const Opciones& opciones);

}  // namespace calvento::lote
