#pragma once

#include <string>

#include "memoria/documento.h"

namespace calvento {

/// Writes the report as PDF, HTML or ODT, by the file's extension (capitals ignored). The pictures are vectors in PDF
/// and HTML, and images of 220 dots to the inch in ODT. The file appears whole or not at all. Needs no display and no
/// running application. Throws std::runtime_error with a Spanish text for another extension and for a file that cannot
/// be written.
void escribirMemoria(const Documento& documento, const std::string& archivo);

/// Whether the report can be written under that name, by its extension.
bool esArchivoDeMemoria(const std::string& archivo);

}  // namespace calvento
