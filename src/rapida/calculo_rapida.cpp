#include "rapida/calculo_rapida.h"

#include "comun/numeros.h"
#include "estructura/pasos.h"
#include "hidraulica/resalto.h"
#include "hidraulica/solvers.h"
#include "poza/tabla_tanques.h"

namespace calvento {

namespace {

/// The regimes of the canal and of the chute; false stops the calculation. `y0` becomes the depth the chute starts
/// with.
bool comprobarRegimen(DesignState& e, PantallaRapida& pantalla, Single& y0) {
  const Seccion rapida{e.bRapida, e.zRapida};
  const Single yn = YNORMAL(e.Q, e.bRapida, e.zRapida, e.nRapida, e.sTramo1);
  if (rapida.froude(e.Q, yn) < 1) {
    pantalla.dialogos().aviso("FLUJO SUB CRITICO EN EL CANAL DE LA RÁPIDA!!!, VERIFIQUE SUS DATOS");
    return false;
  }
  if (e.frArriba > 1) {
    if (!pantalla.dialogos().pregunta(
            "FLUJO SUPER CRITICO EN CANAL AGUAS ARRIBA; DESEA INICIAR EL CALCULO CON Yn EN EL CANAL DE LA RÁPIDA?")) {
      pantalla.inhabilitarResultados();
      return false;
    }
    // the canal's normal depth is meant, not the chute's
    y0 = e.ynArriba;
    e.sobreelevacion = 0;
  } else {
    y0 = YCRITICO(e.Q, e.bRapida, e.zRapida);
  }
  return true;
}

/// Runs before the reaches are computed, so hRapida is still that of the former calculation: a second one can give
/// another length.
void LONGTRANSENTRADA(DesignState& e) {
  calcularTransicionEntrada(e, 2 * e.zArriba * e.hArriba + e.bArriba, 2 * e.zRapida * e.hRapida + e.bRapida);
}

void LONGTRANSSALIDA(DesignState& e) {
  calcularTransicionSalida(e, 2 * e.zPoza * e.hPoza + e.bPoza, 2 * e.zAbajo * e.hAbajo + e.bAbajo, true);
}

void finDeRapida(DesignState& e, Single y0) {
  const Seccion rapida{e.bRapida, e.zRapida};
  e.yFin = y0;
  e.vFin = e.Q / rapida.area(e.yFin);
  e.frFin = e.vFin / Sqr(gravedad * rapida.area(e.yFin) / rapida.espejo(e.yFin));
}

void resalto(DesignState& e, Dialogos& dialogos) {
  calcularCanalAbajo(e);
  const Single difEnergia = nivelEnergia(e.vAbajo, e.cotaAbajo, e.ynAbajo) - nivelEnergia(e.vFin, e.cotaFin, e.yFin);
  e.y1 = Y1RESALTO(e.Q, e.yFin, e.vFin, e.cotaFin, e.cotaAbajo, e.bPoza, dialogos);
  e.y2 = conjugadoRectangular(e.y1, e.Q / e.bPoza);
  TIRANTESCONJUGADOS(e, {e.bPoza, e.zPoza, difEnergia}, 0.001);
}

/// Parabola of the trajectory, flatter than the free jet by the factor of 1.5² on the velocity head, and its tangent
/// with the ramp. A ramp steeper than the parabola at the floor is flattened, told in a message each time.
void trayectoria(DesignState& e, PantallaRapida& pantalla) {
  const Single S = e.sUltimoTramo;
  e.trayA = -(S * S + 1) * gravedad / (4.5 * e.vFin * e.vFin);
  e.trayB = -S;
  while (true) {
    e.xTrayectoria = -(2 * e.trayB + 1) / (2 * e.zRampaEntrada * e.trayA);
    e.cotaTrayectoria = e.cotaFin - Abs(e.xTrayectoria * e.xTrayectoria * e.trayA + e.trayB * e.xTrayectoria);
    const Real xe =
        e.longRapida + (-e.trayB - Sqr(e.trayB * e.trayB - 4 * e.trayA * (e.cotaFin - e.cotaPoza))) / (2 * e.trayA);
    const Real zMin = -(2 * e.trayB + 1) / (2 * e.trayA * (xe - e.longRapida));
    if (!(e.zRampaEntrada < zMin)) return;
    const Real zNew = enRejilla(zMin + 0.05);
    const Single anterior = e.zRampaEntrada;
    pantalla.dialogos().aviso("El Talud(Z) de la rampa de ingreso a la poza debe ser >=" + texto(zNew));
    pantalla.mostrarTaludEntrada(texto(zNew));
    e.zRampaEntrada = zNew;
    // beyond the resolution of the 4-byte slope the step of the grid is lost and no slope would ever be enough
    if (e.zRampaEntrada == anterior) fallar(Motivo::sinConvergencia);
  }
}

/// The chute's wall takes the freeboard named for the downstream canal and the other way round: they are crossed here
/// on purpose. A raised basin wall goes to the grid again.
void alturas(DesignState& e, const Form2& p) {
  calcularAlturas(e, e.yFin, {p.Text6, p.Text8, p.Text7});
  e.hPoza = enRejilla(e.hPoza);
}

void espejos(DesignState& e) {
  e.espejoArriba = 2 * e.hArriba * e.zArriba + e.bArriba;
  e.espejoAbajo = 2 * e.hAbajo * e.zAbajo + e.bAbajo;
  e.espejoRapida = 2 * e.hRapida * e.zRapida + e.bRapida;
  e.espejoPoza = 2 * e.hPoza * e.zPoza + e.bPoza;
}

}  // namespace

bool calcularRapida(DesignState& e, const Form2& p, PantallaRapida& pantalla) {
  calcularCanalArriba(e, p.Text5, true);
  pantalla.SECONTROL();
  if (e.sobreelevacion < 0) e.sobreelevacion = 0;
  Single y0;
  if (!comprobarRegimen(e, pantalla, y0)) return false;

  e.ycControl = y0;
  LONGTRANSENTRADA(e);
  bool completo = false;
  y0 = perfilRapida(e, y0, pantalla, completo);
  if (!completo) return false;
  finDeRapida(e, y0);

  resalto(e, pantalla.dialogos());
  avisarAncho(e, {e.bRapida, e.frFin, e.bPoza}, pantalla.dialogos());
  trayectoria(e, pantalla);

  SELECCIONARTANQUE(pantalla.tablaTanques(), e, p, {e.zPoza, e.v1, "F= "});
  alturas(e, p);
  LONGTRANSSALIDA(e);
  espejos(e);

  const Single kAhogamiento = razonAhogamiento(e);
  if (!(kAhogamiento < 0)) pantalla.mostrarAhogamiento(textoAhogamiento(kAhogamiento));
  pantalla.habilitarResultados();
  LONGPOZA(e, p, pantalla.dialogos());
  return true;
}

}  // namespace calvento
