#include "apoyo/tablas.h"
#include "dibujo/vista.h"

namespace calvento {
namespace {

TEST(Vista, EscalaEnsanchaElLadoQueFaltaYNuncaDeforma) {
  porCadaFila("vistas.txt", "escala", [](const FilaTabla& f) {
    DesignState e;
    Lienzo l(std::stoi(f[1]), std::stoi(f[2]));
    fijarVista(e, {f.num(3), f.num(4), f.num(5), f.num(6)});
    Escala(e, l);
    const double son[] = {l.ScaleLeft(), l.ScaleLeft() + l.ScaleWidth(), l.ScaleTop() + l.ScaleHeight(), l.ScaleTop()};
    const Single guardadas[] = {e.vistaX1, e.vistaX2, e.vistaY1, e.vistaY2};
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_NEAR(son[i], f.num(7 + i), 1e-5) << i;
      EXPECT_FLOAT_EQ(guardadas[i].valor(), static_cast<float>(f.num(7 + i))) << i;
    }
  });
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
