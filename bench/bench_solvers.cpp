#include <array>

#include "desnudo.h"
#include "hidraulica/solvers.h"
#include "medida.h"

namespace calvento {
namespace {

struct Canal {
  double Q, b, z, n, S;
};
constexpr std::array<Canal, 8> canales = {{{126, 6.1, 1.5, 0.013, 0.0008},
                                           {1.24597, 1.2192, 3, 0.055, 0.02},
                                           {0.5097, 1.2192, 2, 0.035, 0.02},
                                           {6, 1.5, 1.5, 0.014, 0.0013},
                                           {2.3, 1.8, 1.5, 0.03, 0.0005},
                                           {3, 1, 0, 0.014, 0.2},
                                           {0.05, 0.4, 0.5, 0.017, 0.001},
                                           {40, 12, 2, 0.025, 0.0003}}};

struct CasoResalto {
  double Q, y, v, cotaA, cotaB, B;
};
constexpr std::array<CasoResalto, 4> resaltos = {
    {{6, 0.35, 8.1, 104, 100, 3}, {2.3, 0.2, 9.5, 52.5, 50, 1.2}, {40, 0.8, 12, 310, 300, 5}, {1, 0.15, 5, 11, 10, 1}}};

void YCRITICO_comprobado(benchmark::State& e) {
  medir(e, canales, [](const Canal& c) { return YCRITICO(c.Q, c.b, c.z).valor(); });
}
void YCRITICO_desnudo(benchmark::State& e) {
  medir(e, canales, [](const Canal& c) { return yCriticoDesnudo(c.Q, c.b, c.z); });
}
void YNORMAL_comprobado(benchmark::State& e) {
  medir(e, canales, [](const Canal& c) { return YNORMAL(c.Q, c.b, c.z, c.n, c.S).valor(); });
}
void YNORMAL_desnudo(benchmark::State& e) {
  medir(e, canales, [](const Canal& c) { return yNormalDesnudo(c.Q, c.b, c.z, c.n, c.S); });
}
void Y1RESALTO_comprobado(benchmark::State& e) {
  SinCajas dialogos;
  medir(e, resaltos,
        [&](const CasoResalto& c) { return Y1RESALTO(c.Q, c.y, c.v, c.cotaA, c.cotaB, c.B, dialogos).valor(); });
}
void Y1RESALTO_desnudo(benchmark::State& e) {
  medir(e, resaltos, [](const CasoResalto& c) { return y1ResaltoDesnudo(c.Q, c.y, c.v, c.cotaA, c.cotaB, c.B); });
}

BENCHMARK(YCRITICO_desnudo);
BENCHMARK(YCRITICO_comprobado);
BENCHMARK(YNORMAL_desnudo);
BENCHMARK(YNORMAL_comprobado);
BENCHMARK(Y1RESALTO_desnudo);
BENCHMARK(Y1RESALTO_comprobado);

}  // namespace
}  // namespace calvento
