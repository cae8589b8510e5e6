#include <algorithm>
#include <gtest/gtest.h>

#include "apoyo/navegador_mudo.h"
#include "comun/numeros.h"
#include "reportes/form8.h"

namespace calvento {
namespace {

/// A trajectory y = -0.3 x - 0.05 x² from 100 m on.
DesignState trayectoria(Real X) {
  DesignState e;
  e.trayB = -0.3;
  e.trayA = -0.05;
  e.xTrayectoria = X;
  e.cotaFin = 100;
  e.cotaTrayectoria = 97.5;
  return e;
}

std::vector<std::string> columna(const Rejilla& t, int c) {
  std::vector<std::string> textos;
  for (int f = 1; f < t.filas() && !t.texto(f, 0).empty(); ++f) textos.push_back(t.texto(f, c));
  return textos;
}

Rejilla tabla(Real X) {
  Rejilla t;
  tablaTrayectoria(t, trayectoria(X));
  return t;
}

TEST(TablaTrayectoria, FilasYUltimaConLaElevacionGuardada) {
  const Rejilla t = tabla(1.12);
  EXPECT_EQ(t.filas(), 50);
  EXPECT_EQ(t.texto(0, 3), "Elevación(m)");
  const auto x = columna(t, 1);
  ASSERT_EQ(x.size(), 13U);
  EXPECT_EQ(x[0], "0.00");
  EXPECT_EQ(x[11], "1.10");
  EXPECT_EQ(x[12], "1.12");
  EXPECT_EQ(columna(t, 0).back(), "13");
  // -0.3 - 0.05 at 1 m
  EXPECT_EQ(columna(t, 2)[10], "-0.350");
  EXPECT_EQ(columna(t, 3)[10], "99.650");
  // -0.336 - 0.06272 at the end; its elevation is not 100 less that
  EXPECT_EQ(columna(t, 2)[12], "-0.399");
  EXPECT_EQ(columna(t, 3)[12], "97.500");
}

TEST(TablaTrayectoria, ElPasoVaConLaLongitud) {
  const struct {
    double X;
    const char* segunda;
    std::size_t filas;
  } casos[] = {
      {1.5, "0.10", 17},  // sixteen steps, and the end twice
      {1.51, "0.25", 8}, {3.75, "0.25", 17}, {3.76, "0.50", 9},
      {7.5, "0.50", 17}, {7.51, "1.00", 9},  {47.9, "1.00", 49},
  };
  for (const auto& c : casos) {
    const auto x = columna(tabla(c.X), 1);
    EXPECT_EQ(x.size(), c.filas) << c.X;
    EXPECT_EQ(x[1], c.segunda) << c.X;
  }
}

TEST(TablaTrayectoria, UnFinalSobreUnPasoEstaDosVeces) {
  for (int i = 1; i <= 15; ++i) {
    const auto x = columna(tabla(i * 0.1), 1);
    ASSERT_EQ(x.size(), static_cast<std::size_t>(i) + 2) << i;
    EXPECT_EQ(x[x.size() - 1], x[x.size() - 2]) << i;
  }
}

TEST(TablaTrayectoria, CuarentaYOchoMetrosNoCaben) {
  NavegadorMudo navegador;
  EXPECT_NO_THROW(Form8(trayectoria(47.99), navegador));
  for (const double X : {48.0, 1e6, 3e38}) EXPECT_THROW(Form8(trayectoria(X), navegador), FalloAritmetico) << X;
}

TEST(TablaTrayectoria, SinLongitudHayUnaFilaDeMas) {
  EXPECT_EQ(columna(tabla(0), 1), (std::vector<std::string>{"0.00", "0.00"}));
  EXPECT_EQ(columna(tabla(-2), 1), (std::vector<std::string>{"-2.00"}));
  NavegadorMudo navegador;
  for (const double X : {0.0, -2.0}) EXPECT_NO_THROW(Form8(trayectoria(X), navegador)) << X;
  EXPECT_THROW(Form8(trayectoria(-3e30), navegador), FalloAritmetico) << "no ruler is that long";
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
  for (std::size_t i = 0; i < 10; ++i) {
    EXPECT_NEAR(lineas[i].a.x, 0.4 * static_cast<double>(i), 1e-9);
    EXPECT_NEAR(lineas[i].b.x - lineas[i].a.x, 0.4, 1e-9);
    EXPECT_EQ(lineas[i].pluma.color, (Color{16512}));
    EXPECT_EQ(lineas[i].pluma.estilo, EstiloLinea::solida);
    if (i > 0) {
      EXPECT_EQ(lineas[i].a, lineas[i - 1].b);
    }
  }
  EXPECT_NEAR(lineas[9].b.y, -2, 1e-6);  // -1.2 - 0.8
  EXPECT_NEAR(lineas[10].a.y, -2, 1e-6);
  EXPECT_NEAR(lineas[10].b.x, 4, 1e-6);
  EXPECT_EQ(lineas[10].pluma.estilo, EstiloLinea::puntos);

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
