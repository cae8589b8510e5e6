#pragma once

#include "modelo/design_state.h"

namespace calvento {

/// A chute of round numbers, easy to work by hand: 10 to 20 m of reaches from 110 down to 105, a trajectory of 4 m, a
/// basin of 8 m on 102.75. Reaches: 1 (slope 0.25), 2 (0.1 and 0.4) or 3 (0.0625, 0.25 and 0.4375).
inline DesignState rapidaDeMano(int numTramos = 1) {
  DesignState e;
  e.numTramos = static_cast<std::int16_t>(numTramos);
  e.progresivaInicio = 1000;
  e.Q = 4;
  e.bArriba = 2, e.zArriba = 1, e.sArriba = 0.01, e.hArriba = 2, e.espejoArriba = 6;
  e.ynArriba = 1.5, e.vArriba = 1.2, e.frArriba = 0.4;
  e.sobreelevacion = 0.2, e.ycControl = 1, e.longTransEntrada = 4;
  e.bRapida = 2, e.zRapida = 0, e.hRapida = 0.8, e.espejoRapida = 2;
  e.cotaInicio = 110, e.cotaFin = 105, e.longRapida = 20;
  if (numTramos == 2) {
    e.longTramo1 = 10, e.cotaTramo2 = 109, e.sTramo1 = 0.1;
    e.longTramo2 = 10, e.sTramo2 = e.sUltimoTramo = 0.4;
    e.yTramo1 = 0.8;
  } else if (numTramos == 3) {
    e.longTramo1 = 8, e.cotaTramo2 = 109.5, e.sTramo1 = 0.0625;
    e.longTramo2 = 4, e.cotaTramo3 = 108.5, e.sTramo2 = 0.25;
    e.longTramo3 = 8, e.sTramo3 = e.sUltimoTramo = 0.4375;
    e.yTramo1 = 0.8, e.yTramo2 = 0.5;
  } else {
    e.longTramo1 = 20, e.sTramo1 = e.sUltimoTramo = 0.25;
  }
  e.perfil = {{5, 0.6, 0, 0, 0}, {10, 0.45, 0, 0, 0}, {20, 0.3, 0, 0, 0}};
  e.yFin = 0.3, e.vFin = 6;
  e.trayB = -0.25, e.trayA = -0.046875, e.xTrayectoria = 4, e.cotaTrayectoria = 103.25;
  e.zRampaEntrada = 2, e.zRampaSalida = 1.5, e.cotaPoza = 102.75, e.longPoza = 8, e.profPoza = 1.25;
  e.y1 = 0.25, e.v1 = 8, e.y2 = 2.5, e.v2 = 1;
  e.hPoza = 3, e.bPoza = 3, e.espejoPoza = 3;
  e.cotaAbajo = 104, e.longTransSalida = 3, e.sAbajo = 0.01, e.ynAbajo = 1.25, e.vAbajo = 1.5;
  e.bAbajo = 2, e.zAbajo = 1, e.hAbajo = 1.75, e.espejoAbajo = 5.5;
  return e;
}

}  // namespace calvento
