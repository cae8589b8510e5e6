#include <gtest/gtest.h>

#include "apoyo/mesa_rapida.h"
#include "apoyo/publicados.h"
#include "hidraulica/solvers.h"

namespace calvento {
namespace {

TEST(Publicados, ControlSectionOfAChute) {
  compararPublicados("control", 5, [](const CifraPublicada& c) -> Real {
    MesaRapida m;
    const auto t = [&](const char* nombre) { return texto(Real(c.de(nombre))); };
    m.poner({{"Text5", t("Q")},
             {"Text6", t("bArriba")},
             {"Text7", t("zArriba")},
             {"Text8", t("nArriba")},
             {"Text9", t("sArriba")},
             {"Text10", t("bRapida")},
             {"Text11", t("zRapida")}});
    const DesignState& e = m.estado;
    const Real vc = e.Q / Seccion{c.de("bRapida"), c.de("zRapida")}.area(e.ycControl);
    if (c.magnitud == "yn") return e.ynArriba;
    if (c.magnitud == "E") return e.ynArriba + e.vArriba * e.vArriba / dosG;
    if (c.magnitud == "yc") return e.ycControl;
    if (c.magnitud == "Ec") return e.ycControl + vc * vc / dosG;
    if (c.magnitud == "sobreelevación") return e.sobreelevacion;
    throw std::runtime_error("no such figure: " + c.magnitud);
  });
}

}  // namespace
}  // namespace calvento
