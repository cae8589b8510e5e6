#include "dibujo/leyenda.h"

#include <algorithm>

namespace calvento {

namespace {

/// Width of the sheet in pixels for which the places below are given.
constexpr double anchoHoja = 865;

struct Fila {
  const char* texto;
  double y;
  Color color;
  EstiloRelleno relleno;
};
constexpr Fila filas[] = {{"Tirante", 32, color::azulClaro, EstiloRelleno::solido},
                          {"Rasante", 48, color::grisMedio, EstiloRelleno::cruzadoDiagonal},
                          {"Canal", 64, color::rojo, EstiloRelleno::solido}};

/// Places on the sheet in pixels of its first size, counted from its upper right corner. The legend grows with the
/// sheet; on a smaller one it keeps its size, since a smaller swatch has no room for its hatch.
class Hoja {
 public:
  explicit Hoja(const Lienzo& l)
      : lienzo_(l),
        aumento_(static_cast<double>(l.altoPixeles()) / l.altoReferencia()),
        factor_(std::max(aumento_, 1.0)),
        metroX_(l.ScaleWidth() / l.anchoPixeles()),
        metroY_(l.ScaleHeight() / l.altoPixeles()) {}
  /// The size of a text that is so many points high on the sheet of the first size.
  double puntos(double puntos) const { return puntos * factor_ / aumento_; }
  Punto en(double x, double y) const {
    const double pixel = lienzo_.anchoPixeles() - (anchoHoja - x) * factor_;
    return {lienzo_.ScaleLeft() + pixel * metroX_, lienzo_.ScaleTop() + y * factor_ * metroY_};
  }

 private:
  const Lienzo& lienzo_;
  double aumento_;  ///< how much larger than at first the sheet is, and all texts on it
  double factor_;   ///< how much larger the legend is
  double metroX_;
  double metroY_;
};

void escribir(Lienzo& l, Punto en, const char* texto) {
  l.CurrentX = en.x;
  l.CurrentY = en.y;
  l.Print(texto);
}

}  // namespace

void dibujarLeyenda(Lienzo& l) {
  const EstadoPluma antes = l.estadoPluma();
  const Hoja hoja(l);
  l.ForeColor = color::negro;
  l.DrawStyle = EstiloLinea::solida;
  l.DrawWidth = 1;
  l.Font = {"Arial", hoja.puntos(7)};
  l.FillColor = color::blanco;
  l.FillStyle = EstiloRelleno::solido;
  l.LineCaja(hoja.en(794, 14), hoja.en(851, 79), color::negro);
  escribir(l, hoja.en(800, 16), "LEYENDA");
  l.Line(hoja.en(794, 29), hoja.en(851, 29));
  for (const Fila& f : filas) {
    l.FillColor = f.color;
    l.FillStyle = f.relleno;
    l.LineCaja(hoja.en(800, f.y), hoja.en(808, f.y + 8), color::negro);
    escribir(l, hoja.en(813, f.y - 1), f.texto);
  }
  l.fijarEstadoPluma(antes);
}

}  // namespace calvento
