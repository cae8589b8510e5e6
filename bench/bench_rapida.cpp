#include <array>
#include <utility>

#include "desnudo.h"
#include "hidraulica/marcha.h"
#include "medida.h"
#include "rapida/form10.h"

namespace calvento {
namespace {

/// A reach and the depth at its head.
struct Tramo {
  double Q, b, z, n, S, cotaA, cotaB, y;
};
constexpr std::array<Tramo, 3> tramos = {{{12, 2.1, 0.5, 0.015, 0.06, 420, 417.25, 1.3349204},
                                          {12, 2.1, 0.5, 0.015, 0.15, 417.25, 410.1, 0.65626144},
                                          {12, 2.1, 0.5, 0.015, 0.40, 410.1, 388.75, 0.46325693}}};

using FilaDesnuda = std::array<float, 5>;

/// The march of a reach in bare numbers; writes a hundred rows.
[[gnu::noinline]] float marcharDesnudo(const Tramo& t, float& x, FilaDesnuda* fila) {
  double y = t.y;
  const double L = (t.cotaA - t.cotaB) / t.S;
  const double dz = (t.cotaA - t.cotaB) / 100;
  const double ds = std::sqrt(t.S * t.S + 1) * L / 100;
  const double W = std::sqrt(1 + t.z * t.z);
  double A = (t.b + t.z * y) * y;
  double v = t.Q / A;
  double H = dz + y + v * v / 19.62;
  double c = t.cotaA;
  y = y / 2;
  float r = 0;
  for (int i = 0; i < 100; ++i) {
    double raiz = 0;
    for (int vuelta = 0; vuelta < 100000; ++vuelta) {
      r = static_cast<float>(y);
      const double T = t.b + 2 * t.z * y;
      A = (t.b + t.z * y) * y;
      v = t.Q / A;
      const double P = t.b + 2 * y * W;
      const double R = A / P;
      raiz = t.n * v / std::pow(R, 2.0 / 3.0);
      const double F = v * v / 19.62 + y + 0.5 * ds * (raiz * raiz) - H;
      const double dF = 1 - T * v * v / (9.81 * A) -
                        (0.5 * ds * t.n * t.n / std::pow(R, 7.0 / 3.0)) *
                            (2 * R * T * v * v / A + (4 / (3 * P * P)) * v * v * (T * P - 2 * A * W));
      y = y - F / dF;
      if (std::fabs(y - double{r}) < 0.00001) break;
    }
    x = static_cast<float>(double{x} + dz / t.S);
    c -= dz;
    *fila++ = {x, static_cast<float>(y), static_cast<float>(c), static_cast<float>(v),
               static_cast<float>(v * v / 19.62 + y + c)};
    H = dz + y + v * v / 19.62 - ds * (raiz * raiz) / 2;
    y = 0.9 * y;
  }
  return r;
}

float marcharComprobado(const Tramo& t, Single& x, FilaPerfil* fila) {
  Real c = t.cotaA;
  return marchar({t.Q, t.b, t.z, t.n, t.S, t.cotaA, t.cotaB, 0.9}, t.y,
                 [&](const EstacionMarcha& s) {
                   x = x + s.dx;
                   c = c - s.dz;
                   *fila++ = FilaPerfil{x, s.y, c, s.v, s.v * s.v / dosG + s.y + c};
                 })
      .valor();
}

std::array<FilaDesnuda, 300> filasDesnudas;
std::array<FilaPerfil, 300> filasComprobadas;

void YO_desnudo(benchmark::State& e) {
  medir(e, tramos, [](const Tramo& t) {
    float x = 0;
    return marcharDesnudo(t, x, filasDesnudas.data());
  });
}
void YO_comprobado(benchmark::State& e) {
  medir(e, tramos, [](const Tramo& t) {
    Single x = 0;
    return marcharComprobado(t, x, filasComprobadas.data());
  });
}

/// Both conjugate depths by Newton's method, in bare numbers.
[[gnu::noinline]] std::pair<float, float> resaltoDesnudo(double Q, double b, double z, double k1, double dE, float y1,
                                                         float y2) {
  float y1a = 0, y2a = 0;
  do {
    const double u1 = y1, u2 = y2;
    const double A1 = (z * u1 + b) * u1, A2 = (z * u2 + b) * u2;
    const double v1 = static_cast<float>(Q / A1), v2 = static_cast<float>(Q / A2);
    const double T1 = static_cast<float>(2 * z * u1 + b), T2 = static_cast<float>(2 * z * u2 + b);
    const double c1 = z * u1 / 3 + b / 2, c2 = z * u2 / 3 + b / 2;
    const double f = (v2 * v2 / 19.62 + u2) * k1 - u1 - 1.1 * v1 * v1 / 19.62 - dE;
    const double g = c2 * u2 * u2 + Q * v2 / 9.81 - c1 * u1 * u1 - Q * v1 / 9.81;
    const double f1 = v1 * v1 * (1.1 * T1) / (9.81 * A1) - 1;
    const double f2 = k1 * (1 - v2 * v2 * T2 / (9.81 * A2));
    const double g1 = v1 * v1 * T1 / 9.81 - 2 * c1 * u1 - u1 * u1 * z / 3;
    const double g2 = 2 * c2 * u2 + u2 * u2 * z / 3 - v2 * v2 * T2 / 9.81;
    y1a = y1;
    y2a = y2;
    y1 = static_cast<float>(u1 - (g2 * f / (f1 * g2 - f2 * g1) + f2 * g / (f2 * g1 - f1 * g2)));
    y2 = static_cast<float>(u2 - (g1 * f / (f2 * g1 - f1 * g2) + f1 * g / (f1 * g2 - f2 * g1)));
  } while (!(std::fabs(double{y1} - double{y1a}) < 0.001 && std::fabs(double{y2} - double{y2a}) < 0.001));
  return {y1, y2};
}

/// Discharge and basin width. (Two numbers: a single one kept in a register is spoilt by the measuring library's
/// barrier.)
struct Chorro {
  double Q, bPoza;
};
constexpr std::array<Chorro, 1> caudales = {{{12, 2.6}}};

/// What a whole calculation of the chute of three reaches computes, without window, record, texts and table.
double rapidaDesnuda(const Chorro& dato) {
  const double Q = dato.Q;
  double suma = 0;
  float y0 = 0;
  // the calculation solves the canal and the control section, and the live preview within it does so again
  for (int vez = 0; vez < 2; ++vez) {
    suma += double{yNormalDesnudo(Q, 3, 1.5, 0.0225, 0.0006)};
    y0 = yCriticoDesnudo(Q, 2.1, 0.5);
  }
  suma += double{yNormalDesnudo(Q, 2.1, 0.5, 0.015, 0.06)};
  float x = 0;
  for (std::size_t i = 0; i < tramos.size(); ++i) {
    Tramo t = tramos[i];
    t.Q = Q;
    t.y = double{y0};
    y0 = marcharDesnudo(t, x, filasDesnudas.data() + 100 * i);
  }
  const double yFin = y0, v = Q / ((2.1 + 0.5 * yFin) * yFin), ynAbajo = yNormalDesnudo(Q, 3.5, 1.5, 0.0225, 0.0005);
  const double vAbajo = Q / ((3.5 + 1.5 * ynAbajo) * ynAbajo);
  const double dE = (vAbajo * vAbajo / 19.62 + 387.2 + ynAbajo) - (v * v / 19.62 + 388.75 + yFin);
  const double y1 = y1ResaltoDesnudo(Q, yFin, v, 388.75, 387.2, dato.bPoza);
  const double q = Q / dato.bPoza;
  const double y2 = -y1 / 2 + std::sqrt(y1 * y1 / 4 + 2 * q * q / (y1 * 9.81));
  const auto [a, b] = resaltoDesnudo(Q, dato.bPoza, 0, 1.1, dE, static_cast<float>(y1), static_cast<float>(y2));
  for (int vez = 0; vez < 2; ++vez) suma += std::tan(12.5 * 3.1415 / 180);
  return suma + double{a} + double{b} + double{x};
}

struct Rapida {
  SinCajas dialogos;
  SinVentanas navegador;
  DesignState estado;
  Form2 form2{navegador};
  Form10 f{estado, form2, dialogos, navegador};
  Rapida() {
    constexpr std::array<std::pair<const char*, const char*>, 27> datos = {
        {{"Text5", "12"},      {"Text6", "3"},       {"Text7", "1.5"},    {"Text8", "0.0225"}, {"Text9", "0.0006"},
         {"Text10", "2.1"},    {"Text11", "0.5"},    {"Text12", "0.015"}, {"Text13", "0.06"},  {"Text15", "0.15"},
         {"Text14", "0.40"},   {"Text17", "3"},      {"Text16", "3.5"},   {"Text18", "1.5"},   {"Text19", "0.0225"},
         {"Text20", "0.0005"}, {"Text23", "2.6"},    {"Text24", "0"},     {"Text25", "15200"}, {"Text1", "420.00"},
         {"Text3", "417.25"},  {"Text27", "410.10"}, {"Text2", "388.75"}, {"Text4", "387.20"}, {"Text21", "2"},
         {"Text22", "1.5"},    {"Text26", "10"}}};
    for (const auto& [campo, texto] : datos) f.buscar<TextBox>(campo)->Text = texto;
    f.Grid1.pulsar(4);
  }
};

void Command3_desnudo(benchmark::State& e) { medir(e, caudales, rapidaDesnuda); }

/// The window's whole work: fields read, hints, table of basins and menus written.
void Command3_ventana(benchmark::State& e) {
  Rapida r;
  medirCommand3(e, r.f);
}

BENCHMARK(YO_desnudo);
BENCHMARK(YO_comprobado);
BENCHMARK(Command3_desnudo);
BENCHMARK(Command3_ventana);

}  // namespace
}  // namespace calvento
