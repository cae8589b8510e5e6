// Opening each report of a chute of three reaches.
#include <benchmark/benchmark.h>

#include "aplicacion_muda.h"
#include "plataforma/ventana_datos.h"

namespace calvento {
namespace {

void abrirReporte(benchmark::State& estado, const char* ventana) {
  AplicacionMuda muda;
  Aplicacion& aplicacion = muda.aplicacion;
  aplicacion.cargar<VentanaDatos>("Form10")->abrir(RAIZ_PROYECTO "/ejemplos/04-tres-tramos.cvr");
  for (auto _ : estado) {
    Ventana* reporte = aplicacion.cargar(ventana);
    benchmark::DoNotOptimize(reporte);
    aplicacion.descargar(*reporte);
    muda.pantalla.atender();
  }
}
BENCHMARK_CAPTURE(abrirReporte, Form11, "Form11")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(abrirReporte, Form6, "Form6")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(abrirReporte, Form8, "Form8")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(abrirReporte, Form13, "Form13")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace calvento
