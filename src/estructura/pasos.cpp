#include "estructura/pasos.h"

#include "hidraulica/solvers.h"
#include "hidraulica/transicion.h"

namespace calvento {

void ponerAltura(Single& altura, Real tirante, const TextBox& bordoLibre, bool enRejillaObra) {
  altura = tirante + Val(bordoLibre.Text);
  if (enRejillaObra) altura = enRejilla(altura);
}

void calcularAlturas(DesignState& e, Real tiranteRapida, const BordosLibres& bordos) {
  ponerAltura(e.hAbajo, e.ynAbajo, bordos.abajo, true);
  ponerAltura(e.hRapida, tiranteRapida, bordos.rapida, true);
  ponerAltura(e.hPoza, e.y2, bordos.poza, true);
  if (e.cotaAbajo + e.hAbajo > e.cotaPoza + e.hPoza) e.hPoza = e.cotaAbajo + e.hAbajo - e.cotaPoza;
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

void calcularTransicionEntrada(DesignState& e, Real espejoCanal, Real espejoEstructura) {
  e.espejoArriba = espejoCanal;
  e.espejoRapida = espejoEstructura;
  e.longTransEntrada = longitudTransicion(e.espejoArriba, e.espejoRapida, e.anguloTransicion);
  e.longTransEntrada = enRejilla(e.longTransEntrada);
}

void calcularTransicionSalida(DesignState& e, Real espejoPoza, Real espejoCanal, bool conMinimo) {
  e.espejoPoza = espejoPoza;
  e.espejoAbajo = espejoCanal;
  e.longTransSalida = longitudTransicion(e.espejoPoza, e.espejoAbajo, e.anguloTransicion);
  // the threshold and the length built instead differ on purpose
  if (conMinimo && e.longTransSalida < Single(0.15)) e.longTransSalida = 0.5;
  e.longTransSalida = enRejilla(e.longTransSalida);
}

Real nivelEnergia(Real velocidad, Real cota, Real tirante) { return velocidad * velocidad / dosG + cota + tirante; }

Real energiaEspecifica(Real velocidad, Real tirante) { return velocidad * velocidad / dosG + tirante; }

void avisarAncho(const DesignState& e, const AnchoPoza& ancho, Dialogos& dialogos) {
  const Real W = ancho.entrada + 2 * e.zRampaEntrada * (e.cotaFin - e.cotaPoza) *
                                     Sqr(1 / (e.zRampaEntrada * e.zRampaEntrada) + 1) / (3 * ancho.froude);
  if (W > ancho.poza) return;
  dialogos.aviso("Ancho de poza debe ser menor de: " + texto(Round(W, 3)));
}

std::string textoAhogamiento(Real razon) { return "k=  " + texto(Round(razon * 100, 2)) + "%  ;Y2=h+Yw"; }

}  // namespace calvento
