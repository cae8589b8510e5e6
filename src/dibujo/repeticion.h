#pragma once

#include <optional>
#include <vector>

#include "dibujo/recorte.h"

namespace calvento {

/// How a line comes on a sheet, in the sheet's units.
struct TrazoHoja {
  Color color;
  double ancho = 1;
  std::vector<double> guiones;  ///< lengths of strokes and gaps; none: a line without gaps
};

struct TextoHoja {
  Punto en;  ///< the top-left corner of the first character, about which the text is turned
  double tamano = 0;
  const PrimTexto& texto;
};

/// What a canvas is repeated on: a screen, a printer, a file. What lies outside the sheet by more than the width of a
/// line never comes, but the sheet has to cut off the rest.
class Papel {
 public:
  virtual ~Papel() = default;
  /// The width that a line of that width gets.
  virtual double ancho(double pedido) const { return pedido; }
  /// A course as it lies best, for a line of that width.
  virtual Puntos ajustados(Puntos puntos, double, bool /*cerrado*/) const { return puntos; }

  virtual void capa(const std::string& /*nombre*/) {}
  virtual void polilinea(const Puntos& puntos, const TrazoHoja& trazo) = 0;
  virtual void rayas(const std::vector<Raya>& rayas, const TrazoHoja& trazo) = 0;
  /// A closed area by the even-odd rule.
  virtual void area(const Puntos& puntos, const TrazoHoja& trazo, std::optional<Color> relleno) = 0;
  /// A whole circle; false where this takes polygons only.
  virtual bool circulo(Punto, double /*radio*/, const TrazoHoja&, std::optional<Color>) { return false; }
  virtual void texto(const TextoHoja& texto) = 0;
};

/// Repeats a picture in a rectangle of the paper: its scale is stretched over the rectangle; texts grow with the
/// rectangle beyond the picture's reference height; line widths, dashes and hatches are those of the picture at its own
/// size, so that they look alike on screen and in a file of any resolution.
void repetir(const Lienzo& lienzo, const Marco& destino, Papel& papel);

}  // namespace calvento
