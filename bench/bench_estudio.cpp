// A study of 500 chutes of three reaches, and one such chute of the batch program with all its reports.
#include <algorithm>
#include <benchmark/benchmark.h>

#include "aplicacion_muda.h"
#include "estudio/estudio.h"
#include "lote/json.h"

namespace calvento {
namespace {

constexpr const char* ejemplo = RAIZ_PROYECTO "/ejemplos/04-tres-tramos.cvr";

void Estudio_de500(benchmark::State& estado, bool conInformes) {
  AplicacionMuda muda;
  auto* datos = muda.aplicacion.cargar<VentanaDatos>("Form10");
  datos->abrir(ejemplo);
  const Ficha& ficha = *fichaDe("Form10");
  const Diseno base(ficha, *datos, *muda.aplicacion.cargar(ficha.parametros), muda.aplicacion.estado, {});
  const Entrada &ancho = *entradaDe(ficha, "bRapida"), &caudal = *entradaDe(ficha, "Q");
  const std::vector<Variacion> varia = {{&ancho, valores(ancho, {"1.5", "2.48", "0.02"})},
                                        {&caudal, valores(caudal, {"7.5", "12", "0.5"})}};
  std::size_t calculados = 0;
  for (auto _ : estado) {
    Estudio estudio(base, varia, conInformes);
    estudio.completar();
    calculados = static_cast<std::size_t>(std::ranges::count_if(estudio.filas(), &Fila::calculado));
  }
  if (calculados != 500) estado.SkipWithError("not all of them are calculated");
}
BENCHMARK_CAPTURE(Estudio_de500, sinInformes, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Estudio_de500, conInformes, true)->Unit(benchmark::kMillisecond);

void Lote_json(benchmark::State& estado) {
  lote::Opciones opciones;
  opciones.json = true;
  std::size_t bytes = 0;
  for (auto _ : estado) bytes = lote::comoJson(lote::Sesion(opciones, ejemplo)).size();
  estado.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(Lote_json)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace calvento
