#pragma once

#include <span>
#include <vector>

#include "plataforma/lienzo.h"

// The dimension lines of the figures, drawn in ForeColor. Lengths in world metres.

namespace calvento {

/// Length of an arrow head along its dimension line, m.
inline constexpr double largoFlecha = 0.05;
/// The line of a chain of dimensions lies so far under its base, m.
inline constexpr double nivelCadena = 0.4;
/// Half the size of the mark on a control point, m.
inline constexpr double medioPuntoControl = 0.02;

/// Arrow head at a point of a horizontal dimension line; its two strokes lie to the right of the point (sentido 1) or
/// to the left (-1).
void flechaHorizontal(Lienzo& lienzo, Punto p, int sentido, double largo = largoFlecha);
/// The same on a vertical dimension line: strokes above the point (1) or below it (-1).
void flechaVertical(Lienzo& lienzo, Punto p, int sentido, double largo = largoFlecha);

/// A chain of horizontal dimensions under an elevation.
struct CadenaCotas {
  double base = 0;              ///< elevation the extension ticks begin under
  double desde = 0, hasta = 0;  ///< ends of the dimension line, with single arrows on their inner sides
  std::vector<double> marcas;   ///< stations with an extension tick
  std::vector<double> dobles;   ///< stations with arrows on both sides
};
void cadenaCotas(Lienzo& lienzo, const CadenaCotas& cadena);

/// A height to be dimensioned at a station.
struct CotaAltura {
  double x;
  double abajo;
  double arriba;
};

/// A vertical dimension with arrows at both ends and its line split round the label.
void cotaVertical(Lienzo& lienzo, double x, double abajo, double arriba, double largo = largoFlecha);
void cotasVerticales(Lienzo& lienzo, std::span<const CotaAltura> alturas);
/// The arrows of a vertical dimension without its line.
void flechasVerticales(Lienzo& lienzo, double x, double abajo, double arriba, double largo = largoFlecha);

/// Head of a leader at a point: fi is the angle of the leader, degrees.
void flechaGuia(Lienzo& lienzo, Punto p, double fi);

}  // namespace calvento
