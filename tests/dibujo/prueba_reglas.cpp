#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "apoyo/tablas.h"
#include "dibujo/puntos.h"
#include "dibujo/reglas.h"
#include "plataforma/medidas.h"

namespace calvento {
namespace {

std::string rotulos(const Lienzo& l) { return rotulados(pintadas<PrimTexto>(l)); }

TEST(Reglas, ElPasoMasCercanoDeLaSerieEnNueveDecadas) {
  // 1.2 / 5 is 0.24, 1.2 / 6 is 0.2 exactly; 3 / 6 is 0.5; 7 / 7 is 1; 10 / 5 is 2
  const struct { double tramo, paso; } casos[] = {{1.2, 0.2}, {3, 0.5}, {7, 1}, {10, 2}, {24, 5}};
  for (int decada = -3; decada <= 5; ++decada)
    for (const auto& c : casos) {
      const double diez = std::pow(10.0, decada);
      // where more than one part hits a step, the first hit wins, but never by more than rounding
      EXPECT_NEAR(pasoDeRegla(c.tramo * diez).valor(), c.paso * diez, 1e-6 * c.paso * diez) << c.tramo * diez;
    }
  EXPECT_FLOAT_EQ(pasoDeRegla(0.0002).valor(), 0.0001F) << "the smallest step";
  EXPECT_FLOAT_EQ(pasoDeRegla(1e9).valor(), 1e6F) << "the largest";
}

TEST(Reglas, LaHorizontalLlevaProgresivasBajoElDibujo) {
  Lienzo franja(929, 41);
  EJEX(100, 110, franja, reglaProgresivas);  // step 2
  // the strip's left 64 pixels stand beside the other ruler
  EXPECT_NEAR(franja.ScaleLeft() + 64 * franja.ScaleWidth() / 929, 100, 1e-9);
  EXPECT_NEAR(franja.ScaleLeft() + franja.ScaleWidth(), 110, 1e-9);
  std::vector<double> largas, cortas;
  for (const PrimLinea& r : pintadas<PrimLinea>(franja)) (r.b.y == 1.65 ? largas : cortas).push_back(r.a.x);
  EXPECT_EQ(largas, (std::vector<double>{100, 102, 104, 106, 108, 110, 112}));
  ASSERT_EQ(cortas.size(), 31U);  // five to a step
  EXPECT_NEAR(cortas[1] - cortas[0], 0.4, 1e-5);
  // the first fits half over the edge; the last would stick out and is left away
  EXPECT_EQ(rotulos(franja), "|0+100.00|0+102.00|0+104.00|0+106.00|0+108.00|");
  EXPECT_NEAR(pintadas<PrimTexto>(franja)[1].en.x, 102 - anchoTexto("102") / 15.0 / 2 * 10 / 865, 1e-6);

  // from negative ones through zero: -7/2 cut towards zero is -3
  EJEX(-7, 5, franja, reglaProgresivas);
  EXPECT_EQ(rotulos(franja), "|-0+006.00|-0+004.00|-0+002.00|0+000.00|0+002.00|0+004.00|");
  EXPECT_EQ(pintadas<PrimLinea>(franja).front().a.x, -6);
}

TEST(Reglas, LaVerticalLlevaElevacionesEnCifrasDeCuatroBytes) {
  Lienzo franja(65, 433);
  EJEY(90.5, 91.7, franja, reglaElevaciones);  // step 0.2
  EXPECT_EQ(rotulos(franja), "|90.6|90.8|91|91.2|91.4|91.6|");
  const PrimTexto t = pintadas<PrimTexto>(franja)[3];
  EXPECT_NEAR(t.en.x + anchoTexto("91.2") / 15.0 * 2 / 65, 1.5, 1e-6) << "its right end";
  EXPECT_NEAR(t.en.y, 91.2 + 195 / 15.0 / 2 * 1.2 / 433, 1e-5) << "half a line above";
  EJEY(0.3, 1.4, franja, reglaElevaciones);  // 0.3/0.2 cut is 1: the tick 0.2 lies below the edge and has no line
  for (const PrimLinea& r : pintadas<PrimLinea>(franja)) EXPECT_GE(r.a.y, 0.3F);
}

TEST(Reglas, LasDeLaTrayectoriaYLasSecciones) {
  Lienzo x(385, 41);
  EJEX(0, 8, x, reglaXTrayectoria);
  EXPECT_NEAR(x.ScaleLeft() + 48 * x.ScaleWidth() / 385, 0, 1e-9);  // 720 twips
  EXPECT_EQ(rotulos(x).substr(0, 5), "|0|2|");
  Lienzo y(60, 277);
  EJEY(91.1234, 91.1241, y, reglaYTrayectoria);  // finer than its labels
  EXPECT_NE(rotulos(y).find("|91.124|"), std::string::npos);
  for (const PrimTexto& r : pintadas<PrimTexto>(y)) EXPECT_LE(r.texto.size(), 6U) << r.texto;
  Lienzo s(520, 41);
  EJEX(-1.5, 1.5, s, reglaXSeccion);
  EXPECT_EQ(rotulos(s).substr(0, 7), "|-1.50|");
}

TEST(Reglas, LasMarcasVanDelBordeHaciaDentro) {
  const std::map<std::string, std::pair<const EstiloRegla&, bool>> reglas = {
      {"progresivas", {reglaProgresivas, true}}, {"x trayectoria", {reglaXTrayectoria, true}},
      {"x sección", {reglaXSeccion, true}},      {"elevaciones", {reglaElevaciones, false}},
      {"y sección", {reglaYSeccion, false}},     {"y trayectoria", {reglaYTrayectoria, false}}};
  porCadaFila("medidas.txt", "reglas", [&](const FilaTabla& f) {
    const auto& [estilo, horizontal] = reglas.at(f[0]);
    Lienzo franja(865, 433);
    (horizontal ? EJEX : EJEY)(100, 110, franja, estilo);
    std::set<std::pair<double, double>> marcas;
    for (const PrimLinea& l : pintadas<PrimLinea>(franja))
      marcas.insert(horizontal ? std::pair(l.a.y, l.b.y) : std::pair(std::max(l.a.x, l.b.x), std::min(l.a.x, l.b.x)));
    EXPECT_EQ(marcas, (std::set<std::pair<double, double>>{{f.num(1), f.num(2)}, {f.num(3), f.num(4)}}));
  });
}

TEST(Reglas, UnTramoSinMedidaNoSeCuelga) {
  Lienzo franja(65, 433);
  EXPECT_THROW(EJEY(0, 1e30, franja, reglaElevaciones), FalloAritmetico);
  EXPECT_THROW(EJEX(1e30, 3e30, franja, reglaProgresivas), FalloAritmetico);
  EXPECT_NO_THROW(EJEY(5, 5, franja, reglaElevaciones));
  EXPECT_NO_THROW(EJEY(1e30, 1e30, franja, reglaElevaciones));
  // turned round, by some 10 kilometres to more than whole numbers can count in ten-thousandths of a metre
  for (const double hasta : {-1e4, -1e5, -1e9, -1e10}) {
    EJEX(120, hasta, franja, reglaProgresivas);
    EXPECT_TRUE(franja.primitivas().empty()) << hasta;
  }
}

}  // namespace
}  // namespace calvento
