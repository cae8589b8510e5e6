#include <cmath>

#include "dibujo/figura_rapida.h"
#include "dibujo/rotulos.h"

// The slanted and vertical labels of the chute's sheet.

namespace calvento {

namespace {

void rotulosRampas(Lienzo& lienzo, const Letra& letra, const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  const double entrada = entre(1, v.zRampaEntrada);
  rotuloGirado(lienzo, letra, giroBaja(entrada), p.lRampaE / 2 + p.xPT - std::cos(std::atan(entrada)) * 0.2,
               (v.cotaPoza + v.cotaTrayectoria) / 2 - std::sin(std::atan(entrada)) * 0.1,
               "1:" + texto(v.estado.zRampaEntrada));
  if (v.profPoza == 0) return;
  const double salida = entre(1, v.zRampaSalida);
  rotuloGirado(lienzo, letra, giroSube(salida), p.xPoza1 + p.lRampaS / 2,
               (v.cotaAbajo - v.cotaPoza) / 2 + v.cotaPoza - std::sin(std::atan(salida)) * 0.35,
               "1:" + texto(v.estado.zRampaSalida));
}

void rotulosCanalArriba(Lienzo& lienzo, const Letra& letra, const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const double x = -2.5 - v.longTransEntrada;
  const double fondo = g.fondoArriba(v.longTransEntrada + 2.5);
  rotuloGirado(lienzo, letra, giroBaja(v.sArriba), x, fondo - 0.1, "Canal aguas arriba; s=-" + texto(v.estado.sArriba));
  rotuloGirado(lienzo, letra, giroBaja(v.sArriba), x, fondo + v.ynArriba / 2 + alto(2500),
               "Q= " + redondeado(v.estado.Q) + "m³/s; Yn= " + redondeado(v.estado.ynArriba) +
                   "; V= " + redondeado(v.estado.vArriba) + "m/s");
}

void rotulosTramosGirados(Lienzo& lienzo, const Letra& letra, const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const double x = v.longRapida - 1;
  const double fondo = v.cotaFin + v.sUltimoTramo;
  rotuloGirado(lienzo, letra, giroBaja(v.sUltimoTramo), x, fondo - alto(2500), "s=-" + texto(v.estado.sUltimoTramo));
  rotuloGirado(lienzo, letra, giroBaja(v.sUltimoTramo), x, fondo + v.yFin / 2 + alto(2500),
               "Vo= " + redondeado(v.estado.vFin) + "m/s; Yo= " + redondeado(v.estado.yFin));
  if (v.numTramos >= 2)
    rotuloGirado(lienzo, letra, giroBaja(v.sTramo1), v.longTramo1 / 2,
                 v.longTramo1 * v.sTramo1 / 2 + v.cotaTramo2 - alto(2500), "s=-" + texto(v.estado.sTramo1));
  if (v.numTramos == 3)
    rotuloGirado(lienzo, letra, giroBaja(v.sTramo2), v.longTramo2 / 2 + v.longTramo1,
                 v.sTramo2 * v.longTramo2 / 2 + v.cotaTramo3 - alto(2500), "s=-" + texto(v.estado.sTramo2));
}

void rotuloEnergia(Lienzo& lienzo, const Letra& letra, const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const double x0 = v.longRapida;
  const double x1 = g.estaciones().xPoza0;
  const double e1 = g.energiaFin();
  const double e2 = energiaPieResalto(v);
  rotuloGirado(lienzo, letra, giroBaja(entre(e1 - e2, x1 - x0)), (x1 + 2 * x0) / 3, (2 * e1 + e2) / 3 + alto(1500),
               "Línea Gradiente de Energía");
}

void rotulosCanalAbajo(Lienzo& lienzo, const Letra& letra, const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  rotuloGirado(lienzo, letra, giroBaja(v.sAbajo), p.xPoza2 + 0.6,
               v.ynAbajo / 2 + v.cotaAbajo - v.sAbajo * 0.6 + alto(2500), "V= " + redondeado(v.estado.vAbajo) + "m/s");
  rotuloGirado(lienzo, letra, giroBaja(v.sAbajo), p.xTrans + 0.1, fondoAbajo(v, v.longTransSalida + 0.1) - alto(2500),
               "s=-" + texto(v.estado.sAbajo));
}

void paresEstacion(Lienzo& lienzo, const Letra& letra, const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  const auto par = [&](double x, double cota, double y) {
    parEstacion(lienzo, letra, v.progresivaInicio, {x, cota, y});
  };
  par(0, v.cotaInicio, v.cotaInicio - 0.5 - ancho("0+000.00", 1000));
  for (const auto& tramo : g.tramos()) par(tramo.fin.x, tramo.fin.y, v.hRapida + tramo.fin.y + 0.1);
  par(p.xPT, v.cotaTrayectoria, v.yFin + v.cotaTrayectoria + 0.1);
  par(p.xPoza0, v.cotaPoza, v.hPoza / 2 + v.cotaPoza);
  par(p.xPoza2, v.cotaAbajo, v.hPoza + v.cotaPoza + 0.1);
}

}  // namespace

void FiguraRapida::textrotate(Lienzo& lienzo) const {
  const GeometriaRapida g(estado_);
  const Letra letra = letraGirada(lienzo);
  rotulosRampas(lienzo, letra, g);
  rotulosCanalArriba(lienzo, letra, g);
  rotulosTramosGirados(lienzo, letra, g);
  rotuloEnergia(lienzo, letra, g);
  rotulosCanalAbajo(lienzo, letra, g);
  paresEstacion(lienzo, letra, g);
}

}  // namespace calvento
