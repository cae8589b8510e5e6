#pragma once

#include <string>
#include <string_view>

#include "comun/numeros.h"
#include "plataforma/lienzo.h"
#include "plataforma/medidas.h"

// The labels of the figures. Their offsets are measures of a sample text in twips over a constant, which makes them
// metres: a label keeps its distance in the world whatever the zoom.

namespace calvento {

/// Width of a sample text over a divisor, m.
inline double ancho(std::string_view muestra, double divisor) { return anchoTexto(muestra) / divisor; }
/// Height of a line of text over a divisor, m.
inline double alto(double divisor) { return altoTexto() / divisor; }

/// A value rounded to three decimals, in plain digits.
std::string redondeado(Single valor);
std::string redondeado(double valor);

/// Makes the upright font of the figures current: its height is one of the world, so that texts grow when one zooms
/// in. A canvas without height keeps the size it has.
void letraDerecha(Lienzo& lienzo);
/// The font of rotated labels, of like size; its line height is a whole number of pixels at the canvas's reference
/// height. Its angle is set label by label.
Letra letraGirada(const Lienzo& lienzo);

/// Angles of rotated labels in whole tenths of a degree, counter-clockwise.
inline constexpr double giroVertical = 900;
/// Along a line that falls to the right with a slope.
double giroBaja(double pendiente);
/// Along a line that rises to the right with a slope.
double giroSube(double pendiente);

/// Prints a text with its top-left corner at a point, in the current font.
void rotulo(Lienzo& lienzo, double x, double y, std::string texto);
/// Prints a text turned about its top-left corner. Without a usable angle the label is left out.
void rotuloGirado(Lienzo& lienzo, const Letra& letra, double giro, double x, double y, std::string texto);

/// A point of the bed with its station and elevation written upward, side by side on the point.
struct ParEstacion {
  double x;
  double cota;
  double y;  ///< where both texts begin
};
void parEstacion(Lienzo& lienzo, const Letra& letra, double progresivaInicio, const ParEstacion& par);

/// The slope of a bed, written along it.
struct RotuloPendiente {
  double x;
  double y;
  Single pendiente;
  std::string texto() const { return "s=-" + calvento::texto(pendiente); }
};

/// Title of a part of the sheet, bold and underlined.
void titulo(Lienzo& lienzo, double x, double y, std::string texto);

}  // namespace calvento
