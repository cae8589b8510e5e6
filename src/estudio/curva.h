#pragma once

#include <optional>
#include <string>
#include <vector>

#include "estudio/estudio.h"
#include "plataforma/lienzo.h"

namespace calvento {

/// One line of the picture: a result over the varied input, with one value of the other input where two vary.
struct Curva {
  std::string nombre;              ///< "1.5 m", "USBR - II"; empty where one input varies
  std::vector<Punto> puntos;       ///< without a result: sinValor as height
  std::vector<std::size_t> filas;  ///< of the study, one for each point
};

/// The picture of a study: a result over the first input that is a number, or over the options of the only one.
struct GraficoEstudio {
  std::vector<Curva> curvas;
  std::string tituloX, tituloY;
  std::vector<std::string> opciones;  ///< names at the places 0, 1 … of the axis where an option varies
  std::optional<double> tecleado;     ///< where the fields of the window stand
  double x1 = 0, x2 = 1, y1 = 0, y2 = 1;

  bool vacio() const;
  /// Draws axes, curves and the typed value in a canvas whose world are its pixels.
  void dibujar(Lienzo& lienzo) const;
  /// What stands nearest to a pixel: "Ancho = 1.5, Y1 = 0.312", and which row of the study. Nothing where no point is.
  struct Leido {
    std::string texto;
    std::size_t fila;
    Punto en;
  };
  std::optional<Leido> leer(const Lienzo& lienzo, Punto pixel) const;

 private:
  Punto enPixeles(const Lienzo& lienzo, Punto p) const;
};

/// `base` tells the typed value; `columna` counts columnas(ficha).
GraficoEstudio graficoDe(const Estudio& estudio, const Diseno& base, std::size_t columna);

}  // namespace calvento
