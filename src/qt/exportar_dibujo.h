#pragma once

#include <string>

#include "dibujo/svg.h"

namespace calvento {

/// Writes the picture at its own size as SVG, PDF or PNG, by the file's extension (capitals ignored). SVG and PDF are
/// vectors with real text, on a sheet of the picture's size at 96 pixels to the inch; a PNG has three times as many, on
/// the same sheet. `hoja` is what an SVG says of itself. The file appears whole or not at all. Needs no display and no
/// running application.
/// Throws std::runtime_error with a Spanish text (FalloArchivo is one) for an unknown extension and for a file that
/// cannot be written.
void exportarDibujo(const Lienzo& lienzo, const std::string& archivo, const HojaSvg& hoja = {"Calvento", {}});

/// Makes the application object that fonts need, without a display, where there is none; it stays until the program
/// ends.
void asegurarAplicacionGrafica();

}  // namespace calvento
