#include <gtest/gtest.h>

#include "dibujo/vista.h"

namespace calvento {
namespace {

TEST(Vista, EscalaEnsanchaElLadoQueFaltaYNuncaDeforma) {
  const struct {
    const char* que;
    int ancho, alto;  // of the box
    Vista pedida;
    double x1, x2, y1, y2;  // shown
  } casos[] = {
      {"tall: X widens about its centre", 800, 400, {0, 2, 100, 110}, -9, 11, 100, 110},
      {"wide: Y widens about its centre", 800, 400, {0, 40, 100, 101}, 0, 40, 90.5, 110.5},
      {"of the box's proportions", 800, 400, {-4, 4, 10, 14}, -4, 4, 10, 14},
      {"no height at all", 800, 400, {0, 8, 100, 100}, 0, 8, 98, 102},
      {"a tall box", 200, 800, {0, 2, 50, 51}, 0, 2, 46.5, 54.5},
  };
  for (const auto& c : casos) {
    DesignState e;
    Lienzo l(c.ancho, c.alto);
    fijarVista(e, c.pedida);
    Escala(e, l);
    EXPECT_NEAR(l.ScaleLeft(), c.x1, 1e-5) << c.que;
    EXPECT_NEAR(l.ScaleLeft() + l.ScaleWidth(), c.x2, 1e-5) << c.que;
    EXPECT_NEAR(l.ScaleTop(), c.y2, 1e-5) << c.que;
    EXPECT_NEAR(l.ScaleTop() + l.ScaleHeight(), c.y1, 1e-5) << c.que;
    EXPECT_FLOAT_EQ(e.vistaX1.valor(), static_cast<float>(c.x1)) << c.que;
    EXPECT_FLOAT_EQ(e.vistaY2.valor(), static_cast<float>(c.y2)) << c.que;
  }
}

TEST(Vista, UnaVistaSinAnchoFallaYLaEscalaSeQueda) {
  DesignState e;
  Lienzo l(800, 400);
  l.Scale(0, 4, 8, 0);
  fijarVista(e, {3, 3, 0, 4});
  EXPECT_THROW(Escala(e, l), FalloAritmetico);
  EXPECT_EQ(l.escala(), (EscalaLienzo{0, 4, 8, -4}));
}

TEST(Vista, AcercarYLuegoAlejarDejaTresCuartos) {
  Lienzo l(800, 400);
  l.Scale(10, 104, 18, 100);
  const Vista cerca = acercada(l);  // half the span about the same centre
  l.Scale(12, 103, 16, 101);
  const Vista lejos = alejada(l);
  const struct {
    Real es, debe;
  } lados[] = {{cerca.x1, 12}, {cerca.x2, 16}, {cerca.y1, 101},   {cerca.y2, 103},
               {lejos.x1, 11}, {lejos.x2, 17}, {lejos.y1, 100.5}, {lejos.y2, 103.5}};
  for (const auto& lado : lados) EXPECT_DOUBLE_EQ(lado.es.valor(), lado.debe.valor());
}

}  // namespace
}  // namespace calvento
