#include <limits>
#include <string>

#include "apoyo/tablas.h"
#include "plataforma/lienzo.h"
#include "plataforma/medidas.h"

namespace calvento {
namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();

TEST(Lienzo, UnPoligonoNuncaCambiaDeNumeroDePuntos) {
  struct Caso {
    const char* que;
    std::vector<Punto> dados, guardados;
  };
  const Caso casos[] = {
      {"all usable", {{0, 1}, {2, 3}, {4, 5}}, {{0, 1}, {2, 3}, {4, 5}}},
      {"one coordinate only", {{0, 1}, {2, sinValor}, {4, 5}}, {{0, 1}, {2, 1}, {4, 5}}},
      {"a whole point", {{0, 1}, {sinValor, infinito}, {4, 5}}, {{0, 1}, {0, 1}, {4, 5}}},
      {"several in a row", {{0, 1}, {sinValor, 2}, {sinValor, 3}, {4, 5}}, {{0, 1}, {0, 2}, {0, 3}, {4, 5}}},
      {"the last", {{0, 1}, {2, 3}, {-infinito, 5}}, {{0, 1}, {2, 3}, {2, 5}}},
      {"the first has none before it", {{sinValor, 1}, {2, 3}, {4, 5}}, {{2, 1}, {2, 3}, {4, 5}}},
  };
  for (const Caso& c : casos) {
    Lienzo l(10, 10);
    l.Polygon(c.dados);
    ASSERT_EQ(l.primitivas().size(), 1U) << c.que;
    EXPECT_EQ(std::get<PrimPoligono>(l.primitivas()[0]).puntos, c.guardados) << c.que;
  }
  Lienzo l(10, 10);
  l.Polygon({{sinValor, 1}, {sinValor, 2}});
  l.Polygon({});
  EXPECT_TRUE(l.primitivas().empty());
}

TEST(Lienzo, LoQueNoSePuedeCalcularSeOmiteYLaPlumaSeQueda) {
  Lienzo l(10, 10);
  l.Line({0, 0}, {1, 1});
  l.LineA({sinValor, 2});
  l.LineA({3, 3});  // from the last usable point
  l.LineCaja({0, infinito}, {1, 1}, color::negro);
  l.Circle({0, 0}, sinValor);
  l.CurrentX = sinValor;
  l.Print("perdido");
  ASSERT_EQ(l.primitivas().size(), 2U);
  EXPECT_EQ(std::get<PrimLinea>(l.primitivas()[1]).a, (Punto{1, 1}));
  EXPECT_EQ(std::get<PrimLinea>(l.primitivas()[1]).b, (Punto{3, 3}));

  l.Cls();
  l.Polyline({{0, 0}, {sinValor, 1}, {2, 2}}, color::rojo);
  ASSERT_EQ(l.primitivas().size(), 1U);
  EXPECT_EQ(std::get<PrimPolilinea>(l.primitivas()[0]).puntos, (std::vector<Punto>{{0, 0}, {2, 2}}));
  EXPECT_EQ(l.CurrentX, 2);
  l.Polyline({{5, 5}, {sinValor, 1}});  // one point is no line
  EXPECT_EQ(l.primitivas().size(), 1U);
}

TEST(Lienzo, CadaPrimitivaGuardaElEstadoDeSuPluma) {
  Lienzo l(10, 10);
  l.ForeColor = color::azulClaro;
  l.DrawStyle = EstiloLinea::guionPunto;
  l.FillColor = color::grisClaro;
  l.FillStyle = EstiloRelleno::cruzadoDiagonal;
  l.LineCaja({0, 0}, {1, 1}, color::negro);
  l.Font.angulo = 90;
  l.Print("Est:");
  l.ForeColor = l.FillColor = color::verde;
  l.DrawStyle = EstiloLinea::solida;
  l.Font.angulo = 0;
  const auto& caja = std::get<PrimCaja>(l.primitivas()[0]);
  EXPECT_EQ(caja.pluma.color, color::negro);
  EXPECT_EQ(caja.pluma.estilo, EstiloLinea::guionPunto);
  EXPECT_EQ(caja.relleno.color, color::grisClaro);
  EXPECT_EQ(caja.relleno.estilo, EstiloRelleno::cruzadoDiagonal);
  const auto& rotulo = std::get<PrimTexto>(l.primitivas()[1]);
  EXPECT_EQ(rotulo.color, color::azulClaro);
  EXPECT_EQ(rotulo.letra.angulo, 90);
  EXPECT_EQ(rotulo.en, (Punto{1, 1}));
}

TEST(Medidas, AnchosPublicadosDeLaLetra) {
  porCadaFila("medidas.txt", "letra",
              [](const FilaTabla& f) { EXPECT_EQ(anchoTexto(f[0]), std::lround(f.num(1) * 0.16)); });
  EXPECT_EQ(altoTexto(), 195);
  EXPECT_NEAR(puntosDeCelda(11.17), 7.5, 1e-9);  // 11.17 pixels of line are 10 pixels of letter
}

}  // namespace
}  // namespace calvento
