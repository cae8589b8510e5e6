#pragma once

#include <string>
#include <vector>

#include "plataforma/lienzo.h"
#include "plataforma/trazos.h"

namespace calvento {

/// What an SVG drawing says of itself, and its size.
struct HojaSvg {
  std::string titulo;
  std::string descripcion;  ///< may be empty
  double ancho = 0;         ///< pixels, 96 to the inch; 0: as the picture
  bool dePagina = false;    ///< an element of a page of HTML: without a prolog, and without names of its own
};

/// The picture as SVG, stretched in its proportions: vectors with real text, each layer a group of its name.
std::string comoSvg(const Lienzo& lienzo, const HojaSvg& hoja);
/// The same as a file, which appears whole or not at all. Throws std::runtime_error with a Spanish text (FalloArchivo
/// is one) where the picture has no size or the file cannot be written.
void guardarSvg(const Lienzo& lienzo, const HojaSvg& hoja, const std::string& archivo);
/// A sketch, with texts upon it in the sketch's coordinates.
std::string comoSvg(const Trazos& trazos, const std::vector<RotuloTrazo>& encima, const HojaSvg& hoja);

}  // namespace calvento
