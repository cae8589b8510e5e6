#include "caida_inclinada/calculo_inclinada.h"

#include "comun/numeros.h"
#include "estructura/pasos.h"
#include "hidraulica/resalto.h"
#include "hidraulica/solvers.h"
#include "poza/tabla_tanques.h"

namespace calvento {

namespace {

/// The energy level difference that the jump must close, in a 4-byte store. The crest's elevation has the rise in it
/// already; it is added once more here, and meant to be.
Single diferenciaEnergia(const DesignState& e) {
  return nivelEnergia(e.vAbajo, e.cotaAbajo, e.ynAbajo) - nivelEnergia(e.vFin, e.cotaFin + e.sobreelevacion, e.yFin);
}

/// Fast canal: the drop begins at normal depth, without a control section, on a curve fitted to the jet.
void entradaRapida(DesignState& e) {
  e.bEntradaCaida = e.bArriba;
  e.yFin = YNORMAL(e.Q, e.bArriba, e.zArriba, e.nArriba, e.sArriba);
  e.vFin = e.Q / Seccion{e.bArriba, e.zArriba}.area(e.yFin);
  e.sobreelevacion = 0;
  e.longControl = 0.15;
  e.radioCurva = e.yFin / (potencia(Exp(1), 1.5 / cuadrado(e.frArriba)) - 1);
}

void radioEnObra(DesignState& e) {
  e.radioCurva = enRejilla(e.radioCurva);
  if (e.radioCurva < Single(0.15)) e.radioCurva = 0.15;
}

void canalAbajo(DesignState& e) {
  calcularCanalAbajo(e);
  const Seccion canal{e.bAbajo, e.zAbajo};
  e.frAbajo = e.vAbajo / Sqr(gravedad * canal.area(e.ynAbajo) / canal.espejo(e.ynAbajo));
}

/// Where the crest curve touches the ramp, on the water side and on the inner side of the slab.
void puntoTangente(DesignState& e) {
  const Real R = e.radioCurva;
  const Real W = Sqr(cuadrado(e.zRampaEntrada) + 1);
  const Real a = e.anguloCaida;
  e.xTrayectoria = R / W - R * Sin(a);
  e.xTrayectoriaInt = (R - espesorMuro) / W - (R - espesorMuro) * Sin(a);
  e.cotaTrayectoria = e.cotaFin - R * Cos(a) + R * e.zRampaEntrada / W;
}

void primerosConjugados(DesignState& e, Dialogos& dialogos) {
  e.y1 = Y1RESALTO(e.Q, e.yFin, e.vFin, e.cotaFin, e.cotaAbajo, e.bPozaCaida, dialogos);
  e.y2 = conjugadoRectangular(e.y1, e.Q / e.bPozaCaida);
}

void resaltoYPoza(DesignState& e, const Form2& p, PantallaInclinada& pantalla) {
  TIRANTESCONJUGADOS(e, {e.bPozaCaida, e.zPozaCaida, diferenciaEnergia(e)}, 0.0001);
  e.profPoza = enRejilla(e.profPoza);
  // the velocity plays no part in the verdicts of this structure: it is judged as 0
  SELECCIONARTANQUE(pantalla.tablaTanques(), e, p, {e.zPozaCaida, 0, "Fr= "});
  LONGPOZA(e, p, pantalla.dialogos());
}

/// Moves the outlet level and the submergence until the outlet lies on the canal's grade line, measured over the
/// structure's whole length, which itself depends on the level.
void iterarSalida(DesignState& e, const Form2& p, PantallaInclinada& pantalla) {
  Single anterior;
  Vueltas vueltas(Vueltas::limiteAnidado);
  do {
    vueltas.una();
    anterior = e.cotaAbajo;
    resaltoYPoza(e, p, pantalla);
    e.cotaAbajo = e.cotaFin - ((e.cotaTrayectoria - e.cotaPoza) * e.zRampaEntrada + e.xTrayectoria + e.longPoza +
                               (anterior - e.cotaPoza) * e.zRampaSalida) *
                                  e.sArriba;
    e.ahogamiento = razonAhogamiento(e);
  } while (!(Abs(anterior - e.cotaAbajo) < 0.0001));
}

bool regimenSupercritico(DesignState& e, const Form2& p, PantallaInclinada& pantalla) {
  // the limit lies a little under the 2 % of the text, which also serves a canal that flows slowly
  if (Single(0.019) >= e.sArriba || e.frArriba <= 1) {
    pantalla.dialogos().aviso("LA PENDIENTE DEL CANAL DEBE SER MAYOR O IGUAL A 2%");
    return false;
  }
  entradaRapida(e);
  radioEnObra(e);
  e.zCaida = 1 / e.sArriba;
  e.cotaAbajo = e.cotaFin - 0.5;
  e.sAbajo = e.sArriba;
  pantalla.mostrarPendienteSalida(texto(e.sAbajo));
  canalAbajo(e);
  puntoTangente(e);
  primerosConjugados(e, pantalla.dialogos());
  iterarSalida(e, p, pantalla);
  pantalla.mostrarSalida(texto(Round(e.cotaAbajo, 3)), texto(Round(e.ahogamiento * 100, 2)));
  pantalla.mostrarAhogamiento(textoAhogamiento(e.ahogamiento));
  return true;
}

/// Critical depth in the basin's section at the crest; false when the canal's energy does not reach it.
bool seccionControl(DesignState& e, PantallaInclinada& pantalla) {
  pantalla.vistaControl();
  e.bEntradaCaida = e.bPozaCaida;
  const Real E0 = energiaEspecifica(e.vArriba, e.ynArriba);
  e.ycControl = YCRITICO(e.Q, e.bPozaCaida, e.zPozaCaida);
  e.yFin = e.ycControl;
  e.vFin = e.Q / Seccion{e.bPozaCaida, e.zPozaCaida}.area(e.yFin);
  const Real Ec = energiaEspecifica(e.vFin, e.ycControl);
  e.longControl = 3.5 * e.yFin;
  e.longControl = enRejilla(e.longControl);
  e.radioCurva = e.longControl;
  pantalla.mostrarSobreelevacion(texto(Round(E0 - Ec, 3)));
  e.sobreelevacion = Round(E0 - Ec, 3);
  if (e.sobreelevacion < 0) {
    pantalla.dialogos().aviso("Sobreelevación negativo en sección de control, modificar ancho de poza");
    return false;
  }
  e.cotaFin = e.cotaFin + e.sobreelevacion;
  return true;
}

bool regimenSubcritico(DesignState& e, const Form2& p, PantallaInclinada& pantalla) {
  pantalla.leerSalida();
  if (e.cotaFin - e.cotaAbajo > 4.5 && !pantalla.dialogos().pregunta("DESNIVEL > 4.50M; DESEA CONTINUAR EL CALCULO?")) {
    pantalla.inhabilitarResultados();
    return false;
  }
  if (e.frArriba > 1) {
    entradaRapida(e);
    e.zCaida = 1 / e.sArriba;
    pantalla.vistaRapida();
  } else if (!seccionControl(e, pantalla)) {
    return false;
  }
  primerosConjugados(e, pantalla.dialogos());
  canalAbajo(e);
  resaltoYPoza(e, p, pantalla);
  radioEnObra(e);
  puntoTangente(e);
  return true;
}

void LONGTRANSENTRADA(DesignState& e) {
  calcularTransicionEntrada(e, 2 * e.zArriba * e.hArriba + e.bArriba, 2 * e.zPozaCaida * e.hArriba + e.bEntradaCaida);
}

void LONGTRANSSALIDA(DesignState& e) {
  calcularTransicionSalida(e, 2 * e.zPozaCaida * e.hPoza + e.bPozaCaida, 2 * e.zAbajo * e.hAbajo + e.bAbajo, true);
}

void espejos(DesignState& e) {
  e.espejoArriba = 2 * e.hArriba * e.zArriba + e.bArriba;
  e.espejoAbajo = 2 * e.hAbajo * e.zAbajo + e.bAbajo;
  e.espejoRapida = 2 * e.hArriba * e.zPozaCaida + e.bEntradaCaida;
  e.espejoPoza = 2 * e.zPozaCaida * e.hPoza + e.bPozaCaida;
}

}  // namespace

bool calcularInclinada(DesignState& e, const Form2& p, PantallaInclinada& pantalla) {
  calcularCanalArriba(e, p.Text5, true);
  const bool sigue =
      pantalla.regimenSupercritico() ? regimenSupercritico(e, p, pantalla) : regimenSubcritico(e, p, pantalla);
  if (!sigue) return false;

  LONGTRANSENTRADA(e);
  calcularAlturas(e, (e.yFin + e.y1) / 2, {p.Text8, p.Text6, p.Text7});
  LONGTRANSSALIDA(e);
  espejos(e);
  const Real k = razonAhogamiento(e);
  if (k >= 0) pantalla.mostrarAhogamiento(textoAhogamiento(k));
  pantalla.habilitarResultados();
  avisarAncho(e, {e.bEntradaCaida, e.frArriba, e.bPozaCaida}, pantalla.dialogos());
  return true;
}

}  // namespace calvento
