#include <array>
#include <atomic>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdlib>
#include <new>

#include "hidraulica/solvers.h"

// Every allocation of this program is counted, so that a benchmark can tell those of its loop.
namespace {
std::atomic<long> reservas{0};
}
void* operator new(std::size_t bytes) {
  ++reservas;
  if (void* p = std::malloc(bytes)) return p;
  throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }

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

class SinCajas : public Dialogos {
 public:
  void aviso(const std::string&) override { std::abort(); }
  void fallo(const std::string&) override { std::abort(); }
  bool pregunta(const std::string&) override { std::abort(); }
  std::optional<std::string> abrirArchivo(const OpcionesArchivo&) override { std::abort(); }
  std::optional<std::string> guardarArchivo(const OpcionesArchivo&) override { std::abort(); }
};

// The floors: the same steps in bare numbers, a 4-byte iterate included, and the same bound of rounds.

[[gnu::noinline]] float yCriticoDesnudo(double Q, double b, double z) {
  const double K = Q * Q / 9.81;
  float y = 1;
  float anterior = 0;
  for (int vuelta = 0; vuelta < 100000 && !(std::fabs(double{y} - double{anterior}) < 0.001); ++vuelta) {
    const double yy = y;
    const double A = (b + z * yy) * yy;
    const double T = b + 2 * z * yy;
    const double F = A * A * A / T - K;
    const double dF = 3 * A * A - 2 * z * A * A * A / (T * T);
    anterior = y;
    y = static_cast<float>(yy - F / dF);
  }
  return y;
}

[[gnu::noinline]] float yNormalDesnudo(double Q, double b, double z, double n, double S) {
  const double W = std::sqrt(1 + z * z);
  const double gasto = Q * n / std::sqrt(S);
  const double K = gasto * gasto * gasto;
  float y = 1;
  float anterior = 0;
  for (int vuelta = 0; vuelta < 100000 && !(std::fabs(double{y} - double{anterior}) < 0.001); ++vuelta) {
    const double yy = y;
    const double A = (b + z * yy) * yy;
    const double P = b + 2 * yy * W;
    const double T = b + 2 * z * yy;
    const double A4 = A * A * A * A;
    const double A5 = A4 * A;
    const double F = A5 / (P * P) - K;
    const double dF = (5 * P * T * A4 - 4 * W * A5) / (P * P * P);
    anterior = y;
    y = static_cast<float>(yy - F / dF);
  }
  return y;
}

[[gnu::noinline]] double y1ResaltoDesnudo(double Q, double y, double v, double cotaA, double cotaB, double B) {
  const double a = -((cotaA + y - cotaB) + v * v / 19.62);
  const double c = Q * Q / (19.62 * B * B);
  const double p = -a * a / 3;
  const double q = (2 * a * a * a + 27 * c) / 27;
  const double discriminante = q * q / 4 + p * p * p / 27;
  if (discriminante > 0) return 0;
  if (discriminante == 0) return std::pow(-4 * q, 1.0 / 3);
  const double tercio = p / 3;
  const double c0 = -0.5 * q / std::sqrt(-(tercio * tercio * tercio));
  const double theta = std::atan(std::sqrt(1 - c0 * c0) / c0);
  return 2 * std::sqrt(-tercio) * std::cos((theta + 4 * 3.1415) / 3) - a / 3;
}

/// Runs one calculation over all cases of a table in turn.
template <class Casos, class Calculo>
void medir(benchmark::State& estado, const Casos& casos, Calculo calculo) {
  for (const auto& caso : casos) benchmark::DoNotOptimize(calculo(caso));
  const long antes = reservas;
  for (auto _ : estado) {
    for (auto caso : casos) {
      benchmark::DoNotOptimize(caso);
      benchmark::DoNotOptimize(calculo(caso));
    }
  }
  const long propias = reservas - antes;
  estado.counters["reservas"] = static_cast<double>(propias);
  if (propias > 2) estado.SkipWithError("the loop allocates");  // the frame of the measurement itself may, once
}

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
