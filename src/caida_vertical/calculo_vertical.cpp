#include "caida_vertical/calculo_vertical.h"

#include "comun/numeros.h"
#include "estructura/pasos.h"
#include "hidraulica/resalto.h"
#include "hidraulica/solvers.h"

namespace calvento {

namespace {

constexpr const char* consejoRapida =
    "DESNIVEL > 4.6 M; SE RECOMIENDA DISEÑAR COMO RAPIDA, DESEA CONTINUAR EL CALCULO?";
constexpr const char* avisoRapido =
    "FLUJO SUPER CRITICO, EN CANAL AGUAS ARRIBA, SE RECOMIENDA DISEÑAR COMO CAIDA INCLINADA EN REGIMEN SUPER CRITICO";

/// Width of the basin with the contraction on both sides.
Real anchoTotal(const DesignState& e) { return 2 * e.longTransVert + e.bPozaCaida; }

void velocidadesResalto(DesignState& e) {
  const Real W = anchoTotal(e);
  e.v1 = e.Q / (W * e.y1);
  e.v2 = e.Q / (W * e.y2);
}

/// Free fall into a basin without obstacles. The drop number is formed on the plain width, the velocities on the width
/// with the contraction; both are meant.
void SINOBSTACULOS(DesignState& e, PantallaVertical& pantalla) {
  const Real h = e.cotaFin - e.cotaAbajo;
  const Real q = e.Q / e.bPozaCaida;
  pantalla.mostrarAnchoSugerido(textoAnchoSugerido(e.Q, energiaEspecifica(e.vArriba, e.ynArriba)));
  const CaidaLibre caida = caidaLibre(h, q);
  e.yVert94 = h * potencia(caida.D, 0.22);
  e.y1 = caida.y1;
  e.y2 = caida.y2;
  velocidadesResalto(e);
  e.longPoza = (e.y2 - e.y1) * e.kLongPoza;
  e.longRapida = caida.Ld + e.longPoza;
}

/// Basin with a row of blocks under the jet (impact basin). Here the drop number is formed on the discharge that the
/// canal's energy drives over the crest; K plays no part.
void CONOBSTACULOS(DesignState& e, PantallaVertical& pantalla) {
  const Real h = e.cotaFin - e.cotaAbajo;
  const Real H = energiaEspecifica(e.vArriba, e.ynArriba);
  const Real c = e.ycControl;
  const Real qH = caudalUnitario(H);
  pantalla.mostrarAnchoSugerido(textoAnchoSugerido(e.Q, H));
  e.y2 = 2.15 * e.yFin;
  const Real a = e.ynArriba - h;
  const Real nivel = a - e.y2;
  e.longTramo1 = alcanceImpacto(c, a, nivel);
  e.longTramo2 = 0.8 * c;
  e.longTramo3 = 1.75 * c;
  e.longRapida = e.longTramo2 + e.longTramo1 + e.longTramo3;
  e.longPoza = e.longTramo3 + e.longTramo2;
  e.yVert94 = h * potencia(qH * qH / (gravedad * cubo(h)), 0.22);
  const Real q = e.Q / anchoTotal(e);
  e.y1 = conjugadoRectangular(e.y2, q);
  velocidadesResalto(e);
}

void pozaYTrayectoria(DesignState& e) {
  const Real E2 = energiaEspecifica(e.v2, e.y2);
  calcularCanalAbajo(e);
  const Real Ea = energiaEspecifica(e.vAbajo, e.ynAbajo);
  e.profPoza = E2 - Ea;
  e.profPoza = enRejilla(e.profPoza);
  // not even a negative zero, which the grid makes of a few millimetres
  if (!(e.profPoza > 0)) e.profPoza = 0;
  e.cotaPoza = e.cotaAbajo - e.profPoza;
  e.trayA = -(e.sArriba * e.sArriba + 1) * gravedad / (2 * e.vFin * e.vFin);
  e.trayB = -e.sArriba;
}

void LONGTRANSENTRADA(DesignState& e) {
  calcularTransicionEntrada(e, 2 * e.zArriba * e.ynArriba + e.bArriba, e.bPozaCaida);
}

/// No least length here, unlike in the other two structures.
void LONGTRANSSALIDA(DesignState& e) {
  calcularTransicionSalida(e, anchoTotal(e), 2 * e.zAbajo * e.ynAbajo + e.bAbajo, false);
}

void espejos(DesignState& e) {
  e.espejoArriba = 2 * e.hArriba * e.zArriba + e.bArriba;
  e.espejoAbajo = 2 * e.hAbajo * e.zAbajo + e.bAbajo;
  e.espejoRapida = e.bEntradaCaida;
  e.espejoPoza = anchoTotal(e);
}

bool comprobarDatos(DesignState& e, const Form25& p, PantallaVertical& pantalla) {
  if (e.cotaFin - e.cotaAbajo > Single(4.6) && !pantalla.dialogos().pregunta(consejoRapida)) {
    pantalla.inhabilitarGraficoYTanque();
    return false;
  }
  calcularCanalArriba(e, p.Text5, false);
  if (e.frArriba > 1) {
    pantalla.dialogos().aviso(avisoRapido);
    pantalla.inhabilitarGraficoYTanque();
    return false;
  }
  return true;
}

}  // namespace

CaidaLibre caidaLibre(Real h, Real q) {
  const Real D = q * q / (gravedad * cubo(h));
  return {D, 4.3 * h * potencia(D, 0.27), 0.54 * h * potencia(D, 0.425), 1.66 * h * potencia(D, 0.27)};
}

Real alcanceImpacto(Real yc, Real a, Real nivel) {
  const Real Xe = (Sqr(3.195 - 4.368 * nivel / yc) - 0.406) * yc;
  const Real Xa = (Sqr(3.195 - 4.368 * a / yc) - 0.406) * yc;
  const Real Xt = yc * (0.691 + 0.228 * cuadrado(Xa / yc) - nivel / yc) / (0.185 + 0.456 * Xa / yc);
  return (Xe + Xt) / 2;
}

Real caudalUnitario(Real H) { return 1.48 * potencia(H, 1.5); }

std::string textoAnchoSugerido(Real Q, Real H) {
  return "Ancho de poza calculado(B): " + texto(Round(Q / caudalUnitario(H), 3));
}

bool calcularVertical(DesignState& e, const Form25& p, PantallaVertical& pantalla) {
  if (!comprobarDatos(e, p, pantalla)) return false;
  const Real areaArriba = Seccion{e.bArriba, e.zArriba}.area(e.ynArriba);

  e.bEntradaCaida = e.bPozaCaida;
  e.ycControl = YCRITICO(e.Q, e.bPozaCaida, 0);
  e.yFin = e.ycControl;
  e.vFin = e.Q / (e.bPozaCaida * e.yFin);
  LONGTRANSENTRADA(e);
  if (pantalla.sinObstaculos()) {
    e.tipoTanque = 1;
    SINOBSTACULOS(e, pantalla);
  } else {
    e.tipoTanque = 0;
    CONOBSTACULOS(e, pantalla);
  }
  pozaYTrayectoria(e);
  e.longControl = 3.5 * e.yFin;
  e.longControl = enRejilla(e.longControl);

  // every later reader takes the velocity over the upstream area for the downstream one: meant
  e.ynAbajo = YNORMAL(e.Q, e.bAbajo, e.zAbajo, e.nAbajo, e.sAbajo);
  e.vAbajo = e.Q / areaArriba;
  ponerAltura(e.hAbajo, e.ynAbajo, p.Text8, false);
  LONGTRANSSALIDA(e);
  espejos(e);
  pantalla.habilitarResultados();
  perfilSobreCresta(e);
  AGUJEROS(e, p);
  return true;
}

}  // namespace calvento
