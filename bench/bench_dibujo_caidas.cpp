#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "aplicacion_muda.h"
#include "dibujo/marco_dibujo.h"
#include "plataforma/ventana_datos.h"
#include "qt/exportar_dibujo.h"
#include "qt/pintor.h"

// What one redrawing of the drops' sheets costs on a canvas of 865 by 433 pixels: rulers, figure and paint.

namespace calvento {
namespace {

struct Caso {
  const char* proyecto;
  const char* datos;
  const char* dibujo;
};
constexpr Caso casos[] = {{"11-inclinada-rectangular.cvi", "Form1", "Form4"},
                          {"13-inclinada-supercritica.cvi", "Form1", "Form4"},
                          {"22-vertical-con-obstaculos.cvv", "Form16", "Form17"},
                          {"23-vertical-tubos.cvv", "Form16", "Form17"}};

void RedibujoCaida(benchmark::State& s) {
  asegurarAplicacionGrafica();
  const Caso& caso = casos[s.range(0)];
  AplicacionMuda muda;
  Aplicacion& aplicacion = muda.aplicacion;
  aplicacion.cargar<VentanaDatos>(caso.datos)->abrir(std::string(RAIZ_PROYECTO "/ejemplos/") + caso.proyecto);
  auto& ventana = *aplicacion.cargar<MarcoDibujo>(caso.dibujo);
  QImage imagen(865, 433, QImage::Format_RGB32);
  for (auto _ : s) {
    ventana.ver(s.range(1) == 0 ? "vistaTodo" : "vistaTanque");
    QPainter p(&imagen);
    pintar(ventana.GRAF.lienzo, p, QRectF(imagen.rect()));
  }
  s.SetLabel(caso.proyecto);
}

BENCHMARK(RedibujoCaida)->ArgsProduct({{0, 1, 2, 3}, {0, 1}})->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace calvento
