#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "plataforma/color.h"
#include "plataforma/control.h"

namespace calvento {

struct Punto {
  double x = 0;
  double y = 0;
  friend bool operator==(const Punto&, const Punto&) = default;
};

/// Rectangle of world coordinates a canvas shows: top-left corner and size; a vertical axis that runs upward has a
/// negative height.
struct EscalaLienzo {
  double izquierda = 0;
  double arriba = 0;
  double ancho = 1;
  double alto = 1;
  friend bool operator==(const EscalaLienzo&, const EscalaLienzo&) = default;
};

enum class EstiloLinea { solida = 0, guiones = 1, puntos = 2, guionPunto = 3, guionPuntoPunto = 4 };
enum class EstiloRelleno { solido = 0, vacio = 1, cruzadoDiagonal = 7 };

/// The state of the pen when a primitive was drawn.
struct Pluma {
  Color color = color::negro;
  EstiloLinea estilo = EstiloLinea::solida;
  int grosor = 1;  ///< pixels
};
struct Relleno {
  Color color = color::negro;
  EstiloRelleno estilo = EstiloRelleno::vacio;
};
/// Height of a font: in points at the canvas's own size, so that a text grows with the picture.
struct Letra {
  std::string familia = "Arial";
  double puntos = 8;
  bool negrita = false;
  bool subrayada = false;
  double angulo = 0;  ///< degrees counter-clockwise
};

struct PrimLinea {
  Punto a, b;
  Pluma pluma;
};
struct PrimPolilinea {
  std::vector<Punto> puntos;
  Pluma pluma;
};
struct PrimPoligono {
  std::vector<Punto> puntos;  ///< closed by itself
  Pluma pluma;
  Relleno relleno;
};
struct PrimCaja {
  Punto a, b;
  Pluma pluma;
  Relleno relleno;
};
struct PrimCirculo {
  Punto centro;
  double radio = 0;
  Pluma pluma;
  Relleno relleno;
};
/// Text with the top-left corner of its first character at a point.
struct PrimTexto {
  Punto en;
  std::string texto;
  Color color;
  Letra letra;
};
using Primitiva = std::variant<PrimLinea, PrimPolilinea, PrimPoligono, PrimCaja, PrimCirculo, PrimTexto>;

/// A retained picture in world coordinates. It paints nothing: a figure fills it, a painter replays it at any size.
/// A primitive with a coordinate that is not a number is left out, and a polygon point that is not a number repeats
/// the point before it.
class Lienzo {
 public:
  /// Size of the picture's inner area in pixels at its design resolution (15 twips to the pixel).
  Lienzo(int anchoPixeles, int altoPixeles) : anchoPixeles_(anchoPixeles), altoPixeles_(altoPixeles) {}
  int anchoPixeles() const { return anchoPixeles_; }
  int altoPixeles() const { return altoPixeles_; }
  void redimensionar(int anchoPixeles, int altoPixeles);

  /// Top-left corner (x1, y1), bottom-right corner (x2, y2).
  void Scale(double x1, double y1, double x2, double y2);
  double ScaleLeft() const { return escala_.izquierda; }
  double ScaleTop() const { return escala_.arriba; }
  double ScaleWidth() const { return escala_.ancho; }
  double ScaleHeight() const { return escala_.alto; }
  const EscalaLienzo& escala() const { return escala_; }

  void Cls();
  void Line(Punto a, Punto b);
  void Line(Punto a, Punto b, Color color);
  /// From the pen position, which moves on to b.
  void LineA(Punto b);
  void LineA(Punto b, Color color);
  void LineCaja(Punto a, Punto b, Color color);  ///< rectangle filled as FillColor and FillStyle say
  void Circle(Punto centro, double radio);
  void Polygon(std::vector<Punto> puntos);
  void Print(std::string texto);

  double CurrentX = 0;
  double CurrentY = 0;
  Color ForeColor = color::negro;
  Color FillColor = color::negro;
  EstiloRelleno FillStyle = EstiloRelleno::vacio;
  EstiloLinea DrawStyle = EstiloLinea::solida;
  int DrawWidth = 1;
  Letra Font;

  const std::vector<Primitiva>& primitivas() const { return primitivas_; }
  /// Grows by one with each change of the picture, so that a painter can tell whether to repaint.
  std::uint64_t version() const { return version_; }

 private:
  Pluma pluma(Color color) const { return {color, DrawStyle, DrawWidth}; }

  int anchoPixeles_;
  int altoPixeles_;
  EscalaLienzo escala_;
  std::vector<Primitiva> primitivas_;
  std::uint64_t version_ = 0;
};

/// The control that shows a canvas.
class PictureBox : public Control {
 public:
  PictureBox(Ventana& v, std::string_view nombre, int anchoPixeles, int altoPixeles)
      : Control(v, nombre), lienzo(anchoPixeles, altoPixeles) {}
  Lienzo lienzo;
  /// Tells the one that shows it that the picture is ready.
  void cambiado() { disparar(alCambiar); }
  /// Pointer events, in world coordinates.
  std::function<void(Punto)> MouseDown;
  std::function<void(Punto)> MouseMoveEn;
  std::function<void(Punto)> MouseUp;
  /// The box on screen has another inner size, in pixels.
  std::function<void(int ancho, int alto)> Resize;
};

}  // namespace calvento
