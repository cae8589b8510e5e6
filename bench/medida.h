#pragma once

#include <atomic>
#include <benchmark/benchmark.h>
#include <cstdlib>

#include "plataforma/dialogos.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana_datos.h"

namespace calvento {

/// Allocations of this program so far, so that a benchmark can tell those of its loop.
extern std::atomic<long> reservas;

/// No box may appear while it is measured.
class SinCajas : public Dialogos {
 public:
  void aviso(const std::string&) override { std::abort(); }
  void fallo(const std::string&) override { std::abort(); }
  bool pregunta(const std::string&) override { std::abort(); }
  std::optional<std::string> abrirArchivo(const OpcionesArchivo&) override { std::abort(); }
  std::optional<std::string> guardarArchivo(const OpcionesArchivo&) override { std::abort(); }
};

/// Nothing is shown while it is measured.
class SinVentanas : public Navegador {
 public:
  void mostrar(std::string_view) override {}
  void ocultar(Ventana&) override {}
  void descargar(Ventana&) override {}
  void imprimir(Ventana&) override {}
  void copiar(Ventana&) override {}
  void terminar() override {}
};

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

/// Presses of a data window's Command3, with the allocations of each.
inline void medirCommand3(benchmark::State& estado, VentanaDatos& ventana) {
  const long antes = reservas;
  for (auto _ : estado) ventana.Command3_Click();
  estado.counters["reservas"] =
      benchmark::Counter(static_cast<double>(reservas - antes), benchmark::Counter::kAvgIterations);
  if (!ventana.calculado()) estado.SkipWithError("not calculated");
}

}  // namespace calvento
