#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/lienzo.h"

namespace calvento {

/// What a stroke or an area of an icon or a sketch is painted with.
struct Brocha {
  enum class Clase : std::uint8_t { nada, color, mezcla };
  /// One colour of a blend, at a part of the way from `desde` to `hasta`.
  struct Parada {
    double lugar = 0;
    Color color;
  };
  Clase clase = Clase::nada;
  Color color;
  Punto desde, hasta;
  std::vector<Parada> paradas;
};

struct PlumaTrazo {
  enum class Punta : std::uint8_t { recta, redonda, cuadrada };
  enum class Union : std::uint8_t { aguda, redonda, cortada };
  Brocha brocha;
  double ancho = 1;
  Punta punta = Punta::recta;
  Union juntas = Union::aguda;
  std::vector<double> guiones;  ///< lengths of strokes and gaps; none: a line without gaps
};

/// One step of an outline: M move, L line, C cubic with its two handles before the end, Z back to the last move.
struct Paso {
  char orden = 'M';
  std::array<Punto, 3> puntos{};  ///< M and L use the first
};

struct RotuloTrazo {
  enum class Ancla : std::uint8_t { inicio, medio, fin };
  Punto en;  ///< on the base line
  std::string texto;
  std::string familias;  ///< separated by commas, the best first
  Brocha brocha;
  double tamano = 0;
  double giro = 0;  ///< degrees clockwise
  Ancla ancla = Ancla::inicio;
  bool negrita = false;
  bool cursiva = false;
};

/// What paints the strokes of a picture, in the picture's own coordinates (y downwards).
class PintorTrazos {
 public:
  virtual ~PintorTrazos() = default;
  virtual void camino(const std::vector<Paso>& pasos, const Brocha& relleno, const PlumaTrazo& pluma) = 0;
  virtual void rotulo(const RotuloTrazo& rotulo) = 0;
};

/// An icon or a sketch as strokes, which `scripts/trazos` makes of its SVG while building: big-endian, lengths as
/// 4-byte floats, each outline and text with all that it is painted with.
class Trazos {
 public:
  /// The bytes stay where they are and must stay as long as this.
  explicit Trazos(std::string_view datos = {});

  bool valido() const { return !cuerpo_.empty(); }
  /// The size in pixels that the picture was drawn for.
  double ancho() const { return medidas_[0]; }
  double alto() const { return medidas_[1]; }
  /// Its coordinates: left, top, width, height.
  EscalaLienzo caja() const { return {medidas_[2], medidas_[3], medidas_[4], medidas_[5]}; }
  /// Hands over everything in its order. Broken data end the picture there.
  void repetir(PintorTrazos& pintor) const;

 private:
  std::array<double, 6> medidas_{};
  std::string_view cuerpo_;
};

}  // namespace calvento
