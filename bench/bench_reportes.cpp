// Opening each report of a chute of three reaches.
#include <benchmark/benchmark.h>

#include "aplicacion/aplicacion.h"
#include "plataforma/ventana_datos.h"

namespace calvento {
namespace {

class SinCajas : public Dialogos {
 public:
  void aviso(const std::string&) override {}
  void fallo(const std::string& texto) override { throw std::runtime_error(texto); }
  bool pregunta(const std::string&) override { return true; }
  std::optional<std::string> abrirArchivo(const OpcionesArchivo&) override { return {}; }
  std::optional<std::string> guardarArchivo(const OpcionesArchivo&) override { return {}; }
};

class SinPantalla : public SistemaVentanas {
 public:
  void presentar(Ventana&) override {}
  void ocultar(Ventana&) override {}
  void cerrar(Ventana&) override {}
  void imprimir(Ventana&) override {}
  void copiar(Ventana&) override {}
  void terminar() override {}
  void despues(std::function<void()> accion) override { accion(); }
};

void abrirReporte(benchmark::State& estado, const char* ventana) {
  SinCajas dialogos;
  SinPantalla pantalla;
  Aplicacion aplicacion(dialogos, pantalla);
  aplicacion.cargar<VentanaDatos>("Form10")->abrir(RAIZ_PROYECTO "/ejemplos/04-tres-tramos.cvr");
  for (auto _ : estado) {
    Ventana* reporte = aplicacion.cargar(ventana);
    benchmark::DoNotOptimize(reporte);
    aplicacion.descargar(*reporte);
  }
}
BENCHMARK_CAPTURE(abrirReporte, Form11, "Form11")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(abrirReporte, Form6, "Form6")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(abrirReporte, Form8, "Form8")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(abrirReporte, Form13, "Form13")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace calvento
