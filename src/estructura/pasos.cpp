#include "estructura/pasos.h"

#include "hidraulica/solvers.h"

namespace calvento {

void ponerAltura(Single& altura, Real tirante, const TextBox& bordoLibre, bool enRejillaObra) {
  altura = tirante + Val(bordoLibre.Text);
  if (enRejillaObra) altura = enRejilla(altura);
}

void calcularCanalArriba(DesignState& e, const TextBox& bordoLibre, bool enRejillaObra) {
  e.ynArriba = YNORMAL(e.Q, e.bArriba, e.zArriba, e.nArriba, e.sArriba);
  ponerAltura(e.hArriba, e.ynArriba, bordoLibre, enRejillaObra);
  const Seccion canal{e.bArriba, e.zArriba};
  e.vArriba = e.Q / canal.area(e.ynArriba);
  e.frArriba = e.vArriba / Sqr(gravedad * canal.area(e.ynArriba) / canal.espejo(e.ynArriba));
}

void calcularCanalAbajo(DesignState& e) {
  e.ynAbajo = YNORMAL(e.Q, e.bAbajo, e.zAbajo, e.nAbajo, e.sAbajo);
  e.vAbajo = e.Q / Seccion{e.bAbajo, e.zAbajo}.area(e.ynAbajo);
}

Real nivelEnergia(Real velocidad, Real cota, Real tirante) { return velocidad * velocidad / dosG + cota + tirante; }

std::string textoAhogamiento(Real razon) { return "k=  " + texto(Round(razon * 100, 2)) + "%  ;Y2=h+Yw"; }

}  // namespace calvento
