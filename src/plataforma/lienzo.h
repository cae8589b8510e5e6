#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "plataforma/color.h"
#include "plataforma/control.h"
#include "plataforma/oyente.h"

namespace calvento {

struct Punto {
  double x = 0;
  double y = 0;
  friend bool operator==(const Punto&, const Punto&) = default;
};

/// A coordinate that could not be computed: what a figure hands over in the place of a failed value.
inline constexpr double sinValor = std::numeric_limits<double>::quiet_NaN();

/// Gives each coordinate that is not a finite number the one of the point before it, and at the head the first usable
/// one, so that an outline never changes its number of points. False where all points lack a coordinate.
bool completar(std::vector<Punto>& puntos);

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
struct Letra {
  std::string familia = "Arial";
  /// Size in points (96 pixels to the inch) where the picture stands at its reference height; in a picture of twice the
  /// height the text is twice as large.
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

/// From the primitive of that number on, a picture is this part of the drawing.
struct CapaLienzo {
  std::size_t desde = 0;
  std::string nombre;
};

/// The place of the pen in world coordinates and how it draws, fills and writes.
struct EstadoPluma {
  double CurrentX = 0;
  double CurrentY = 0;
  Color ForeColor = color::negro;
  Color FillColor = color::negro;
  EstiloRelleno FillStyle = EstiloRelleno::vacio;
  EstiloLinea DrawStyle = EstiloLinea::solida;
  int DrawWidth = 1;
  Letra Font;
};

/// A retained picture in world coordinates. It paints nothing: a figure fills it, a painter replays it at any size. It
/// tells its listener of every change.
/// What cannot be computed (a coordinate that is not a finite number) is passed over as a failed statement is: a line,
/// box, circle or text without a usable coordinate is left out and the pen stays; each coordinate of a polygon point
/// that has no value keeps the one of the point before it, so that a polygon never changes its number of points.
class Lienzo : public EstadoPluma {
 public:
  /// Size of the picture's inner area in pixels at its design resolution (15 twips to the pixel). The height given
  /// here is also the reference height of the texts.
  Lienzo(int anchoPixeles, int altoPixeles)
      : anchoPixeles_(anchoPixeles), altoPixeles_(altoPixeles), altoReferencia_(altoPixeles) {}
  int anchoPixeles() const { return anchoPixeles_; }
  int altoPixeles() const { return altoPixeles_; }
  /// Gives the picture another size. Its texts grow with its height; lines and hatches keep their pixels.
  void redimensionar(int anchoPixeles, int altoPixeles);
  /// The height in pixels at which a point of text is a point.
  int altoReferencia() const { return altoReferencia_; }
  /// Another size at which texts keep theirs, as those of a ruler do.
  void redimensionarSinCrecer(int anchoPixeles, int altoPixeles);

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
  /// One line through all points; a point without a usable coordinate is left out. The pen moves on to the last one.
  void Polyline(std::vector<Punto> puntos);
  void Polyline(std::vector<Punto> puntos, Color color);
  void Circle(Punto centro, double radio);  ///< the radius in units of the horizontal axis
  void Polygon(std::vector<Punto> puntos);
  /// A text with the top-left corner of its first character at CurrentX, CurrentY.
  void Print(std::string texto);

  /// The state of the pen and its place, to be put back later.
  EstadoPluma estadoPluma() const { return *this; }
  void fijarEstadoPluma(const EstadoPluma& estado) { static_cast<EstadoPluma&>(*this) = estado; }

  const std::vector<Primitiva>& primitivas() const { return primitivas_; }
  /// What is drawn from now on belongs to the layer of that name, until another one is named.
  void capa(std::string_view nombre) { capa_ = nombre; }
  /// The layers that hold something, in the order of the picture.
  const std::vector<CapaLienzo>& capas() const { return capas_; }
  /// Hands every text to `cambiar`, which may alter it; a text for which that is false is taken out.
  template <class Cambio>
  void cambiarTextos(Cambio&& cambiar) {
    std::vector<Primitiva> quedan;
    quedan.reserve(primitivas_.size());
    auto capa = capas_.begin();
    for (std::size_t i = 0; i < primitivas_.size(); ++i) {
      for (; capa != capas_.end() && capa->desde == i; ++capa) capa->desde = quedan.size();
      Primitiva& p = primitivas_[i];
      if (auto* texto = std::get_if<PrimTexto>(&p); texto == nullptr || cambiar(*texto)) quedan.push_back(std::move(p));
    }
    primitivas_ = std::move(quedan);
    ++version_;
  }
  /// Grows by one with each change of the picture, so that a painter can tell whether to repaint.
  std::uint64_t version() const { return version_; }
  /// Calls that function with each change from now on; empty: none.
  void alCambiar(std::function<void()> oyente) { oyente_.poner(std::move(oyente)); }

 private:
  void moverA(Punto p);
  void anadir(Primitiva p);
  void cambiar();
  Pluma pluma(Color color) const { return {color, DrawStyle, DrawWidth}; }

  int anchoPixeles_;
  int altoPixeles_;
  int altoReferencia_;
  EscalaLienzo escala_;
  std::vector<Primitiva> primitivas_;
  std::string capa_;
  std::vector<CapaLienzo> capas_;
  std::uint64_t version_ = 0;
  Oyente<> oyente_;  ///< the last member: see there
};

/// A dotted rectangle that is stretched over a picture while a region is being chosen; it is no part of the picture.
struct Recuadro {
  bool visible = false;
  Punto a, b;  ///< opposite corners, in world coordinates
  friend bool operator==(const Recuadro&, const Recuadro&) = default;
};

/// The control that shows a canvas, which tells its own changes.
class PictureBox : public Control, public Vinculable<PictureBox> {
 public:
  PictureBox(Ventana& v, std::string_view nombre, int anchoPixeles, int altoPixeles)
      : Control(v, nombre), lienzo(anchoPixeles, altoPixeles) {}
  Lienzo lienzo;
  Propiedad<Recuadro> recuadro{*this, {}};
  /// Calls that function from now on when the picture or the rubber box over it has changed; empty: none.
  void alDibujar(const Evento& oyente) {
    lienzo.alCambiar(oyente);
    alRecuadrar_ = oyente;
  }
  /// Pointer events, in world coordinates.
  std::function<void(Punto)> MouseDown;
  std::function<void(Punto)> MouseMoveEn;
  std::function<void(Punto)> MouseUp;
  /// The box on screen has another inner size, in pixels.
  std::function<void(int ancho, int alto)> Resize;

 protected:
  void trasCambiar(const void* propiedad) override {
    if (propiedad == &recuadro) disparar(alRecuadrar_);
  }

 private:
  Evento alRecuadrar_;
};

}  // namespace calvento
