#include <string>

#include "caida_inclinada/form1.h"
#include "caida_vertical/form16.h"
#include "medida.h"

// Command3 of both drops on the example projects: the window's whole work, fields read and results written.

namespace calvento {
namespace {

std::string ejemplo(const char* nombre) { return std::string(RAIZ_PROYECTO "/ejemplos/") + nombre; }

void inclinada(benchmark::State& e, const char* proyecto, bool supercritico) {
  SinCajas dialogos;
  SinVentanas navegador;
  DesignState estado;
  Form2 form2(navegador);
  Form1 f(estado, form2, dialogos, navegador);
  f.abrir(ejemplo(proyecto));
  if (supercritico) f.mnsuper.Click();
  medirCommand3(e, f);
}

void vertical(benchmark::State& e, const char* proyecto) {
  SinCajas dialogos;
  SinVentanas navegador;
  DesignState estado;
  Form25 form25(estado, navegador);
  Form16 f(estado, form25, dialogos, navegador);
  f.abrir(ejemplo(proyecto));
  medirCommand3(e, f);
}

BENCHMARK_CAPTURE(inclinada, subcritica, "11-inclinada-rectangular.cvi", false);
BENCHMARK_CAPTURE(inclinada, llegada_rapida, "14-inclinada-llegada-rapida.cvi", false);
BENCHMARK_CAPTURE(inclinada, supercritica, "13-inclinada-supercritica.cvi", true);
BENCHMARK_CAPTURE(vertical, sin_obstaculos, "21-vertical-sin-obstaculos.cvv");
BENCHMARK_CAPTURE(vertical, con_obstaculos, "22-vertical-con-obstaculos.cvv");
BENCHMARK_CAPTURE(vertical, tubos, "23-vertical-tubos.cvv");

}  // namespace
}  // namespace calvento
