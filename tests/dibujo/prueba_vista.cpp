#include <gtest/gtest.h>

#include "dibujo/vista.h"

namespace calvento {
namespace {

TEST(Vista, EscalaEnsanchaElLadoQueFaltaYNuncaDeforma) {
  const struct {
    const char* que;
    double ancho, alto;         // of the box
    double x1, x2, y1, y2;      // asked for
    double rx1, rx2, ry1, ry2;  // shown
  } casos[] = {
      {"tall: X widens about its centre", 800, 400, 0, 2, 100, 110, -9, 11, 100, 110},
      {"wide: Y widens about its centre", 800, 400, 0, 40, 100, 101, 0, 40, 90.5, 110.5},
      {"of the box's proportions", 800, 400, -4, 4, 10, 14, -4, 4, 10, 14},
      {"no height at all", 800, 400, 0, 8, 100, 100, 0, 8, 98, 102},
      {"a tall box", 200, 800, 0, 2, 50, 51, 0, 2, 46.5, 54.5},
  };
  for (const auto& c : casos) {
    DesignState e;
    Lienzo l(static_cast<int>(c.ancho), static_cast<int>(c.alto));
    fijarVista(e, {c.x1, c.x2, c.y1, c.y2});
    Escala(e, l);
    EXPECT_NEAR(l.ScaleLeft(), c.rx1, 1e-5) << c.que;
    EXPECT_NEAR(l.ScaleLeft() + l.ScaleWidth(), c.rx2, 1e-5) << c.que;
    EXPECT_NEAR(l.ScaleTop(), c.ry2, 1e-5) << c.que;
    EXPECT_NEAR(l.ScaleTop() + l.ScaleHeight(), c.ry1, 1e-5) << c.que;
    EXPECT_NEAR(l.ScaleWidth() / c.ancho, -l.ScaleHeight() / c.alto, 1e-9) << c.que;
    EXPECT_FLOAT_EQ(e.vistaX1.valor(), static_cast<float>(c.rx1)) << c.que;
    EXPECT_FLOAT_EQ(e.vistaY2.valor(), static_cast<float>(c.ry2)) << c.que;
  }
}

TEST(Vista, UnaVistaSinAnchoFallaYLaEscalaSeQueda) {
  DesignState e;
  Lienzo l(800, 400);
  fijarVista(e, {0, 8, 0, 4});
  Escala(e, l);
  const EscalaLienzo antes = l.escala();
  fijarVista(e, {3, 3, 0, 4});
  EXPECT_THROW(Escala(e, l), FalloAritmetico);
  EXPECT_EQ(l.escala(), antes);
}

TEST(Vista, AcercarYLuegoAlejarDejaTresCuartos) {
  Lienzo l(800, 400);
  l.Scale(10, 104, 18, 100);
  const Vista cerca = acercada(l);  // half the span about the same centre
  EXPECT_DOUBLE_EQ(cerca.x1.valor(), 12);
  EXPECT_DOUBLE_EQ(cerca.x2.valor(), 16);
  EXPECT_DOUBLE_EQ(cerca.y1.valor(), 101);
  EXPECT_DOUBLE_EQ(cerca.y2.valor(), 103);
  l.Scale(12, 103, 16, 101);
  const Vista lejos = alejada(l);
  EXPECT_DOUBLE_EQ((lejos.x2 - lejos.x1).valor(), 0.75 * 8);
  EXPECT_DOUBLE_EQ((lejos.y2 - lejos.y1).valor(), 0.75 * 4);
  EXPECT_DOUBLE_EQ((lejos.x2 + lejos.x1).valor(), 28);
  EXPECT_DOUBLE_EQ((lejos.y2 + lejos.y1).valor(), 204);
}

}  // namespace
}  // namespace calvento
