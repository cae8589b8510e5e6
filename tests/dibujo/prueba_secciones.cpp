#include <cmath>

#include "apoyo/navegador_mudo.h"
#include "apoyo/tablas.h"
#include "dibujo/figura_seccion.h"
#include "dibujo/geometria_poza.h"
#include "dibujo/puntos.h"
#include "dibujo/ventana_secciones.h"

namespace calvento {
namespace {

struct Hoja {
  Lienzo P{451, 275}, x{515, 41}, y{65, 275};
  void dibujar(const DatosSeccion& s, Real Q) { SECCION(P, x, y, s, Q); }
};

TEST(FiguraSeccion, TrapecioPuntoPorPunto) {
  // b 2, z 1, H 1.5 at 100 m with 1 m of water: sides at 45°, sin 0.70711, tan of half the angle 0.41421
  Hoja h;
  h.dibujar({100, 1.5, 1, 2, 1}, 3);
  const auto poligonos = pintadas<PrimPoligono>(h.P);
  ASSERT_EQ(poligonos.size(), 2U);
  comparar(poligonos[0].puntos, {{0, -1, 100}, {1, -2, 101}, {2, 2, 101}, {3, 1, 100}}, "water", 5);
  EXPECT_EQ(poligonos[0].relleno.color, color::cianClaro);
  EXPECT_EQ(poligonos[1].relleno.estilo, EstiloRelleno::cruzadoDiagonal);
  const auto& muro = poligonos[1].puntos;
  comparar(muro, {{0, -1, 100}, {1, -2.5, 101.5}, {6, 2.5, 101.5}, {7, 1, 100}}, "lining", 9);
  for (const auto& [i, x, y] : {Esperado{2, -2.64142, 101.5}, {3, -1.04142, 99.9}, {4, 1.04142, 99.9}})
    EXPECT_LT(std::hypot(muro[i].x - x, muro[i].y - y), 1e-4) << i;  // pi is cut to 3.1415

  // 2.5 + 0.14142 + 0.1 + half of 400 twips at 1,000 to the metre
  EXPECT_NEAR(h.P.ScaleLeft(), -2.94142, 1e-4);
  EXPECT_NEAR(h.P.ScaleTop(), 100.75 + 2.94142 / 1.64, 1e-4);
  EXPECT_NEAR(h.P.ScaleHeight(), -2 * 2.94142 / 1.64, 1e-4);

  const auto cajas = pintadas<PrimCaja>(h.P);
  ASSERT_EQ(cajas.size(), 4U);
  EXPECT_TRUE(cerca(cajas[1].a, {-2.51, 101.49}) && cerca(cajas[1].b, {-2.49, 101.51}));
  EXPECT_EQ(rotulados(pintadas<PrimTexto>(h.P)), "|5.000|1.500|");
}

TEST(FiguraSeccion, NivelCriticoYCotas) {
  // a rectangle 2 m wide with 3 m³/s: (1.5² / 9.81)^(1/3) = 0.61215 within the solver's thousandth
  Hoja h;
  h.dibujar({50, 1, 0.9, 2, 0}, 3);
  std::vector<PrimLinea> rojas, negras;
  for (const PrimLinea& l : pintadas<PrimLinea>(h.P)) (l.pluma.color == color::rojo ? rojas : negras).push_back(l);
  ASSERT_EQ(rojas.size(), 1U);
  EXPECT_NEAR(rojas[0].a.y, 50.61215, 1e-3);
  EXPECT_EQ(rojas[0].b, (Punto{1, rojas[0].a.y}));
  EXPECT_EQ(rojas[0].pluma.estilo, EstiloLinea::guionPunto);

  // width: two heads of two strokes, two ticks, two lines; height: the same
  ASSERT_EQ(negras.size(), 16U);
  const double t = 0.025 * std::tan(30 * 3.1415 / 180);
  const double x = -1.2;  // lining 0.1 and 0.1 more; the gaps: 400 twips wide, a line of 195 twips high
  const Segmento esperadas[] = {{{-1, 51.1}, {-0.975, 51.1 + t}}, {{1, 51.1}, {0.975, 51.1 - t}},
                                {{1, 51.05}, {1, 51.15}},         {{-1, 51.1}, {-0.2, 51.1}},
                                {{x, 51}, {x + t, 50.975}},       {{x, 50}, {x - t, 50.025}},
                                {{x - 0.05, 50}, {x + 0.05, 50}}, {{x, 50}, {x, 50.5 - 0.0975}}};
  for (const auto& s : esperadas) EXPECT_TRUE(hayLinea(negras, s.a, s.b)) << s.a.x << ' ' << s.a.y << ' ' << s.b.x;
  for (const PrimLinea& l : negras) EXPECT_EQ(l.pluma.estilo, EstiloLinea::solida);
}

TEST(FiguraSeccion, CabeEnteraYSinDeformarse) {
  Hoja h;
  h.dibujar({0, 6, 3, 0.5, 0}, 1);  // narrow and deep
  EXPECT_NEAR(h.P.ScaleWidth(), 2 * 1.64 * 3.2, 1e-9);
  EXPECT_NEAR(h.P.ScaleTop(), 6.2, 1e-9);
  EXPECT_NEAR(h.P.ScaleTop() + h.P.ScaleHeight(), -0.2, 1e-9);
  for (const auto& [ancho, alto] : {std::pair{900, 300}, std::pair{400, 800}, std::pair{451, 275}}) {
    h.P.redimensionarSinCrecer(ancho, alto);
    h.dibujar({100, 1.5, 1, 2, 1}, 3);
    EXPECT_NEAR(h.P.ScaleWidth() / ancho, -h.P.ScaleHeight() / alto, 1e-9);
    for (const PrimTexto& t : pintadas<PrimTexto>(h.P)) EXPECT_GE(t.en.x, h.P.ScaleLeft());
  }
}

TEST(FiguraSeccion, SinTiranteCriticoQuedaElAgua) {
  Hoja h;
  EXPECT_THROW(h.dibujar({0, 1, 0.5, 0, 0}, 1), FalloAritmetico);
  EXPECT_EQ(pintadas<PrimPoligono>(h.P).size(), 1U);
}

DesignState estado() { return registro("secciones"); }

TEST(VentanaSecciones, LasFlechasDanLaVuelta) {
  NavegadorMudo navegador;
  DesignState e = estado();
  e.numTramos = 1;
  Form19 v(e, navegador);
  const auto esperar = [&](const char* nombre, const char* ancho) {
    EXPECT_EQ(v.Combo1.Text(), nombre);
    EXPECT_EQ(pintadas<PrimTexto>(v.P.lienzo).front().texto, ancho) << nombre;
  };
  esperar("Canal aguas arriba", "2.500");
  v.Command2.Click();
  esperar("Canal aguas abajo", "2.500");
  v.Command1.Click();
  v.Command1.Click();
  esperar("Sección de control", "3.500");  // 2 + 2 · 0.5 · 1.5
  v.Combo1.ListIndex = 3;
  esperar("Poza", "2.200");
  for (const char* clave : {"botonimprimir", "botoncopiar"}) v.Toolbar1.ButtonClick(clave);
  EXPECT_EQ(navegador.llamadas, (std::vector<std::string>{"imprimir Form19", "copiar Form19"}));
}

TEST(VentanaSecciones, SinListaOSinDatosQuedaVacia) {
  NavegadorMudo navegador;
  DesignState e = estado();
  e.frArriba = 1;
  Form20 vacia(e, navegador);
  vacia.Command1.Click();
  vacia.Command2.Click();
  EXPECT_EQ(vacia.Combo1.ListIndex, -1);
  EXPECT_TRUE(vacia.P.lienzo.primitivas().empty());

  const DesignState nada;
  Form24 sinDatos(nada, navegador);
  EXPECT_THROW(sinDatos.Command1.Click(), FalloAritmetico) << "told in a box";
}

TEST(VentanaSecciones, OtroTamanoVuelveADibujar) {
  NavegadorMudo navegador;
  const DesignState e = estado();
  Form24 v(e, navegador);
  v.P.Resize(900, 600);
  v.Picture1.Resize(964, 41);
  EXPECT_NEAR(v.P.lienzo.ScaleWidth() / 900, -v.P.lienzo.ScaleHeight() / 600, 1e-9);
  // the ruler's left 64 pixels stand beside the other one
  EXPECT_NEAR(v.Picture1.lienzo.ScaleLeft() + 64 * v.Picture1.lienzo.ScaleWidth() / 964, v.P.lienzo.ScaleLeft(), 1e-4);
}

}  // namespace
}  // namespace calvento
