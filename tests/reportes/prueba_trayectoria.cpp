#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "apoyo/navegador_mudo.h"
#include "reportes/form8.h"

namespace calvento {
namespace {

/// A trajectory y = -0.3 x - 0.05 x² from 100 m on.
DesignState trayectoria(Real X) {
  DesignState e;
  e.trayB = -0.3, e.trayA = -0.05, e.xTrayectoria = X, e.cotaFin = 100, e.cotaTrayectoria = 97.5;
  return e;
}

/// The rows of the table with a number.
std::vector<std::string> tabla(Real X) {
  Rejilla t;
  tablaTrayectoria(t, trayectoria(X));
  EXPECT_EQ(t.filas(), 50);
  EXPECT_EQ(t.texto(0, 3), "Elevación(m)");
  std::vector<std::string> filas;
  for (int f = 1; f < t.filas() && !t.texto(f, 0).empty(); ++f)
    filas.push_back(t.texto(f, 0) + "|" + t.texto(f, 1) + "|" + t.texto(f, 2) + "|" + t.texto(f, 3));
  return filas;
}

TEST(TablaTrayectoria, FilasYPasoSegunLaLongitud) {
  const struct {
    double X;
    std::size_t filas;
    const char *segunda, *ultima;  ///< the last one has the stored elevation, whatever the parabola gives
  } casos[] = {
      {1.12, 13, "2|0.10|", "13|1.12|-0.399|97.500"},  // 0.336 + 0.06272
      {1.5, 17, "2|0.10|", "17|1.50|-0.563|97.500"},   // sixteen steps, and the end twice
      {1.51, 8, "2|0.25|", "8|1.51|-0.567|97.500"},   {3.75, 17, "2|0.25|", "17|3.75|-1.828|97.500"},
      {3.76, 9, "2|0.50|", "9|3.76|-1.835|97.500"},   {7.5, 17, "2|0.50|", "17|7.50|-5.063|97.500"},
      {7.51, 9, "2|1.00|", "9|7.51|-5.073|97.500"},   {47.9, 49, "2|1.00|", "49|47.90|-129.091|97.500"},
      {0, 2, "2|0.00|", "2|0.00|0.000|97.500"},
  };
  for (const auto& c : casos) {
    const auto filas = tabla(c.X);
    EXPECT_EQ(filas.size(), c.filas) << c.X;
    EXPECT_EQ(filas[1].rfind(c.segunda, 0), 0U) << c.X;
    EXPECT_EQ(filas.back(), c.ultima) << c.X;
  }
  EXPECT_EQ(tabla(1.12)[10], "11|1.00|-0.350|99.650");
  EXPECT_EQ(tabla(-2), (std::vector<std::string>{"1|-2.00|0.400|97.500"}));
  // every end on a step is there twice
  for (int i = 1; i <= 15; ++i) EXPECT_EQ(tabla(i * 0.1).size(), static_cast<std::size_t>(i) + 2) << i;
}

TEST(TablaTrayectoria, CuarentaYOchoMetrosNoCaben) {
  NavegadorMudo navegador;
  for (const double X : {47.99, 0.0, -2.0}) EXPECT_NO_THROW(Form8(trayectoria(X), navegador)) << X;
  // neither does the table hold more, nor is a ruler so long
  for (const double X : {48.0, 1e6, 3e38, -3e30}) EXPECT_THROW(Form8(trayectoria(X), navegador), FalloAritmetico) << X;
}

template <class P>
std::vector<P> primitivas(const Lienzo& l) {
  std::vector<P> elegidas;
  for (const Primitiva& p : l.primitivas())
    if (const auto* e = std::get_if<P>(&p)) elegidas.push_back(*e);
  return elegidas;
}

TEST(GraficoTrayectoria, CurvaRotulosYEscala) {
  Lienzo l(341, 277);
  DIBUJATRAYECTORIA(l, trayectoria(4));
  EXPECT_EQ(l.ScaleLeft(), 0);
  EXPECT_DOUBLE_EQ(l.ScaleTop(), 0.5);
  EXPECT_DOUBLE_EQ(l.ScaleWidth(), 4.25);
  EXPECT_NEAR(l.ScaleHeight(), -(0.5 + 0.8184176 * 4 + 0.25), 1e-9);

  const auto lineas = primitivas<PrimLinea>(l);
  ASSERT_EQ(lineas.size(), 11U);
  const auto esperar = [&](std::size_t i, Punto a, Punto b, Color color, EstiloLinea estilo) {
    EXPECT_NEAR(std::hypot(lineas[i].a.x - a.x, lineas[i].a.y - a.y), 0, 1e-6) << i;
    EXPECT_NEAR(std::hypot(lineas[i].b.x - b.x, lineas[i].b.y - b.y), 0, 1e-6) << i;
    EXPECT_EQ(lineas[i].pluma.color, color) << i;
    EXPECT_EQ(lineas[i].pluma.estilo, estilo) << i;
  };
  const auto punto = [](double x) { return Punto{x, -0.3 * x - 0.05 * x * x}; };
  for (std::size_t i = 0; i < 10; ++i) {
    const double x = 0.4 * static_cast<double>(i);
    esperar(i, punto(x), punto(x + 0.4), Color{16512}, EstiloLinea::solida);
  }
  esperar(10, {0, -2}, {4, -2}, color::negro, EstiloLinea::puntos);

  const auto textos = primitivas<PrimTexto>(l);
  ASSERT_EQ(textos.size(), 3U);
  EXPECT_EQ(textos[0].texto, "Y= -0.3000 X  -0.050000 X²");
  EXPECT_EQ(textos[0].letra.puntos, 12);
  EXPECT_EQ(textos[1].texto, "P.C.: 100");
  EXPECT_EQ(textos[2].texto, "P.T.: 97.5");
  EXPECT_EQ(textos[2].letra.puntos, 8);
  EXPECT_NEAR(textos[2].en.x, 2.8, 1e-6);
  EXPECT_NEAR(textos[2].en.y, -2, 1e-6);
}

TEST(GraficoTrayectoria, LosEjesSiguenAlTamano) {
  NavegadorMudo navegador;
  Form8 v(trayectoria(4), navegador);
  const auto rotulos = [](const PictureBox& caja) {
    std::vector<std::string> r;
    for (const PrimTexto& t : primitivas<PrimTexto>(caja.lienzo)) r.push_back(t.texto);
    return r;
  };
  EXPECT_EQ(rotulos(v.Picture1), (std::vector<std::string>{"0", "0.5", "1", "1.5", "2", "2.5", "3", "3.5", "4"}));
  const auto y = rotulos(v.Picture2);
  EXPECT_NE(std::find(y.begin(), y.end(), "100"), y.end());
  // the axis keeps 48 pixels beside the plot
  EXPECT_NEAR(v.Picture1.lienzo.ScaleLeft() + 48 * v.Picture1.lienzo.ScaleWidth() / 389, 0, 1e-9);
  v.P.Resize(700, 500);
  v.Picture1.Resize(748, 41);
  v.Picture2.Resize(75, 500);
  EXPECT_EQ(v.P.lienzo.anchoPixeles(), 700);
  EXPECT_NEAR(v.Picture1.lienzo.ScaleLeft() + 48 * v.Picture1.lienzo.ScaleWidth() / 748, 0, 1e-9);
  EXPECT_EQ(primitivas<PrimLinea>(v.P.lienzo).size(), 11U);
}

}  // namespace
}  // namespace calvento
