#pragma once

#include <string_view>

namespace calvento {

/// Size of a text in twips in the program's default font, an 8-point sans-serif. The widths come from a fixed table,
/// never from the machine's fonts, since they enter the geometry of the drawings: a drawing is the same everywhere.
int anchoTexto(std::string_view utf8);
int altoTexto();

inline constexpr int twipsPorPixel = 15;  ///< 96 pixels to the inch
inline constexpr int twipsPorPunto = 20;

/// Height of the letters above the base line, and of a whole line of text, in parts of the font size (Arial's).
inline constexpr double ascensoLetra = 0.905;
inline constexpr double celdaLetra = 1.117;

/// The font size in points whose line of text is so many pixels high.
constexpr double puntosDeCelda(double pixeles) { return pixeles / celdaLetra * twipsPorPixel / twipsPorPunto; }

}  // namespace calvento
