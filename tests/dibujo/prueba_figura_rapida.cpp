#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "dibujo/estado_rapida.h"
#include "dibujo/figura_rapida.h"
#include "dibujo/puntos.h"
#include "dibujo/rotulos.h"

namespace calvento {
namespace {

constexpr double eje = 120;
constexpr double anchoMayor = 6;
constexpr double alta = 195;  // height of a line of text, twips

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
  return pintadas<T>(lienzo);
}

std::string rotulos(const DesignState& e, Rutina rutina) { return rotulados(pintado<PrimTexto>(e, rutina)); }

double w(const char* muestra) { return static_cast<double>(anchoTexto(muestra)); }

struct Rotulo {
  const char* texto;
  double x, y;
  double angulo = 0;
};

void esperarRotulos(const std::vector<PrimTexto>& textos, const std::vector<Rotulo>& esperados) {
  for (const Rotulo& r : esperados)
    EXPECT_TRUE(std::any_of(
        textos.begin(), textos.end(),
        [&](const PrimTexto& t) {
          return t.texto == r.texto && cerca(t.en, {r.x, r.y}) && std::fabs(t.letra.angulo - r.angulo) < 1e-9;
        }))
        << r.texto << " at " << r.x << ' ' << r.y;
}

TEST(FiguraRapida, WaterIsFilledConcreteHatchedAndControlPointsAreBlack) {
  Lienzo lienzo(865, 433);
  lienzo.Scale(-10, 125, 45, 100);
  lienzo.Line({0, 0}, {1, 1});
  const DesignState e = rapidaDeMano(2);
  for (int i = 0; i < 6; ++i) (FiguraRapida(e, eje, anchoMayor).*todas[i])(lienzo);
  EXPECT_TRUE(pintadas<PrimLinea>(lienzo).empty()) << "the canvas is cleared first";
  const auto areas = pintadas<PrimPoligono>(lienzo);
  ASSERT_EQ(areas.size(), 7U);  // water of both, two walls, basin, canal, canal downstream
  for (std::size_t i = 0; i < areas.size(); ++i) {
    EXPECT_EQ(areas[i].relleno.color, i < 2 ? color::cianClaro : color::grisClaro) << i;
    EXPECT_EQ(areas[i].relleno.estilo, i < 2 ? EstiloRelleno::solido : EstiloRelleno::cruzadoDiagonal) << i;
  }
  const auto marcas = pintadas<PrimCaja>(lienzo);
  ASSERT_EQ(marcas.size(), 9U);
  EXPECT_TRUE(cerca(marcas[2].a, {9.98, 108.98}) && cerca(marcas[2].b, {10.02, 109.02}));
  EXPECT_EQ(marcas[2].relleno.color, color::negro);
}

TEST(FiguraRapida, LinesOfTheCanal) {
  Lienzo lienzo(865, 433);
  lienzo.Scale(-10, 125, 45, 100);
  const DesignState e = rapidaDeMano();
  FiguraRapida(e, eje, anchoMayor).DIBUJACANAL(lienzo);
  EXPECT_EQ(lienzo.DrawStyle, EstiloLinea::solida);
  const auto polilineas = pintadas<PrimPolilinea>(lienzo);
  ASSERT_EQ(polilineas.size(), 1U + 6U + 1U);
  EXPECT_EQ(polilineas[0].pluma.color, color::rojo);
  EXPECT_EQ(polilineas[0].pluma.estilo, EstiloLinea::solida);
  EXPECT_EQ(polilineas[7].pluma.estilo, EstiloLinea::guionPunto);
  // bed edges of the lower side: canal 2, chute 2, basin 3 and again 2 wide
  EXPECT_EQ(polilineas[1].puntos, (std::vector<Punto>{{-9, 119}, {-4, 119}, {0, 119}, {20, 119}, {25, 118.5}}));
  EXPECT_EQ(polilineas[2].puntos, (std::vector<Punto>{{34.875, 118.5}, {37.875, 119}, {42.875, 119}}));
  EXPECT_EQ(polilineas[3].puntos, (std::vector<Punto>{{25, 118.5}, {34.875, 118.5}}));
  EXPECT_EQ(polilineas[4].puntos.back(), (Punto{25, 121.5}));
  const auto lineas = pintadas<PrimLinea>(lienzo);
  ASSERT_EQ(lineas.size(), 10U + 8U);
  EXPECT_EQ(lineas[9].pluma.estilo, EstiloLinea::solida) << "the hatch of the ramps";
  EXPECT_EQ(lineas[10].pluma.estilo, EstiloLinea::guionPunto);
  for (const auto& [x, medio] : {std::pair{-4.0, 3.0}, {0.0, 1.0}, {24.0, 1.4}, {33.0, 1.5}, {37.875, 2.75}})
    EXPECT_TRUE(hayLinea(lineas, {x, eje - medio}, {x, eje + medio})) << x;
}

TEST(FiguraRapida, DimensionLines) {
  for (const int tramos : {1, 2, 3})
    EXPECT_EQ(pintado<PrimLinea>(rapidaDeMano(tramos), &FiguraRapida::EJESDIMENSION).size(),
              92U + 4U * static_cast<std::size_t>(tramos));
  const double abre = 0.05 * 0.577328;  // tan of 30 degrees with 3.1415 for pi
  const auto l = pintado<PrimLinea>(rapidaDeMano(2), &FiguraRapida::EJESDIMENSION);
  const Segmento seccion[] = {
      // inlet
      {{-4, 109.75}, {-4, 109.5}},
      {{-4, 109.6}, {0, 109.6}},
      {{-4, 109.6}, {-3.95, 109.6 + abre}},
      {{0, 109.6}, {-0.05, 109.6 - abre}},
      // chain, with the bar of the basin; a joint has heads to both sides
      {{0, 102.35}, {37.875, 102.35}},
      {{10, 102.35}, {10.05, 102.35 + abre}},
      {{10, 102.35}, {9.95, 102.35 + abre}},
      {{34.725, 102.75}, {34.925, 102.75}},
      // yn and y2, split round their labels; yo, arrows only; yc
      {{34.875, 104}, {34.875, 104.5275}},
      {{34.875, 104.7225}, {34.875, 105.25}},
      {{29, 102.75}, {29, 103.9025}},
      {{20, 105}, {20 + abre, 105.05}},
      {{-0.4, 110.2}, {-0.4, 110.6025}},
      // widths of the plan
      {{-4, 123}, {-4 + abre, 122.95}},
      {{-4, 117}, {-4 - abre, 117.05}},
      {{25, 118.5}, {25 + abre, 118.55}},
  };
  for (const auto& s : seccion) EXPECT_TRUE(hayLinea(l, s.a, s.b)) << s.a.x << ' ' << s.a.y << " - " << s.b.x;
  for (const double x : {0.0, 20.0, 24.0, 25.0, 33.0, 34.875, 37.875})
    EXPECT_TRUE(hayLinea(l, {x, 102.5}, {x, 102.25})) << x;
  EXPECT_FALSE(hayLinea(l, {10, 102.5}, {10, 102.25})) << "a joint has no tick";
  EXPECT_FALSE(hayLinea(l, {20, 105}, {20, 105.0525})) << "yo has no line";

  const auto planta = pintado<PrimLinea>(rapidaDeMano(), &FiguraRapida::EJESDIMENSIONPLANTA);
  EXPECT_EQ(planta.size(), 6U + 1U + 1U + 4U + 16U);
  EXPECT_TRUE(hayLinea(planta, {20, 116.6}, {37.875, 116.6}));
  EXPECT_TRUE(hayLinea(planta, {24, 116.75}, {24, 116.5}));
  EXPECT_TRUE(hayLinea(planta, {34.725, 102.75}, {34.925, 102.75})) << "the bar stays in the section";
}

TEST(FiguraRapida, LeaderOfTheTrajectoryEquation) {
  const auto l = pintado<PrimLinea>(rapidaDeMano(), &FiguraRapida::EJESDIMENSION);
  const double fin = 20 + 4 / 2.75;
  EXPECT_TRUE(hayLinea(l, {fin - w("Y= -0.2500 X  -0.046875 X²") / 1250, 103.68}, {fin, 103.68}));
  EXPECT_TRUE(hayLinea(l, {fin, 103.68}, {22, 104.3125}));
  // its head: rise 0.6325 over a sixth of 4 m is 43.494 degrees; strokes of 0.05 / cos 30 at 30 degrees to either side
  std::vector<double> giros;
  for (const auto& s : l) {
    if (!cerca(s.a, {22, 104.3125})) continue;
    giros.push_back(std::atan2(s.a.y - s.b.y, s.a.x - s.b.x) * 180 / M_PI);
    EXPECT_NEAR(std::hypot(s.a.y - s.b.y, s.a.x - s.b.x), 0.057735, 1e-5);
  }
  ASSERT_EQ(giros.size(), 2U);
  EXPECT_NEAR(giros[0], 73.494, 0.01);
  EXPECT_NEAR(giros[1], 13.494, 0.01);
}

TEST(FiguraRapida, UprightLabels) {
  EXPECT_EQ(rotulos(rapidaDeMano(), &FiguraRapida::DIMENSIONES),
            "|4.000|h=0.2|Sección de control|Yc= 1|20|CANAL DE LA RAPIDA|P.C.|P.T.|Y= -0.2500 X  -0.046875 X²|Y1=0.25|"
            "Y2=2.5|h= 1.25|Yn= 1.25|Proyección de canal|Canal Aguas Abajo|4|1|8|1.875|3|4|1|8|1.875|3|6.00|2.00|2.00|"
            "3.00|3.00|5.50|PLANTA|SECCION LONGITUDINAL|");
  const auto t = pintado<PrimTexto>(rapidaDeMano(), &FiguraRapida::DIMENSIONES);
  esperarRotulos(
      t, {{"4.000", -2 - w("4.000") / 2000, 109.6},
          {"h=0.2", -0.8 - w("0.00") / 2000, 110.1 + alta / 2500},
          {"Sección de control", -w("Sección de control") / 2000, 109.85},
          {"Yc= 1", -0.4 - w("0.00") / 2000, 110.7 + alta / 2500},
          {"CANAL DE LA RAPIDA", 10 - w("CANAL DE LA RAPIDA") / 2000, 102.35 + alta / 1000},
          {"Y= -0.2500 X  -0.046875 X²", 20 + 4 / 2.75 - w("Y= -0.2500 X  -0.046875 X²") / 1250, 103.875 - alta / 5000},
          {"Y1=0.25", 25, 102.75 + alta / 1500},
          {"Y2=2.5", 29 - w("0.000") / 2000, 104 + alta / 2500},
          {"h= 1.25", 34.875 - w("0.00") / 2000, 103.375 + alta / 2500},
          {"1.875", 33.9375 - w("1.875") / 2000, 116.6},
          {"3", 36.375 - w("3.00") / 2000, 116.6},
          {"Proyección de canal", 25 + 8 / 3.0, 105.9},
          {"Canal Aguas Abajo", 37.975, 102.45},
          {"6.00", -4 - w("0.00") / 2000, 120 + alta / 2500},
          {"PLANTA", 29 - w("PLANTA") / 2500, 116.4}});
  for (const PrimTexto& p : t) EXPECT_EQ(p.letra.negrita, p.texto.starts_with("PLANTA") || p.texto.starts_with("SEC"));
  // the lengths of the reaches, each in its middle
  esperarRotulos(
      pintado<PrimTexto>(rapidaDeMano(3), &FiguraRapida::DIMENSIONES),
      {{"8", 4 - w("8") / 2000, 102.35}, {"4", 10 - w("4") / 2000, 102.35}, {"8", 16 - w("8") / 2000, 102.35}});
}

TEST(FiguraRapida, SlantedAndVerticalLabels) {
  EXPECT_EQ(rotulos(rapidaDeMano(3), &FiguraRapida::textrotate),
            "|1:2|1:1.5|Canal aguas arriba; s=-0.01|Q= 4m³/s; Yn= 1.5; V= 1.2m/s|s=-0.4375|Vo= 6m/s; Yo= 0.3|s=-0.0625|"
            "s=-0.25|Línea Gradiente de Energía|V= 1.5m/s|s=-0.01|Est:1+000.00|E:110.000|Est:1+008.00|E:109.500|"
            "Est:1+012.00|E:108.500|Est:1+020.00|E:105.000|Est:1+024.00|E:103.250|Est:1+025.00|E:102.750|Est:1+034.88|"
            "E:104.000|");
  const double e1 = 107.13486239;
  const double e2 = 105.93577982;
  esperarRotulos(pintado<PrimTexto>(rapidaDeMano(3), &FiguraRapida::textrotate),
                 {{"1:2", 24.5 - 0.89442719 * 0.2, 103 - 0.44721360 * 0.1, 333.4},
                  {"1:1.5", 33.9375, 103.375 - 0.55470020 * 0.35, 33.7},
                  {"s=-0.4375", 19, 105.4375 - alta / 2500, 336.4},
                  {"Vo= 6m/s; Yo= 0.3", 19, 105.5875 + alta / 2500, 336.4},
                  {"Canal aguas arriba; s=-0.01", -6.5, 109.965, 359.4},
                  {"Q= 4m³/s; Yn= 1.5; V= 1.2m/s", -6.5, 110.815 + alta / 2500, 359.4},
                  {"Línea Gradiente de Energía", 65.0 / 3, (2 * e1 + e2) / 3 + alta / 1500, 346.5},
                  {"V= 1.5m/s", 35.475, 104.619 + alta / 2500, 359.4},
                  {"s=-0.01", 37.975, 103.969 - alta / 2500, 359.4},
                  {"s=-0.25", 10, 109 - alta / 2500, 346},
                  {"Est:1+000.00", -alta / 1500, 109.5 - w("0+000.00") / 1000, 90},
                  {"E:110.000", 0, 109.5 - w("0+000.00") / 1000, 90},
                  {"Est:1+012.00", 12 - alta / 1500, 109.4, 90},
                  {"E:103.250", 24, 103.65, 90},
                  {"E:102.750", 25, 104.25, 90},
                  {"Est:1+034.88", 34.875 - alta / 1500, 105.85, 90}});
  EXPECT_EQ(pintado<PrimTexto>(rapidaDeMano(2), &FiguraRapida::textrotate).size(), 22U);
  EXPECT_EQ(pintado<PrimTexto>(rapidaDeMano(1), &FiguraRapida::textrotate).size(), 19U);
}

TEST(FiguraRapida, LabelsThatAreLeftOut) {
  const auto dice = [](const std::string& todos, const char* algo) { return todos.find(algo) != std::string::npos; };
  DesignState e = rapidaDeMano();
  e.sobreelevacion = 0;
  e.frArriba = 1;
  e.longTransEntrada = e.longTransSalida = 0;
  e.profPoza = 0;
  const std::string t = rotulos(e, &FiguraRapida::DIMENSIONES);
  for (const char* fuera : {"|h=0", "|Yc= ", "|0.000", "|1.875"}) EXPECT_FALSE(dice(t, fuera)) << fuera;
  EXPECT_TRUE(dice(t, "|h= 0.00|")) << "the depth of the basin stays";
  const std::string g = rotulos(e, &FiguraRapida::textrotate);
  EXPECT_TRUE(dice(g, "|1:2|"));
  EXPECT_FALSE(dice(g, "|1:1.5|")) << "a basin without depth has no ramp";
  e.frArriba = 1.0001;
  EXPECT_TRUE(dice(rotulos(e, &FiguraRapida::DIMENSIONES), "|Yc= "));
  // the lines without a length still stand, one on the other
  EXPECT_TRUE(hayLinea(pintado<PrimLinea>(e, &FiguraRapida::EJESDIMENSION), {0, 109.6}, {0, 109.6}));
  EXPECT_EQ(pintado<PrimLinea>(e, &FiguraRapida::DIBUJACANAL).size(), 18U);
  // a label without an angle is lost
  e = rapidaDeMano();
  e.zRampaEntrada = e.zRampaSalida = 0;
  EXPECT_FALSE(dice(rotulos(e, &FiguraRapida::textrotate), "|1:"));
}

TEST(FiguraRapida, FontsFollowTheViewDownToTheirSmallestSize) {
  const struct {
    double alto, derecha, girada;
  } casos[] = {{10, 4, 6}, {22, 40.0 / 22, 2}, {1000, 0.04, 1}, {1e6, 0.001, 1}, {0.5, 80, 110}};
  for (const auto& c : casos) {  // 5.5 pixels become the even 6
    const auto d = pintado<PrimTexto>(rapidaDeMano(), &FiguraRapida::DIMENSIONES, c.alto);
    const auto g = pintado<PrimTexto>(rapidaDeMano(), &FiguraRapida::textrotate, c.alto);
    EXPECT_NEAR(d.front().letra.puntos, c.derecha, 1e-9) << c.alto;
    EXPECT_NEAR(g.front().letra.puntos, c.girada / 1.117 * 0.75, 1e-9) << c.alto;
  }
}

TEST(FiguraRapida, AHalfComputedRecordNeverStopsTheFigure) {
  const auto finito = [](Punto p) { return std::isfinite(p.x) && std::isfinite(p.y); };
  std::mt19937 azar(20240611);
  const double valores[] = {0, 0, 1, -1, 0.05, -0.5, 2, 1e-30, 3e38, -3e38, 1e9, 2534.6};
  std::uniform_int_distribution<std::size_t> cual(0, std::size(valores) - 1);
  for (int vuelta = 0; vuelta < 300; ++vuelta) {
    DesignState e = vuelta % 2 == 0 ? DesignState() : rapidaDeMano(1 + vuelta % 3);
    for (const auto& c : camposSingle())
      if (vuelta > 0 && (vuelta % 2 == 0 || azar() % 8 == 0)) e.*c.campo = valores[cual(azar)];
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
    for (const auto& t : pintadas<PrimTexto>(lienzo))
      ASSERT_TRUE(finito(t.en) && std::isfinite(t.letra.puntos)) << vuelta;
  }
}

}  // namespace
}  // namespace calvento
