#include "dibujo/bloques.h"

#include <utility>

namespace calvento {

namespace {

/// The boxes of a row between two stations, counted from the lower wall.
std::vector<CajaPlanta> cajas(const HileraBloques& h, double desde, double hasta, double orilla) {
  std::vector<CajaPlanta> todas;
  for (const FranjaBloque& f : franjas(h))
    todas.push_back({{desde, orilla + f.desde.valor()}, {hasta, orilla + f.hasta.valor()}});
  return todas;
}

/// A wedge whose top is level, with its upright face at the foot of the ramp.
HileraDibujada cunaDeRampa(const HileraBloques& h, const Valores& v, const EstacionesPoza& p, double orilla) {
  const double alto = h.alto.valor();
  const double xRampa = p.xPoza0 - largoBloqueRampa(v.zRampaEntrada, h.alto).valor();
  const Punto pie{p.xPoza0, v.cotaPoza};
  return {{pie, {p.xPoza0, v.cotaPoza + alto}, {xRampa, v.cotaPoza + alto}, pie}, cajas(h, xRampa, p.xPoza0, orilla)};
}

/// A block with an upright face towards the water and a sloping one behind.
HileraDibujada bloqueDePiso(const HileraBloques& h, const Valores& v, double x, double orilla) {
  const double alto = h.alto.valor();
  const double xCorona = x + coronaBloquePiso * alto;
  const double xPie = xCorona + taludBloquePiso * alto;
  const double y = v.cotaPoza;
  return {{{x, y}, {x, y + alto}, {xCorona, y + alto}, {xPie, y}, {x, y}}, cajas(h, x, xPie, orilla)};
}

}  // namespace

std::vector<HileraDibujada> bloquesDePoza(const Valores& v, const EstacionesPoza& p, Single anchoPoza, double eje,
                                          const MinimoBloques& minimo) {
  std::vector<HileraDibujada> hileras;
  const auto tanque = tanqueConBloques(v.estado.tipoTanque);
  if (!tanque) return hileras;
  const DatosBloques datos(v.estado, anchoPoza, minimo);
  const double orilla = eje - anchoPoza.valor() / 2.0;
  const auto anadir = [&hileras](HileraDibujada h) {
    if (!h.planta.empty()) hileras.push_back(std::move(h));  // teeth too wide for the basin: their count is 0
  };
  pasandoFallos([&] { anadir(cunaDeRampa(bloquesDeRampa(*tanque, datos), v, p, orilla)); });
  pasandoFallos([&] {
    const auto h = bloquesDePiso(*tanque, datos);
    if (!h) return;
    const double x = p.xPoza0 + distanciaBloquesDePiso(*tanque, datos).valor();
    anadir(bloqueDePiso(*h, v, x, orilla));
  });
  return hileras;
}

std::vector<HileraDibujada> bloquesDeCaida(const Valores& v, double eje, const MinimoBloques& minimo) {
  std::vector<HileraDibujada> hileras;
  if (!(v.estado.tipoTanque == 0)) return hileras;
  pasandoFallos([&] {
    const ObstaculosCaida o = obstaculosCaida(v.estado, minimo);
    const double x = o.distancia.valor();
    const double fin = x + o.largo.valor();
    const double alto = o.hilera.alto.valor();
    const double y = v.cotaPoza;
    const double orilla = eje - v.bPozaCaida / 2 - v.longTransVert;
    hileras.push_back({{{x, y}, {x, y + alto}, {fin, y + alto}, {fin, y}, {x, y}}, cajas(o.hilera, x, fin, orilla)});
  });
  return hileras;
}

void pintarBloques(Lienzo& lienzo, const std::vector<HileraDibujada>& hileras) {
  lienzo.FillColor = color::grisClaro;
  lienzo.FillStyle = EstiloRelleno::solido;
  for (const HileraDibujada& h : hileras) {
    lienzo.Polygon(h.seccion);
    for (const CajaPlanta& c : h.planta) lienzo.LineCaja(c.a, c.b, color::grisClaro);
  }
}

}  // namespace calvento
