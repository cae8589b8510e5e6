#include <gtest/gtest.h>

#include "apoyo/publicados.h"
#include "hidraulica/flujo.h"
#include "hidraulica/salto.h"

namespace calvento {
namespace {

TEST(Publicados, NormalAndCriticalFlow) {
  compararPublicados("canal", 14, [](const CifraPublicada& c) -> Real {
    const Real Q = c.de("Q");
    const Seccion seccion{c.de("b"), c.de("z")};
    const Real yc = YCRITICO(Q, seccion.b, seccion.z);
    if (c.magnitud == "yc") return yc;
    const Real n = c.de("n");
    if (c.magnitud == "Sc") {
      const Flujo f = flujoEn(seccion, Q, yc);
      return pendienteFriccion(n, f.velocidad, f.radio);
    }
    const Real yn = YNORMAL(Q, seccion.b, seccion.z, n, c.de("S"));
    if (c.magnitud == "yn") return yn;
    if (c.magnitud == "v") return flujoEn(seccion, Q, yn).velocidad;
    if (c.magnitud == "F") return seccion.froude(Q, yn);
    throw std::runtime_error("no such figure: " + c.magnitud);
  });
}

TEST(Publicados, HydraulicJump) {
  compararPublicados("salto", 6, [](const CifraPublicada& c) -> Real {
    DesignState estado;
    estado.Q = c.de("Q");
    estado.y1 = c.de("y1");
    const Salto s = calcularSalto(estado, c.de("z"), c.de("b"));
    if (c.magnitud == "y2") return estado.y2;
    if (c.magnitud == "F1") return s.F1;
    if (c.magnitud == "F2") return s.F2;
    if (c.magnitud == "E1") return s.E1;
    if (c.magnitud == "E2") return s.E2;
    throw std::runtime_error("no such figure: " + c.magnitud);
  });
}

}  // namespace
}  // namespace calvento
