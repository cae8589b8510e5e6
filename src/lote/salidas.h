#pragma once

#include <string>

#include "lote/opciones.h"

namespace calvento::lote {

/// The file of one project's results: "{}" in the pattern is the project's name without folder and extension.
std::string archivoDeSalida(const std::string& patron, const std::string& proyecto);

/// Whether the file's name ends as one of those that an output option writes.
bool esDeSalida(const std::string& archivo);

/// Fails with OpcionErronea where an output option names a file of another kind, an input, or a file that another
/// project or option writes too; whatever names and links they go by.
void comprobarSalidas(const Opciones& opciones);

}  // namespace calvento::lote
