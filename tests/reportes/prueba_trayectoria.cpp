#include <algorithm>
#include <cmath>

#include "apoyo/navegador_mudo.h"
#include "apoyo/tablas.h"
#include "comun/numeros.h"
#include "dibujo/puntos.h"
#include "reportes/form8.h"

namespace calvento {
namespace {

DesignState trayectoria(Real X) { return registro("trayectoria", "xTrayectoria=" + texto(X)); }

/// The rows of the table with a number.
std::vector<std::string> tablaDe(Real X) {
  Rejilla t;
  tablaTrayectoria(t, trayectoria(X));
  EXPECT_EQ(t.filas(), 50);
  EXPECT_EQ(t.texto(0, 3), "Elevación(m)");
  std::vector<std::string> filas;
  for (int f = 1; f < t.filas() && !t.texto(f, 0).empty(); ++f)
    filas.push_back(t.texto(f, 0) + "/" + t.texto(f, 1) + "/" + t.texto(f, 2) + "/" + t.texto(f, 3));
  return filas;
}

TEST(TablaTrayectoria, FilasYPasoSegunLaLongitud) {
  porCadaFila("reportes.txt", "trayectoria", [](const FilaTabla& f) {
    const auto filas = tablaDe(f.num(0));
    EXPECT_EQ(filas.size(), std::stoul(f[1]));
    EXPECT_TRUE(std::any_of(filas.begin(), filas.end(), [&](const auto& l) { return l.starts_with(f[2]); }));
    EXPECT_TRUE(filas.back().starts_with(f[3])) << filas.back();
  });
}

TEST(TablaTrayectoria, CuarentaYOchoMetrosNoCaben) {
  NavegadorMudo navegador;
  for (const double X : {47.99, 0.0, -2.0}) EXPECT_NO_THROW(Form8(trayectoria(X), navegador)) << X;
  // neither does the table hold more, nor is a ruler so long
  for (const double X : {48.0, 1e6, 3e38, -3e30}) EXPECT_THROW(Form8(trayectoria(X), navegador), FalloAritmetico) << X;
}

TEST(GraficoTrayectoria, CurvaRotulosYEscala) {
  Lienzo l(341, 277);
  DIBUJATRAYECTORIA(l, trayectoria(4));
  EXPECT_EQ(l.ScaleLeft(), 0);
  EXPECT_DOUBLE_EQ(l.ScaleTop(), 0.5);
  EXPECT_DOUBLE_EQ(l.ScaleWidth(), 4.25);
  EXPECT_NEAR(l.ScaleHeight(), -(0.5 + 0.8184176 * 4 + 0.25), 1e-9);

  const auto lineas = pintadas<PrimLinea>(l);
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

  const auto textos = pintadas<PrimTexto>(l);
  ASSERT_EQ(textos.size(), 3U);
  EXPECT_EQ(textos[0].texto, "Y= -0.3000 X  -0.050000 X²");
  EXPECT_EQ(textos[0].letra.puntos, 12);
  EXPECT_EQ(textos[1].texto, "P.C.: 100");
  EXPECT_EQ(textos[2].texto, "P.T.: 97.5");
  EXPECT_EQ(textos[2].letra.puntos, 8);
  const Punto lugares[] = {{4 / 6.0, -2.8}, {0.16, 4 / 14.0}, {2.8, -2}};
  for (std::size_t i = 0; i < 3; ++i)
    EXPECT_NEAR(std::hypot(textos[i].en.x - lugares[i].x, textos[i].en.y - lugares[i].y), 0, 1e-6) << i;
}

TEST(GraficoTrayectoria, LosEjesSiguenAlTamano) {
  NavegadorMudo navegador;
  Form8 v(trayectoria(4), navegador);
  EXPECT_EQ(rotulados(pintadas<PrimTexto>(v.Picture1.lienzo)), "|0|0.5|1|1.5|2|2.5|3|3.5|4|");
  EXPECT_NE(rotulados(pintadas<PrimTexto>(v.Picture2.lienzo)).find("|100|"), std::string::npos);
  // the axis keeps 48 pixels beside the plot
  EXPECT_NEAR(v.Picture1.lienzo.ScaleLeft() + 48 * v.Picture1.lienzo.ScaleWidth() / 389, 0, 1e-9);
  v.P.Resize(700, 500);
  v.Picture1.Resize(748, 41);
  v.Picture2.Resize(75, 500);
  EXPECT_EQ(v.P.lienzo.anchoPixeles(), 700);
  EXPECT_NEAR(v.Picture1.lienzo.ScaleLeft() + 48 * v.Picture1.lienzo.ScaleWidth() / 748, 0, 1e-9);
  EXPECT_EQ(pintadas<PrimLinea>(v.P.lienzo).size(), 11U);
}

}  // namespace
}  // namespace calvento
