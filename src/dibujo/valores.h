#pragma once

#include <algorithm>

#include "modelo/design_state.h"

namespace calvento {

/// The design values that a figure reads, as plain 8-byte numbers under their own names, so that a coordinate reads
/// like its formula. The record may be half computed: nothing is checked here but the number of reaches.
struct Valores {
  explicit Valores(const DesignState& e) : estado(e) {}
  const DesignState& estado;

  int numTramos = std::clamp<int>(estado.numTramos, 1, 3);
  double progresivaInicio = estado.progresivaInicio.valor();
  double Q = estado.Q.valor();

  double bArriba = estado.bArriba.valor(), zArriba = estado.zArriba.valor(), sArriba = estado.sArriba.valor();
  double bRapida = estado.bRapida.valor(), zRapida = estado.zRapida.valor();
  double bPoza = estado.bPoza.valor();
  double bPozaCaida = estado.bPozaCaida.valor(), zPozaCaida = estado.zPozaCaida.valor();
  double bEntradaCaida = estado.bEntradaCaida.valor(), longTransVert = estado.longTransVert.valor();
  double bAbajo = estado.bAbajo.valor(), zAbajo = estado.zAbajo.valor(), sAbajo = estado.sAbajo.valor();
  double sTramo1 = estado.sTramo1.valor(), sTramo2 = estado.sTramo2.valor(), sTramo3 = estado.sTramo3.valor();
  double sUltimoTramo = estado.sUltimoTramo.valor();

  double cotaInicio = estado.cotaInicio.valor(), cotaTramo2 = estado.cotaTramo2.valor();
  double cotaTramo3 = estado.cotaTramo3.valor(), cotaFin = estado.cotaFin.valor();
  double cotaTrayectoria = estado.cotaTrayectoria.valor(), cotaPoza = estado.cotaPoza.valor();
  double cotaAbajo = estado.cotaAbajo.valor();

  double longTransEntrada = estado.longTransEntrada.valor(), longTransSalida = estado.longTransSalida.valor();
  double longRapida = estado.longRapida.valor(), longTramo1 = estado.longTramo1.valor();
  double longTramo2 = estado.longTramo2.valor(), longTramo3 = estado.longTramo3.valor();
  double xTrayectoria = estado.xTrayectoria.valor(), trayA = estado.trayA.valor(), trayB = estado.trayB.valor();
  double longControl = estado.longControl.valor(), zCaida = estado.zCaida.valor();
  double radioCurva = estado.radioCurva.valor(), anguloCaida = estado.anguloCaida;
  double xTrayectoriaInt = estado.xTrayectoriaInt.valor();
  double zRampaEntrada = estado.zRampaEntrada.valor(), zRampaSalida = estado.zRampaSalida.valor();
  double longPoza = estado.longPoza.valor(), profPoza = estado.profPoza.valor();
  double sobreelevacion = estado.sobreelevacion.valor();

  double ynArriba = estado.ynArriba.valor(), vArriba = estado.vArriba.valor(), frArriba = estado.frArriba.valor();
  double ycControl = estado.ycControl.valor(), yTramo1 = estado.yTramo1.valor(), yTramo2 = estado.yTramo2.valor();
  double yFin = estado.yFin.valor(), vFin = estado.vFin.valor();
  double y1 = estado.y1.valor(), v1 = estado.v1.valor(), y2 = estado.y2.valor(), v2 = estado.v2.valor();
  double yVert94 = estado.yVert94.valor();
  double ynAbajo = estado.ynAbajo.valor(), vAbajo = estado.vAbajo.valor();

  double hArriba = estado.hArriba.valor(), hRapida = estado.hRapida.valor(), hPoza = estado.hPoza.valor();
  double hAbajo = estado.hAbajo.valor();
  double espejoArriba = estado.espejoArriba.valor(), espejoRapida = estado.espejoRapida.valor();
  double espejoPoza = estado.espejoPoza.valor(), espejoAbajo = estado.espejoAbajo.valor();
};

}  // namespace calvento
