#pragma once

#include "modelo/design_state.h"

namespace calvento {

/// An inclined drop of round numbers: crest at 110 raised by 0.25, a curve of radius 2.5 down to 109.5 at 1.5 m, a
/// slope 1:2 to a basin of 6 m on 107, a canal on 108. The curve's centre stands under the crest.
inline DesignState inclinadaDeMano() {
  DesignState e;
  e.progresivaInicio = 500;
  e.Q = 3;
  e.bArriba = 1.5, e.zArriba = 1, e.sArriba = 0.01, e.hArriba = 1.5, e.espejoArriba = 4.5;
  e.ynArriba = 1.2, e.vArriba = 1.2, e.frArriba = 0.4;
  e.sobreelevacion = 0.25, e.longControl = 2, e.longTransEntrada = 3, e.bEntradaCaida = 1.5, e.zCaida = 2;
  e.cotaFin = 110, e.yFin = 0.8, e.vFin = 2.8, e.hRapida = 1, e.espejoRapida = 1.5;
  e.radioCurva = 2.5, e.anguloCaida = 0, e.xTrayectoria = 1.5, e.xTrayectoriaInt = 1.41, e.cotaTrayectoria = 109.5;
  e.zRampaEntrada = 2, e.zRampaSalida = 1.5, e.cotaPoza = 107, e.longPoza = 6, e.profPoza = 1;
  e.y1 = 0.2, e.v1 = 6, e.y2 = 2, e.v2 = 1, e.fr1 = 4.3, e.hPoza = 2.5, e.bPozaCaida = 2, e.espejoPoza = 2;
  e.cotaAbajo = 108, e.longTransSalida = 3, e.sAbajo = 0.01, e.ynAbajo = 1.1, e.vAbajo = 1.5;
  e.bAbajo = 1.5, e.zAbajo = 1, e.hAbajo = 1.4, e.espejoAbajo = 4.3;
  return e;
}

/// A vertical drop of round numbers: crest at 110, floor of 4 m on 107.5, canal on 108. The nappe is y = 110 - 1.25 x².
inline DesignState verticalDeMano() {
  DesignState e;
  e.progresivaInicio = 500;
  e.Q = 2;
  e.bArriba = 1, e.zArriba = 1, e.sArriba = 0.01, e.hArriba = 1, e.espejoArriba = 3;
  e.ynArriba = 0.8, e.vArriba = 1.2, e.frArriba = 0.4;
  e.longControl = 2, e.longTransEntrada = 3, e.cotaFin = 110, e.yFin = 0.5, e.ycControl = 0.5, e.vFin = 2;
  e.perfilCaida = {{-0.4, 0.52}, {-2, 0.6}, {-5, 0.7}, {-10, 0.8}};
  e.trayA = -1.25, e.trayB = 0, e.yVert94 = 0.5;
  e.bPozaCaida = 1.5, e.bEntradaCaida = 1.3, e.longTransVert = 0.25, e.espejoRapida = 1.5, e.espejoPoza = 2;
  e.cotaPoza = 107.5, e.longRapida = 4, e.longPoza = 3, e.profPoza = 0.5, e.zRampaSalida = 1;
  e.longTramo1 = 1.25, e.longTramo2 = 0.5;
  e.y1 = 0.2, e.y2 = 1.2, e.v2 = 1;
  e.cotaAbajo = 108, e.longTransSalida = 2, e.sAbajo = 0.01, e.ynAbajo = 0.9, e.vAbajo = 1;
  e.bAbajo = 1, e.zAbajo = 1, e.hAbajo = 1.1, e.espejoAbajo = 2.5;
  return e;
}

}  // namespace calvento
