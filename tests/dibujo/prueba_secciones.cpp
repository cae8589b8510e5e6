#include <cmath>
#include <gtest/gtest.h>

#include "apoyo/navegador_mudo.h"
#include "dibujo/figura_seccion.h"
#include "dibujo/ventana_secciones.h"

namespace calvento {
namespace {

template <class P>
std::vector<P> primitivas(const Lienzo& l) {
  std::vector<P> elegidas;
  for (const Primitiva& p : l.primitivas())
    if (const auto* e = std::get_if<P>(&p)) elegidas.push_back(*e);
  return elegidas;
}

void esperarPuntos(const std::vector<Punto>& puntos, const std::vector<Punto>& esperados) {
  ASSERT_EQ(puntos.size(), esperados.size());
  for (std::size_t i = 0; i < puntos.size(); ++i) {
    EXPECT_NEAR(puntos[i].x, esperados[i].x, 1e-4) << i;
    EXPECT_NEAR(puntos[i].y, esperados[i].y, 1e-4) << i;
  }
}

struct Hoja {
  Lienzo P{451, 275}, x{515, 41}, y{65, 275};
  void dibujar(const DatosSeccion& s, Real Q) { SECCION(P, x, y, s, Q); }
};

TEST(FiguraSeccion, TrapecioPuntoPorPunto) {
  // b 2, z 1, H 1.5 at 100 m with 1 m of water: sides at 45°, sin 0.70711, tan of half the angle 0.41421
  Hoja h;
  h.dibujar({100, 1.5, 1, 2, 1}, 3);
  const auto poligonos = primitivas<PrimPoligono>(h.P);
  ASSERT_EQ(poligonos.size(), 2U);
  esperarPuntos(poligonos[0].puntos, {{-1, 100}, {-2, 101}, {2, 101}, {1, 100}, {-1, 100}});
  EXPECT_EQ(poligonos[0].relleno.color, color::cianClaro);
  EXPECT_EQ(poligonos[0].relleno.estilo, EstiloRelleno::solido);
  EXPECT_EQ(poligonos[0].pluma.color, color::azulClaro);
  esperarPuntos(poligonos[1].puntos, {{-1, 100},
                                      {-2.5, 101.5},
                                      {-2.64142, 101.5},
                                      {-1.04142, 99.9},
                                      {1.04142, 99.9},
                                      {2.64142, 101.5},
                                      {2.5, 101.5},
                                      {1, 100},
                                      {-1, 100}});
  EXPECT_EQ(poligonos[1].relleno.color, color::grisClaro);
  EXPECT_EQ(poligonos[1].relleno.estilo, EstiloRelleno::cruzadoDiagonal);

  // 2.5 + 0.14142 + 0.1 + half of 400 twips at 1,000 to the metre
  EXPECT_NEAR(h.P.ScaleLeft(), -2.94142, 1e-4);
  EXPECT_NEAR(h.P.ScaleWidth(), 2 * 2.94142, 1e-4);
  EXPECT_NEAR(h.P.ScaleTop(), 100.75 + 2.94142 / 1.64, 1e-4);
  EXPECT_NEAR(h.P.ScaleHeight(), -2 * 2.94142 / 1.64, 1e-4);

  const auto cajas = primitivas<PrimCaja>(h.P);
  ASSERT_EQ(cajas.size(), 4U);
  EXPECT_NEAR(cajas[1].a.x, -2.51, 1e-6);
  EXPECT_NEAR(cajas[1].b.y, 101.51, 1e-6);
  EXPECT_EQ(cajas[1].relleno.estilo, EstiloRelleno::solido);

  const auto textos = primitivas<PrimTexto>(h.P);
  ASSERT_EQ(textos.size(), 2U);
  EXPECT_EQ(textos[0].texto, "5.000");
  EXPECT_EQ(textos[1].texto, "1.500");
}

TEST(FiguraSeccion, NivelCriticoYCotas) {
  // a rectangle 2 m wide with 3 m³/s: (1.5² / 9.81)^(1/3) = 0.61215 within the solver's thousandth
  Hoja h;
  h.dibujar({50, 1, 0.9, 2, 0}, 3);
  std::vector<PrimLinea> rojas, negras;
  for (const PrimLinea& l : primitivas<PrimLinea>(h.P)) (l.pluma.color == color::rojo ? rojas : negras).push_back(l);
  ASSERT_EQ(rojas.size(), 1U);
  EXPECT_NEAR(rojas[0].a.y, 50.61215, 1e-3);
  EXPECT_NEAR(rojas[0].a.x, -1, 1e-9);
  EXPECT_NEAR(rojas[0].b.x, 1, 1e-9);
  EXPECT_EQ(rojas[0].pluma.estilo, EstiloLinea::guionPunto);

  // width: two heads of two strokes, two ticks, two lines; height: the same
  ASSERT_EQ(negras.size(), 16U);
  const auto hay = [&](Punto a, Punto b) {
    for (const PrimLinea& l : negras) {
      const auto igual = [](Punto p, Punto q) { return std::hypot(p.x - q.x, p.y - q.y) < 1e-6; };
      if ((igual(l.a, a) && igual(l.b, b)) || (igual(l.a, b) && igual(l.b, a))) {
        EXPECT_EQ(l.pluma.estilo, EstiloLinea::solida);
        return true;
      }
    }
    return false;
  };
  const double t = 0.025 * std::tan(30 * 3.1415 / 180);
  EXPECT_TRUE(hay({-1, 51.1}, {-0.975, 51.1 + t}));
  EXPECT_TRUE(hay({1, 51.1}, {0.975, 51.1 - t}));
  EXPECT_TRUE(hay({1, 51.05}, {1, 51.15}));
  EXPECT_TRUE(hay({-1, 51.1}, {-0.2, 51.1})) << "the gap is 400 twips wide";
  const double x = -1.2;  // lining 0.1 and 0.1 more
  EXPECT_TRUE(hay({x, 51}, {x + t, 50.975}));
  EXPECT_TRUE(hay({x, 50}, {x - t, 50.025}));
  EXPECT_TRUE(hay({x - 0.05, 50}, {x + 0.05, 50}));
  EXPECT_TRUE(hay({x, 50}, {x, 50.5 - 0.0975})) << "half a line of 195 twips";
}

TEST(FiguraSeccion, AngostaYHondaCabeEnAlto) {
  Hoja h;
  h.dibujar({0, 6, 3, 0.5, 0}, 1);
  EXPECT_NEAR(h.P.ScaleWidth(), 2 * 1.64 * 3.2, 1e-9);
  EXPECT_NEAR(h.P.ScaleTop(), 6.2, 1e-9);
  EXPECT_NEAR(h.P.ScaleTop() + h.P.ScaleHeight(), -0.2, 1e-9);
}

TEST(FiguraSeccion, EnUnLienzoMayorNoSeDeforma) {
  Hoja h;
  for (const auto& [ancho, alto] : {std::pair{900, 300}, std::pair{400, 800}, std::pair{451, 275}}) {
    h.P.redimensionarSinCrecer(ancho, alto);
    h.dibujar({100, 1.5, 1, 2, 1}, 3);
    EXPECT_NEAR(h.P.ScaleWidth() / ancho, -h.P.ScaleHeight() / alto, 1e-9);
    EXPECT_GE(h.P.ScaleTop(), 101.5 + 0.15);
    EXPECT_LE(h.P.ScaleLeft(), -2.75);
    for (const PrimTexto& t : primitivas<PrimTexto>(h.P)) EXPECT_GE(t.en.x, h.P.ScaleLeft());
  }
}

TEST(FiguraSeccion, SinTiranteCriticoQuedaElAgua) {
  Hoja h;
  EXPECT_THROW(h.dibujar({0, 1, 0.5, 0, 0}, 1), FalloAritmetico);
  EXPECT_EQ(primitivas<PrimPoligono>(h.P).size(), 1U);
}

DesignState estado() {
  DesignState e;
  e.Q = 4;
  e.nRapida = 0.015;
  e.bRapida = 2;
  e.zRapida = 0.5;
  e.sTramo1 = 0.1;
  e.sTramo2 = 0.2;
  e.sTramo3 = 0.4;
  e.hArriba = 1.5;
  e.hRapida = 1;
  e.hPoza = 3;
  e.hAbajo = 1.6;
  e.bArriba = e.bAbajo = 2.5;
  e.bPoza = 2.2;
  e.bEntradaCaida = 1.8;
  e.bPozaCaida = 2.4;
  e.zPozaCaida = 0.25;
  e.longTransVert = 0.3;
  e.cotaInicio = 60;
  e.cotaTramo2 = 55;
  e.cotaTramo3 = 50;
  e.cotaFin = 40;
  e.cotaPoza = 36;
  e.cotaAbajo = 38;
  e.ynArriba = 1.1;
  e.ynAbajo = 1.2;
  e.yFin = 0.8;
  e.y1 = 0.2;
  e.y2 = 2;
  e.frArriba = 0.6;
  return e;
}

std::vector<std::string> nombres(const std::vector<SeccionNombrada>& secciones) {
  std::vector<std::string> n;
  for (const SeccionNombrada& s : secciones) n.push_back(s.nombre);
  return n;
}

DatosSeccion datos(const std::vector<SeccionNombrada>& secciones, const std::string& nombre) {
  for (const SeccionNombrada& s : secciones)
    if (s.nombre == nombre) return s.datos();
  ADD_FAILURE() << "no " << nombre;
  return {};
}

using Lista = std::vector<std::string>;

TEST(ListaSecciones, PorEstructuraYRegimen) {
  DesignState e = estado();
  const Lista rapida[] = {{},
                          {"Canal aguas arriba", "Sección de control", "Canal rápida", "Poza", "Canal aguas abajo"},
                          {"Canal aguas arriba", "Sección de control", "Canal rápida tramo 1", "Canal rápida tramo 2",
                           "Poza", "Canal aguas abajo"},
                          {"Canal aguas arriba", "Sección de control", "Canal rápida tramo 1", "Canal rápida tramo 2",
                           "Canal rápida tramo 3", "Poza", "Canal aguas abajo"}};
  for (std::int16_t n = 0; n <= 3; ++n) {
    e.numTramos = n;
    EXPECT_EQ(nombres(seccionesRapida(e)), rapida[n]);
  }
  EXPECT_EQ(nombres(seccionesInclinada(e)),
            (Lista{"Canal aguas arriba", "Sección de control", "Canal tramo inclinado", "Poza", "Canal aguas abajo"}));
  e.frArriba = 1.2;
  EXPECT_EQ(nombres(seccionesInclinada(e)),
            (Lista{"Canal aguas arriba", "Canal tramo inclinado", "Poza", "Canal aguas abajo"}));
  e.frArriba = 1;
  EXPECT_EQ(nombres(seccionesInclinada(e)), Lista{});
  EXPECT_EQ(nombres(seccionesVertical(e)),
            (Lista{"Canal aguas arriba", "Sección de control", "Poza", "Canal aguas abajo"}));
}

TEST(ListaSecciones, LosTramosConElTiranteNormalDeSuPendiente) {
  DesignState e = estado();
  const struct {
    int tramos;
    const char* nombre;
    double cota, S;
  } casos[] = {{1, "Canal rápida", 40, 0.1},         {2, "Canal rápida tramo 1", 55, 0.1},
               {2, "Canal rápida tramo 2", 50, 0.2}, {3, "Canal rápida tramo 1", 55, 0.1},
               {3, "Canal rápida tramo 2", 50, 0.2}, {3, "Canal rápida tramo 3", 40, 0.4}};
  for (const auto& c : casos) {
    e.numTramos = static_cast<std::int16_t>(c.tramos);
    const DatosSeccion s = datos(seccionesRapida(e), c.nombre);
    EXPECT_EQ(s.c.valor(), c.cota) << c.nombre;
    EXPECT_EQ(s.H.valor(), 1);
    const double y = s.y.valor(), A = (2 + 0.5 * y) * y, P = 2 + 2 * y * std::sqrt(1.25);
    EXPECT_NEAR(A * std::pow(A / P, 2.0 / 3) * std::sqrt(c.S) / 0.015, 4, 0.02) << c.nombre;
  }
}

TEST(ListaSecciones, LasDeLasCaidas) {
  const DesignState e = estado();
  const DatosSeccion rampa = datos(seccionesInclinada(e), "Canal tramo inclinado");
  EXPECT_NEAR(rampa.c.valor(), 38, 1e-6);
  EXPECT_NEAR(rampa.y.valor(), 0.5, 1e-6);
  EXPECT_NEAR(rampa.b.valor(), 2.1, 1e-6);
  const DatosSeccion pozo = datos(seccionesVertical(e), "Poza");
  EXPECT_NEAR(pozo.H.valor(), 5.5, 1e-6) << "the drop's height and the wall above it";
  EXPECT_NEAR(pozo.b.valor(), 3, 1e-6);
  EXPECT_EQ(pozo.z.valor(), 0);
  const DatosSeccion control = datos(seccionesVertical(e), "Sección de control");
  EXPECT_NEAR(control.y.valor(), std::cbrt(16 / 3.24 / 9.81), 1e-3);
  EXPECT_EQ(control.z.valor(), 0);
  EXPECT_NEAR(datos(seccionesInclinada(e), "Sección de control").z.valor(), 0.25, 1e-9);
}

TEST(VentanaSecciones, LasFlechasDanLaVuelta) {
  NavegadorMudo navegador;
  DesignState e = estado();
  e.numTramos = 1;
  Form19 v(e, navegador);
  EXPECT_EQ(v.Caption.valor(), "Secciones Transversales");
  EXPECT_EQ(v.Combo1.Text(), "Canal aguas arriba");
  const auto ancho = [&] { return primitivas<PrimTexto>(v.P.lienzo).front().texto; };
  EXPECT_EQ(ancho(), "2.500");
  v.Command2.Click();
  EXPECT_EQ(v.Combo1.Text(), "Canal aguas abajo");
  v.Command1.Click();
  EXPECT_EQ(v.Combo1.Text(), "Canal aguas arriba");
  v.Command1.Click();
  EXPECT_EQ(v.Combo1.Text(), "Sección de control");
  EXPECT_EQ(ancho(), "3.500");  // 2 + 2 · 0.5 · 1.5
  v.Combo1.ListIndex = 3;
  EXPECT_EQ(ancho(), "2.200");
  for (const char* clave : {"botonimprimir", "botoncopiar"}) v.Toolbar1.ButtonClick(clave);
  EXPECT_EQ(navegador.llamadas, (Lista{"imprimir Form19", "copiar Form19"}));
}

TEST(VentanaSecciones, SinListaOSinDatosQuedaVacia) {
  NavegadorMudo navegador;
  DesignState e = estado();
  e.frArriba = 1;
  Form20 vacia(e, navegador);
  EXPECT_EQ(vacia.Combo1.ListIndex, -1);
  EXPECT_TRUE(vacia.P.lienzo.primitivas().empty());
  vacia.Command1.Click();
  vacia.Command2.Click();
  EXPECT_EQ(vacia.Combo1.ListIndex, -1);

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
