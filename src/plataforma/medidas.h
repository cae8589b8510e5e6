#pragma once

#include <string_view>

namespace calvento {

/// Size of a text in twips in the program's default font, an 8-point sans-serif. The widths come from a fixed table,
/// never from the machine's fonts, since they enter the geometry of the drawings: a drawing is the same everywhere.
int anchoTexto(std::string_view utf8);
int altoTexto();

}  // namespace calvento
