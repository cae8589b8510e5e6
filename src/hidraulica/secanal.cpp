#include "hidraulica/secanal.h"

#include "hidraulica/solvers.h"

namespace calvento {

namespace {

void nivelDeAgua(Lienzo& lienzo, Real y, Real b, Real z, Color color) {
  const double x = (b / 2 + z * y).valor();
  lienzo.Line({-x, y.valor()}, {x, y.valor()}, color);
}

}  // namespace

void SECANAL(Lienzo& lienzo, Real yA, Real yB, Real b, Real z) {
  lienzo.Cls();
  const Real H = 1.2 * MAYOR(yA, yB);
  const double coronacion = H.valor();
  const double fondo = (b / 2).valor();
  const double borde = (b / 2 + z * H).valor();
  const double berma = (b / 2 + z * H + H / 2).valor();
  const double margen = (H / 6).valor();
  const double derecha = (b / 2 + z * H + H / 2 + H / 6).valor();
  const double arriba = (2 * H + H / 6).valor();
  lienzo.Scale(-derecha, arriba, derecha, -margen);

  lienzo.DrawWidth = 1;
  lienzo.DrawStyle = EstiloLinea::guionPunto;
  lienzo.Line({0, -margen}, {0, arriba}, color::azul);
  lienzo.DrawStyle = EstiloLinea::solida;
  nivelDeAgua(lienzo, yA, b, z, color::rojo);
  nivelDeAgua(lienzo, yB, b, z, color::verde);

  lienzo.DrawWidth = 2;
  lienzo.Line({-berma, coronacion}, {-borde, coronacion}, color::negro);
  lienzo.LineA({-fondo, 0}, color::negro);
  lienzo.LineA({fondo, 0}, color::negro);
  lienzo.LineA({borde, coronacion}, color::negro);
  lienzo.LineA({berma, coronacion}, color::negro);
}

}  // namespace calvento
