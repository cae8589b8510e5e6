#include <functional>
#include <gtest/gtest.h>

#include "apoyo/publicados.h"
#include "comun/numeros.h"
#include "hidraulica/flujo.h"
#include "hidraulica/salto.h"

namespace calvento {
namespace {

using Programa = std::function<Real(const CifraPublicada&)>;

void comparar(const std::string& tema, std::size_t cuantas, const Programa& programa) {
  const auto cifras = cifrasPublicadas(tema);
  EXPECT_EQ(cifras.size(), cuantas);
  std::ifstream archivo(RAIZ_PROYECTO "/docs/validacion.md");
  const std::string pagina{std::istreambuf_iterator<char>(archivo), {}};
  for (const CifraPublicada& c : cifras) {
    const Real nuestro = programa(c);
    EXPECT_NEAR(nuestro.valor(), c.valor(), c.tolerancia) << c.caso << ' ' << c.magnitud << ", " << c.fuente;
    // the page for the reader shows what the program gives today
    std::string patron = "0.";
    patron.append(static_cast<std::size_t>(c.decimales()) + 1, '0');
    const std::string renglon = "| " + c.caso + " | " + c.entrada + " | " + c.magnitud + " | " + c.publicado + " | " +
                                formato(nuestro, patron) + " |";
    EXPECT_NE(pagina.find(renglon), std::string::npos) << "docs/validacion.md lacks the row\n" << renglon;
  }
}

TEST(Publicados, NormalAndCriticalFlow) {
  comparar("canal", 14, [](const CifraPublicada& c) -> Real {
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
  comparar("salto", 6, [](const CifraPublicada& c) -> Real {
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
