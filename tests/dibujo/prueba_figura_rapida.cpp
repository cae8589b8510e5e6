#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "dibujo/estado_rapida.h"
#include "dibujo/figura_rapida.h"
#include "dibujo/rotulos.h"

namespace calvento {
namespace {

constexpr double eje = 120;
constexpr double anchoMayor = 6;
constexpr double tolerancia = 2e-6;

using Rutina = void (FiguraRapida::*)(Lienzo&) const;
constexpr Rutina todas[] = {&FiguraRapida::POLIGONO,      &FiguraRapida::PLANTA,
                            &FiguraRapida::RAPIDA,        &FiguraRapida::CANAL,
                            &FiguraRapida::CANALB,        &FiguraRapida::COTAS,
                            &FiguraRapida::EJESDIMENSION, &FiguraRapida::EJESDIMENSIONPLANTA,
                            &FiguraRapida::textrotate,    &FiguraRapida::DIMENSIONES,
                            &FiguraRapida::DIBUJACANAL};

/// What one routine paints on a canvas whose view is ten metres high.
template <class T>
std::vector<T> pintado(const DesignState& e, Rutina rutina, double altoVista = 10) {
  Lienzo lienzo(865, 433);
  lienzo.Scale(-10, 112, 10, 112 - altoVista);
  (FiguraRapida(e, eje, anchoMayor).*rutina)(lienzo);
  std::vector<T> elegidas;
  for (const auto& p : lienzo.primitivas())
    if (const T* t = std::get_if<T>(&p)) elegidas.push_back(*t);
  return elegidas;
}

bool cerca(Punto a, Punto b) { return std::fabs(a.x - b.x) < tolerancia && std::fabs(a.y - b.y) < tolerancia; }

bool hayLinea(const std::vector<PrimLinea>& lineas, Punto a, Punto b) {
  return std::any_of(lineas.begin(), lineas.end(), [&](const PrimLinea& l) { return cerca(l.a, a) && cerca(l.b, b); });
}

const PrimTexto* buscar(const std::vector<PrimTexto>& textos, const std::string& texto, double x, double y) {
  for (const auto& t : textos)
    if (t.texto == texto && cerca(t.en, {x, y})) return &t;
  return nullptr;
}

std::size_t cuantos(const std::vector<PrimTexto>& textos, const std::string& comienzo) {
  return static_cast<std::size_t>(
      std::count_if(textos.begin(), textos.end(), [&](const PrimTexto& t) { return t.texto.rfind(comienzo, 0) == 0; }));
}

TEST(FiguraRapida, AreasHaveTheirColoursAndFills) {
  const DesignState e = rapidaDeMano();
  Lienzo lienzo(865, 433);
  lienzo.Scale(-10, 125, 45, 100);
  lienzo.Line({0, 0}, {1, 1});
  const FiguraRapida figura(e, eje, anchoMayor);
  figura.POLIGONO(lienzo);
  ASSERT_EQ(lienzo.primitivas().size(), 1U) << "the canvas is cleared first";
  figura.PLANTA(lienzo);
  figura.RAPIDA(lienzo);
  figura.CANAL(lienzo);
  figura.CANALB(lienzo);
  const struct {
    std::size_t puntos;
    std::int32_t relleno;
    EstiloRelleno estilo;
  } esperadas[] = {{57, 0xFFFF00, EstiloRelleno::solido},          {19, 0xFFFF00, EstiloRelleno::solido},
                   {19, 0xC0C0C0, EstiloRelleno::cruzadoDiagonal}, {19, 0xC0C0C0, EstiloRelleno::cruzadoDiagonal},
                   {36, 0xC0C0C0, EstiloRelleno::cruzadoDiagonal}, {10, 0xC0C0C0, EstiloRelleno::cruzadoDiagonal},
                   {5, 0xC0C0C0, EstiloRelleno::cruzadoDiagonal}};
  ASSERT_EQ(lienzo.primitivas().size(), std::size(esperadas));
  for (std::size_t i = 0; i < std::size(esperadas); ++i) {
    const auto& p = std::get<PrimPoligono>(lienzo.primitivas()[i]);
    EXPECT_EQ(p.puntos.size(), esperadas[i].puntos) << i;
    EXPECT_EQ(p.relleno.color.valor, esperadas[i].relleno) << i;
    EXPECT_EQ(p.relleno.estilo, esperadas[i].estilo) << i;
    EXPECT_EQ(p.pluma.color.valor, 0xFF0000) << i;
    EXPECT_EQ(p.pluma.estilo, EstiloLinea::solida) << i;
  }
}

TEST(FiguraRapida, ControlPointsAreBlackSquares) {
  const auto cajas = pintado<PrimCaja>(rapidaDeMano(2), &FiguraRapida::COTAS);
  ASSERT_EQ(cajas.size(), 9U);
  for (const auto& c : cajas) {
    EXPECT_EQ(c.relleno.color.valor, 0);
    EXPECT_EQ(c.relleno.estilo, EstiloRelleno::solido);
    EXPECT_EQ(c.pluma.color.valor, 0);
    EXPECT_NEAR(c.b.x - c.a.x, 0.04, tolerancia);
  }
  EXPECT_TRUE(cerca(cajas[2].a, {9.98, 108.98}) && cerca(cajas[2].b, {10.02, 109.02}));
}

TEST(FiguraRapida, LinesOfTheCanal) {
  Lienzo lienzo(865, 433);
  lienzo.Scale(-10, 125, 45, 100);
  const DesignState e = rapidaDeMano();
  FiguraRapida(e, eje, anchoMayor).DIBUJACANAL(lienzo);
  EXPECT_EQ(lienzo.DrawStyle, EstiloLinea::solida);
  std::vector<PrimPolilinea> polilineas;
  std::vector<PrimLinea> lineas;
  for (const auto& p : lienzo.primitivas()) {
    if (const auto* q = std::get_if<PrimPolilinea>(&p)) polilineas.push_back(*q);
    if (const auto* l = std::get_if<PrimLinea>(&p)) lineas.push_back(*l);
  }
  ASSERT_EQ(polilineas.size(), 1U + 6U + 1U);
  EXPECT_EQ(polilineas.front().pluma.color.valor, 255);
  EXPECT_EQ(polilineas.front().pluma.estilo, EstiloLinea::solida);
  EXPECT_EQ(polilineas.front().puntos.size(), 8U);
  for (std::size_t i = 1; i < polilineas.size(); ++i) {
    EXPECT_EQ(polilineas[i].pluma.color.valor, 8421504);
    EXPECT_EQ(polilineas[i].pluma.estilo, EstiloLinea::guionPunto);
  }
  // bed edges of the lower side: canal 2, chute 2, basin 3 and again 2 wide
  const std::vector<Punto> borde = {{-9, 119}, {-4, 119}, {0, 119}, {20, 119}, {25, 118.5}};
  EXPECT_EQ(polilineas[1].puntos, borde);
  EXPECT_EQ(polilineas[2].puntos, (std::vector<Punto>{{34.875, 118.5}, {37.875, 119}, {42.875, 119}}));
  EXPECT_EQ(polilineas[3].puntos, (std::vector<Punto>{{25, 118.5}, {34.875, 118.5}}));
  EXPECT_EQ(polilineas[4].puntos.back(), (Punto{25, 121.5}));
  ASSERT_EQ(lineas.size(), 10U + 8U);
  for (std::size_t i = 0; i < lineas.size(); ++i) {
    EXPECT_EQ(lineas[i].pluma.color.valor, 8421504);
    EXPECT_EQ(lineas[i].pluma.estilo, i < 10 ? EstiloLinea::solida : EstiloLinea::guionPunto) << i;
  }
  for (const auto& [x, medio] : {std::pair{-4.0, 3.0},
                                 {0.0, 1.0},
                                 {20.0, 1.0},
                                 {24.0, 1.4},
                                 {25.0, 1.5},
                                 {33.0, 1.5},
                                 {34.875, 1.5},
                                 {37.875, 2.75}})
    EXPECT_TRUE(hayLinea(lineas, {x, eje - medio}, {x, eje + medio})) << x;
}

TEST(FiguraRapida, DimensionLinesOfTheSection) {
  const double abre = 0.05 * 0.577328;  // tan of 30 degrees with 3.1415 for pi
  for (const int tramos : {1, 2, 3}) {
    const auto l = pintado<PrimLinea>(rapidaDeMano(tramos), &FiguraRapida::EJESDIMENSION);
    EXPECT_EQ(l.size(), 92U + 4U * static_cast<std::size_t>(tramos));
  }
  const auto l = pintado<PrimLinea>(rapidaDeMano(2), &FiguraRapida::EJESDIMENSION);
  const Segmento esperadas[] = {
      {{-4, 109.75}, {-4, 109.5}},
      {{0, 109.75}, {0, 109.5}},
      {{-4, 109.6}, {0, 109.6}},  // inlet
      {{-4, 109.6}, {-3.95, 109.6 + abre}},
      {{0, 109.6}, {-0.05, 109.6 - abre}},
      {{0, 102.5}, {0, 102.25}},
      {{20, 102.5}, {20, 102.25}},
      {{24, 102.5}, {24, 102.25}},  // chain
      {{25, 102.5}, {25, 102.25}},
      {{33, 102.5}, {33, 102.25}},
      {{34.875, 102.5}, {34.875, 102.25}},
      {{37.875, 102.5}, {37.875, 102.25}},
      {{0, 102.35}, {37.875, 102.35}},
      {{34.725, 102.75}, {34.925, 102.75}},
      {{0, 102.35}, {0.05, 102.35 - abre}},
      {{37.875, 102.35}, {37.825, 102.35 + abre}},
      {{10, 102.35}, {10.05, 102.35 + abre}},
      {{10, 102.35}, {9.95, 102.35 + abre}},  // joint: both sides
      {{34.875, 104}, {34.875, 104.5275}},
      {{34.875, 104.7225}, {34.875, 105.25}},  // yn, split round its label
      {{34.875, 102.75}, {34.875, 103.2775}},
      {{34.875, 103.4725}, {34.875, 104}},  // depth of the basin
      {{29, 102.75}, {29, 103.9025}},
      {{29, 104.0975}, {29, 105.25}},  // y2
      {{20, 105}, {20 + abre, 105.05}},
      {{20, 105.3}, {20 - abre, 105.25}},  // yo: arrows only
      {{-0.4, 110.2}, {-0.4, 110.6025}},
      {{-0.4, 110.7975}, {-0.4, 111.2}},  // yc
      {{-4, 123}, {-4 + abre, 122.95}},
      {{-4, 117}, {-4 - abre, 117.05}},  // widths of the plan
      {{0, 121}, {abre, 120.95}},
      {{25, 118.5}, {25 + abre, 118.55}},
      {{34.875, 121.5}, {34.875 + abre, 121.45}},
      {{37.875, 122.75}, {37.875 + abre, 122.7}},
  };
  for (const auto& s : esperadas)
    EXPECT_TRUE(hayLinea(l, s.a, s.b)) << s.a.x << ' ' << s.a.y << " - " << s.b.x << ' ' << s.b.y;
  EXPECT_FALSE(hayLinea(l, {10, 102.5}, {10, 102.25})) << "a joint has no tick";
  EXPECT_FALSE(hayLinea(l, {20, 105}, {20, 105.0525})) << "yo has no line";
}

TEST(FiguraRapida, LeaderOfTheTrajectoryEquation) {
  const auto l = pintado<PrimLinea>(rapidaDeMano(), &FiguraRapida::EJESDIMENSION);
  const double w = anchoTexto("Y= -0.2500 X  -0.046875 X²") / 1250.0;
  const double fin = 20 + 4 / 2.75;
  EXPECT_TRUE(hayLinea(l, {fin - w, 103.68}, {fin, 103.68}));
  EXPECT_TRUE(hayLinea(l, {fin, 103.68}, {22, 104.3125}));
  // its head: rise 0.6325 over a sixth of 4 m is 43.494 degrees; strokes of 0.05 / cos 30 at 30 degrees to either side
  std::vector<Punto> puntas;
  for (const auto& s : l)
    if (cerca(s.a, {22, 104.3125})) puntas.push_back({s.b.x - 22, s.b.y - 104.3125});
  ASSERT_EQ(puntas.size(), 2U);
  EXPECT_NEAR(puntas[0].x, -0.057735 * std::cos(73.494 * M_PI / 180), 1e-5);
  EXPECT_NEAR(puntas[0].y, -0.057735 * std::sin(73.494 * M_PI / 180), 1e-5);
  EXPECT_NEAR(puntas[1].x, -0.057735 * std::cos(13.494 * M_PI / 180), 1e-5);
  EXPECT_NEAR(puntas[1].y, -0.057735 * std::sin(13.494 * M_PI / 180), 1e-5);
}

TEST(FiguraRapida, DimensionChainOfThePlan) {
  const auto l = pintado<PrimLinea>(rapidaDeMano(), &FiguraRapida::EJESDIMENSIONPLANTA);
  EXPECT_EQ(l.size(), 6U + 1U + 1U + 4U + 16U);
  for (const double x : {20.0, 24.0, 25.0, 33.0, 34.875, 37.875})
    EXPECT_TRUE(hayLinea(l, {x, 116.75}, {x, 116.5})) << x;
  EXPECT_TRUE(hayLinea(l, {20, 116.6}, {37.875, 116.6}));
  EXPECT_TRUE(hayLinea(l, {34.725, 102.75}, {34.925, 102.75})) << "the bar stays in the section";
  EXPECT_FALSE(hayLinea(l, {0, 116.75}, {0, 116.5}));
}

TEST(FiguraRapida, UprightLabels) {
  const auto t = pintado<PrimTexto>(rapidaDeMano(), &FiguraRapida::DIMENSIONES);
  const double alta = 195;  // height of a line of text, twips
  const auto w = [](const char* muestra) { return static_cast<double>(anchoTexto(muestra)); };
  const struct {
    const char* texto;
    double x, y;
  } esperados[] = {
      {"4.000", -2 - w("4.000") / 2000, 109.6},
      {"h=0.2", -0.8 - w("0.00") / 2000, 110.1 + alta / 2500},
      {"Sección de control", -w("Sección de control") / 2000, 109.85},
      {"Yc= 1", -0.4 - w("0.00") / 2000, 110.7 + alta / 2500},
      {"20", 10 - w("20") / 2000, 102.35},
      {"CANAL DE LA RAPIDA", 10 - w("CANAL DE LA RAPIDA") / 2000, 102.35 + alta / 1000},
      {"P.C.", 20 - w("P.C.") / 1000, 105},
      {"P.T.", 24 - w("P.T.") / 1000, 103.25},
      {"4", 22 - w("4.000") / 2000, 102.35},
      {"4", 22 - w("4.000") / 2000, 116.6},
      {"Y= -0.2500 X  -0.046875 X²", 20 + 4 / 2.75 - w("Y= -0.2500 X  -0.046875 X²") / 1250, 103.875 - alta / 5000},
      {"Y1=0.25", 25, 102.75 + alta / 1500},
      {"Y2=2.5", 29 - w("0.000") / 2000, 104 + alta / 2500},
      {"1", 24.5 - w("1.000") / 2000, 102.35},
      {"1", 24.5 - w("1.000") / 2000, 116.6},
      {"8", 29 - w("8.000") / 2000, 102.35},
      {"h= 1.25", 34.875 - w("0.00") / 2000, 103.375 + alta / 2500},
      {"Yn= 1.25", 34.875 - w("0.000") / 2000, 104.625 + alta / 2500},
      {"1.875", 33.9375 - w("1.875") / 2000, 116.6},
      {"3", 36.375 - w("3.00") / 2000, 102.35},
      {"3", 36.375 - w("3.00") / 2000, 116.6},
      {"Proyección de canal", 25 + 8 / 3.0, 105.9},
      {"Canal Aguas Abajo", 37.975, 102.45},
      {"6.00", -4 - w("0.00") / 2000, 120 + alta / 2500},
      {"2.00", -w("0.00") / 2000, 120 + alta / 2500},
      {"2.00", 20 - w("0.00") / 2000, 120 + alta / 2500},
      {"3.00", 25 - w("0.00") / 2000, 120 + alta / 2500},
      {"3.00", 34.875 - w("0.00") / 2000, 120 + alta / 2500},
      {"5.50", 37.875 - w("0.00") / 2000, 120 + alta / 2500},
      {"PLANTA", 29 - w("PLANTA") / 2500, 116.4},
      {"SECCION LONGITUDINAL", 29 - w("SECCION LONGITUDINAL") / 2500, 102.15},
  };
  for (const auto& r : esperados) {
    const PrimTexto* p = buscar(t, r.texto, r.x, r.y);
    ASSERT_NE(p, nullptr) << r.texto << " at " << r.x << ' ' << r.y;
    const bool esTitulo = p->texto == "PLANTA" || p->texto == "SECCION LONGITUDINAL";
    EXPECT_EQ(p->letra.negrita, esTitulo) << r.texto;
    EXPECT_EQ(p->letra.subrayada, esTitulo) << r.texto;
    EXPECT_EQ(p->letra.familia, "Arial");
    EXPECT_EQ(p->letra.angulo, 0);
    EXPECT_NEAR(p->letra.puntos, 4, 1e-12);  // 40 points over ten metres
  }
  EXPECT_EQ(t.size(), std::size(esperados) + 2);  // and two lengths in the other of both chains
}

TEST(FiguraRapida, LengthsOfTheReachesStandInTheMiddleOfEach) {
  const auto t = pintado<PrimTexto>(rapidaDeMano(3), &FiguraRapida::DIMENSIONES);
  EXPECT_NE(buscar(t, "8", 4 - anchoTexto("8") / 2000.0, 102.35), nullptr);
  EXPECT_NE(buscar(t, "4", 10 - anchoTexto("4") / 2000.0, 102.35), nullptr);
  EXPECT_NE(buscar(t, "8", 16 - anchoTexto("8") / 2000.0, 102.35), nullptr);
  EXPECT_EQ(cuantos(t, "20"), 0U);
}

TEST(FiguraRapida, LabelsThatAreLeftOut) {
  DesignState e = rapidaDeMano();
  e.sobreelevacion = 0;
  e.frArriba = 1;
  e.longTransEntrada = e.longTransSalida = 0;
  e.profPoza = 0;
  const auto t = pintado<PrimTexto>(e, &FiguraRapida::DIMENSIONES);
  for (const char* fuera : {"h=0", "Yc= ", "0.000", "1.875"}) EXPECT_EQ(cuantos(t, fuera), 0U) << fuera;
  EXPECT_EQ(cuantos(t, "h= 0.00"), 1U) << "the depth of the basin stays";
  const auto g = pintado<PrimTexto>(e, &FiguraRapida::textrotate);
  EXPECT_EQ(cuantos(g, "1:2"), 1U);
  EXPECT_EQ(cuantos(g, "1:1.5"), 0U);
  e.frArriba = 1.0001;
  EXPECT_EQ(cuantos(pintado<PrimTexto>(e, &FiguraRapida::DIMENSIONES), "Yc= "), 1U);
  // the lines without a length still stand, one on the other
  EXPECT_TRUE(hayLinea(pintado<PrimLinea>(e, &FiguraRapida::EJESDIMENSION), {0, 109.6}, {0, 109.6}));
  EXPECT_EQ(pintado<PrimLinea>(e, &FiguraRapida::DIBUJACANAL).size(), 18U);
}

TEST(FiguraRapida, SlantedAndVerticalLabels) {
  const auto t = pintado<PrimTexto>(rapidaDeMano(3), &FiguraRapida::textrotate);
  const double alta = 195;
  const double e1 = 107.13486239;
  const double e2 = 105.93577982;
  const struct {
    const char* texto;
    double angulo, x, y;
  } esperados[] = {
      {"1:2", 333.4, 24.5 - 0.89442719 * 0.2, 103 - 0.44721360 * 0.1},
      {"1:1.5", 33.7, 33.9375, 103.375 - 0.55470020 * 0.35},
      {"s=-0.4375", 336.4, 19, 105.4375 - alta / 2500},
      {"Vo= 6m/s; Yo= 0.3", 336.4, 19, 105.5875 + alta / 2500},
      {"Canal aguas arriba; s=-0.01", 359.4, -6.5, 109.965},
      {"Q= 4m³/s; Yn= 1.5; V= 1.2m/s", 359.4, -6.5, 110.815 + alta / 2500},
      {"Línea Gradiente de Energía", 346.5, 65.0 / 3, (2 * e1 + e2) / 3 + alta / 1500},
      {"V= 1.5m/s", 359.4, 35.475, 104.619 + alta / 2500},
      {"s=-0.01", 359.4, 37.975, 103.969 - alta / 2500},
      {"s=-0.0625", 356.4, 4, 109.75 - alta / 2500},
      {"s=-0.25", 346, 10, 109 - alta / 2500},
      {"Est:1+000.00", 90, -alta / 1500, 109.5 - anchoTexto("0+000.00") / 1000.0},
      {"E:110.000", 90, 0, 109.5 - anchoTexto("0+000.00") / 1000.0},
      {"Est:1+008.00", 90, 8 - alta / 1500, 110.4},
      {"E:109.500", 90, 8, 110.4},
      {"Est:1+012.00", 90, 12 - alta / 1500, 109.4},
      {"E:108.500", 90, 12, 109.4},
      {"Est:1+020.00", 90, 20 - alta / 1500, 105.9},
      {"E:105.000", 90, 20, 105.9},
      {"Est:1+024.00", 90, 24 - alta / 1500, 103.65},
      {"E:103.250", 90, 24, 103.65},
      {"Est:1+025.00", 90, 25 - alta / 1500, 104.25},
      {"E:102.750", 90, 25, 104.25},
      {"Est:1+034.88", 90, 34.875 - alta / 1500, 105.85},
      {"E:104.000", 90, 34.875, 105.85},
  };
  for (const auto& r : esperados) {
    const PrimTexto* p = buscar(t, r.texto, r.x, r.y);
    ASSERT_NE(p, nullptr) << r.texto << " at " << r.x << ' ' << r.y;
    EXPECT_NEAR(p->letra.angulo, r.angulo, 1e-9) << r.texto;
    EXPECT_NEAR(p->letra.puntos, 6 / 1.117 * 0.75, 1e-9) << "5.5 pixels become the even 6";
  }
  EXPECT_EQ(t.size(), std::size(esperados));
  EXPECT_EQ(pintado<PrimTexto>(rapidaDeMano(2), &FiguraRapida::textrotate).size(), std::size(esperados) - 3);
  EXPECT_EQ(pintado<PrimTexto>(rapidaDeMano(1), &FiguraRapida::textrotate).size(), std::size(esperados) - 6);
}

TEST(FiguraRapida, FontsFollowTheViewDownToTheirSmallestSize) {
  const struct {
    double alto, derecha, girada;
  } casos[] = {{22, 40.0 / 22, 2}, {1000, 0.04, 1}, {1e6, 0.001, 1}, {0.5, 80, 110}};
  for (const auto& c : casos) {
    const auto d = pintado<PrimTexto>(rapidaDeMano(), &FiguraRapida::DIMENSIONES, c.alto);
    const auto g = pintado<PrimTexto>(rapidaDeMano(), &FiguraRapida::textrotate, c.alto);
    EXPECT_NEAR(d.front().letra.puntos, c.derecha, 1e-9) << c.alto;
    EXPECT_NEAR(g.front().letra.puntos, puntosDeCelda(c.girada), 1e-9) << c.alto;
  }
  // upright again after the rotated labels, whichever routine ran before
  Lienzo lienzo(865, 433);
  lienzo.Scale(0, 10, 20, 0);
  const DesignState e = rapidaDeMano();
  const FiguraRapida figura(e, eje, anchoMayor);
  figura.textrotate(lienzo);
  const std::size_t girados = lienzo.primitivas().size();
  figura.DIMENSIONES(lienzo);
  EXPECT_EQ(std::get<PrimTexto>(lienzo.primitivas()[girados]).letra.angulo, 0);
}

TEST(FiguraRapida, ALabelWithoutAnAngleIsLost) {
  DesignState e = rapidaDeMano();
  e.zRampaEntrada = 0;
  e.zRampaSalida = 0;
  const auto t = pintado<PrimTexto>(e, &FiguraRapida::textrotate);
  EXPECT_EQ(cuantos(t, "1:"), 0U);
  EXPECT_EQ(t.size(), 17U);
}

bool finito(Punto p) { return std::isfinite(p.x) && std::isfinite(p.y); }

TEST(FiguraRapida, AHalfComputedRecordNeverStopsTheFigure) {
  std::mt19937 azar(20240611);
  const double valores[] = {0, 0, 1, -1, 0.05, -0.5, 2, 1e-30, 3e38, -3e38, 1e9, 2534.6};
  std::uniform_int_distribution<std::size_t> cual(0, std::size(valores) - 1);
  for (int vuelta = 0; vuelta < 300; ++vuelta) {
    DesignState e = vuelta % 2 == 0 ? DesignState() : rapidaDeMano(1 + vuelta % 3);
    for (const auto& c : camposSingle())
      if (vuelta % 2 == 0 || azar() % 8 == 0) e.*c.campo = valores[cual(azar)];
    if (vuelta % 5 == 0) e.numTramos = static_cast<std::int16_t>(static_cast<int>(azar() % 12) - 4);
    if (vuelta % 3 == 0) e.perfil.assign(azar() % 150, {valores[cual(azar)], valores[cual(azar)], 0, 0, 0});
    Lienzo lienzo(865, 433);
    if (vuelta % 4 != 0) lienzo.Scale(-10, 120, 45, vuelta % 4 == 1 ? 120 : 100);
    const FiguraRapida figura(e, valores[cual(azar)], valores[cual(azar)]);
    for (const Rutina rutina : todas) (figura.*rutina)(lienzo);
    const auto& agua = std::get<PrimPoligono>(lienzo.primitivas().front());
    const auto tramos = static_cast<std::size_t>(std::clamp<int>(e.numTramos, 1, 3));
    EXPECT_EQ(agua.puntos.size(), e.perfil.size() + 53 + tramos);
    for (const Punto& p : agua.puntos) ASSERT_TRUE(finito(p)) << vuelta;
    for (const auto& p : lienzo.primitivas()) {
      const auto* t = std::get_if<PrimTexto>(&p);
      ASSERT_TRUE(t == nullptr || (finito(t->en) && std::isfinite(t->letra.puntos))) << vuelta;
    }
  }
  DesignState vacio;
  Lienzo lienzo(865, 433);
  for (const Rutina rutina : todas) (FiguraRapida(vacio, 0, 0).*rutina)(lienzo);
  EXPECT_EQ(std::get<PrimPoligono>(lienzo.primitivas().front()).puntos.size(), 54U);
}

}  // namespace
}  // namespace calvento
