#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "dibujo/reglas.h"
#include "plataforma/medidas.h"

namespace calvento {
namespace {

struct Raya {
  double en, desde, hasta;  // place along the ruler, ends across it
};

std::vector<Raya> rayas(const Lienzo& l, bool horizontal) {
  std::vector<Raya> r;
  for (const Primitiva& p : l.primitivas())
    if (const auto* linea = std::get_if<PrimLinea>(&p)) {
      if (horizontal)
        r.push_back({linea->a.x, linea->a.y, linea->b.y});
      else
        r.push_back({linea->a.y, linea->a.x, linea->b.x});
    }
  return r;
}

std::vector<PrimTexto> textos(const Lienzo& l) {
  std::vector<PrimTexto> t;
  for (const Primitiva& p : l.primitivas())
    if (const auto* texto = std::get_if<PrimTexto>(&p)) t.push_back(*texto);
  return t;
}

std::vector<std::string> rotulos(const Lienzo& l) {
  std::vector<std::string> r;
  for (const PrimTexto& t : textos(l)) r.push_back(t.texto);
  return r;
}

TEST(Reglas, ElPasoMasCercanoDeLaSerieEnNueveDecadas) {
  // 1.2 in five parts is 0.24, in six 0.2 exactly; 3 in six parts 0.5; 7 in seven 1; 10 in five 2
  const struct { double tramo, paso; } casos[] = {{1.2, 0.2}, {3, 0.5}, {7, 1}, {10, 2}, {24, 5}};
  for (int decada = -3; decada <= 5; ++decada)
    for (const auto& c : casos) {
      const double diez = std::pow(10.0, decada);
      const double paso = pasoDeRegla(c.tramo * diez).valor();
      // where more than one part hits a step, the first hit wins, but never by more than rounding
      EXPECT_NEAR(paso, c.paso * diez, 1e-6 * c.paso * diez) << c.tramo * diez;
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
  EXPECT_EQ(franja.ScaleTop(), 2);
  EXPECT_EQ(franja.ScaleHeight(), -2);

  std::vector<double> largas, cortas;
  for (const Raya& r : rayas(franja, true)) {
    if (r.desde == 1.98 && r.hasta == 1.65)
      largas.push_back(r.en);
    else if (r.desde == 1.97 && r.hasta == 1.8)
      cortas.push_back(r.en);
    else
      ADD_FAILURE() << r.desde << " " << r.hasta;
  }
  EXPECT_EQ(largas, (std::vector<double>{100, 102, 104, 106, 108, 110, 112}));
  ASSERT_EQ(cortas.size(), 31U);  // five to a step
  EXPECT_NEAR(cortas[1] - cortas[0], 0.4, 1e-5);

  // the first fits half over the edge; the last would stick out and is left away
  EXPECT_EQ(rotulos(franja), (std::vector<std::string>{"0+100.00", "0+102.00", "0+104.00", "0+106.00", "0+108.00"}));
  const PrimTexto t = textos(franja)[1];
  EXPECT_NEAR(t.en.x, 102 - anchoTexto("102") / 15.0 / 2 * 10 / 865, 1e-6);
  EXPECT_EQ(t.en.y, 1.6);
  EXPECT_EQ(t.letra.puntos, 8);
}

TEST(Reglas, LaVerticalLlevaElevacionesEnCifrasDeCuatroBytes) {
  Lienzo franja(65, 433);
  EJEY(90.5, 91.7, franja, reglaElevaciones);  // step 0.2
  EXPECT_EQ(rotulos(franja), (std::vector<std::string>{"90.6", "90.8", "91", "91.2", "91.4", "91.6"}));
  const PrimTexto t = textos(franja)[3];
  const double derecha = t.en.x + anchoTexto("91.2") / 15.0 * 2 / 65;
  EXPECT_NEAR(derecha, 1.5, 1e-6);
  const double mediaLinea = 195 / 15.0 / 2 * 1.2 / 433;
  EXPECT_NEAR(t.en.y, 91.2 + mediaLinea, 1e-5);
  for (const Raya& r : rayas(franja, false)) {
    EXPECT_EQ(r.hasta, 2);
    EXPECT_TRUE(r.desde == 1.75 || r.desde == 1.88) << r.desde;
    EXPECT_GE(r.en, 90.5F);
  }
}

TEST(Reglas, DesdeNegativosPasandoPorCero) {
  Lienzo franja(929, 41);
  EJEX(-7, 5, franja, reglaProgresivas);  // step 2; -7/2 cut towards zero is -3
  std::vector<double> largas;
  for (const Raya& r : rayas(franja, true))
    if (r.desde == 1.98) largas.push_back(r.en);
  EXPECT_EQ(largas, (std::vector<double>{-6, -4, -2, 0, 2, 4, 6}));
  const auto r = rotulos(franja);
  EXPECT_EQ(r[0], "-0+006.00");
  EXPECT_EQ(r[3], "0+000.00");

  Lienzo otra(65, 433);
  EJEY(0.3, 1.4, otra, reglaElevaciones);  // 0.3/0.2 cut is 1: the tick 0.2 lies below the edge and has no line
  for (const Raya& x : rayas(otra, false)) EXPECT_GE(x.en, 0.3F);
}

TEST(Reglas, LasDeLaTrayectoriaYLasSecciones) {
  Lienzo x(385, 41);
  EJEX(0, 8, x, reglaXTrayectoria);
  EXPECT_NEAR(x.ScaleLeft() + 48 * x.ScaleWidth() / 385, 0, 1e-9);  // 720 twips
  EXPECT_EQ(rotulos(x)[1], "2");
  EXPECT_EQ(rayas(x, true)[0].hasta, 1.75);
  Lienzo y(60, 277);
  EJEY(91.1234, 91.1241, y, reglaYTrayectoria);  // finer than its labels
  const auto finos = rotulos(y);
  EXPECT_NE(std::find(finos.begin(), finos.end(), "91.124"), finos.end());
  for (const std::string& r : finos) EXPECT_LE(r.size(), 6U) << r;
  EXPECT_EQ(rayas(y, false)[0].desde, 1.8);
  Lienzo s(520, 41);
  EJEX(-1.5, 1.5, s, reglaXSeccion);
  EXPECT_EQ(rotulos(s)[0], "-1.50");
}

TEST(Reglas, UnTramoSinMedidaNoSeCuelga) {
  Lienzo franja(65, 433);
  EXPECT_THROW(EJEY(0, 1e30, franja, reglaElevaciones), FalloAritmetico);
  EXPECT_THROW(EJEX(1e30, 3e30, franja, reglaProgresivas), FalloAritmetico);
  EXPECT_NO_THROW(EJEY(5, 5, franja, reglaElevaciones));
  EXPECT_NO_THROW(EJEY(1e30, 1e30, franja, reglaElevaciones));
}

}  // namespace
}  // namespace calvento
