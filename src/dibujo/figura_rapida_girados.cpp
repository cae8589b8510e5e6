#include <cmath>

#include "dibujo/figura_rapida.h"
#include "dibujo/rotulos.h"
#include "dibujo/rotulos_rapida.h"

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

void rotuloPendiente(Lienzo& lienzo, const Letra& letra, const RotuloPendiente& r, const std::string& delante = {}) {
  rotuloGirado(lienzo, letra, giroBaja(Real(r.pendiente).valor()), r.x, r.y, delante + r.texto());
}

void rotulosCanalArriba(Lienzo& lienzo, const Letra& letra, const GeometriaRapida& g) {
  const Valores& v = g.valores();
  rotuloPendiente(lienzo, letra, pendienteArriba(g), "Canal aguas arriba; ");
  rotuloGirado(lienzo, letra, giroBaja(v.sArriba), -2.5 - v.longTransEntrada,
               g.fondoArriba(v.longTransEntrada + 2.5) + v.ynArriba / 2 + alto(2500),
               "Q= " + redondeado(v.estado.Q) + "m³/s; Yn= " + redondeado(v.estado.ynArriba) +
                   "; V= " + redondeado(v.estado.vArriba) + "m/s");
}

void rotulosTramosGirados(Lienzo& lienzo, const Letra& letra, const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const std::vector<RotuloPendiente> pendientes = pendientesTramos(g);
  rotuloPendiente(lienzo, letra, pendientes.back());
  rotuloGirado(lienzo, letra, giroBaja(v.sUltimoTramo), v.longRapida - 1,
               v.cotaFin + v.sUltimoTramo + v.yFin / 2 + alto(2500),
               "Vo= " + redondeado(v.estado.vFin) + "m/s; Yo= " + redondeado(v.estado.yFin));
  for (std::size_t i = 0; i + 1 < pendientes.size(); ++i) rotuloPendiente(lienzo, letra, pendientes[i]);
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
  rotuloPendiente(lienzo, letra, pendienteAbajo(g));
}

}  // namespace

RotuloPendiente pendienteArriba(const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const double distancia = v.longTransEntrada + 2.5;
  return {-distancia, g.fondoArriba(distancia) - 0.1, v.estado.sArriba};
}

std::vector<RotuloPendiente> pendientesTramos(const GeometriaRapida& g) {
  const Valores& v = g.valores();
  std::vector<RotuloPendiente> r;
  if (v.numTramos >= 2)
    r.push_back({v.longTramo1 / 2, v.longTramo1 * v.sTramo1 / 2 + v.cotaTramo2 - alto(2500), v.estado.sTramo1});
  if (v.numTramos == 3)
    r.push_back(
        {v.longTramo2 / 2 + v.longTramo1, v.sTramo2 * v.longTramo2 / 2 + v.cotaTramo3 - alto(2500), v.estado.sTramo2});
  r.push_back({v.longRapida - 1, v.cotaFin + v.sUltimoTramo - alto(2500), v.estado.sUltimoTramo});
  return r;
}

RotuloPendiente pendienteAbajo(const GeometriaRapida& g) {
  const Valores& v = g.valores();
  return {g.estaciones().xTrans + 0.1, fondoAbajo(v, v.longTransSalida + 0.1) - alto(2500), v.estado.sAbajo};
}

std::vector<ParEstacion> paresEstacion(const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  std::vector<ParEstacion> pares = {{0, v.cotaInicio, v.cotaInicio - 0.5 - ancho("0+000.00", 1000)}};
  for (const auto& tramo : g.tramos()) pares.push_back({tramo.fin.x, tramo.fin.y, v.hRapida + tramo.fin.y + 0.1});
  pares.push_back({p.xPT, v.cotaTrayectoria, v.yFin + v.cotaTrayectoria + 0.1});
  pares.push_back({p.xPoza0, v.cotaPoza, v.hPoza / 2 + v.cotaPoza});
  pares.push_back({p.xPoza2, v.cotaAbajo, v.hPoza + v.cotaPoza + 0.1});
  return pares;
}

void FiguraRapida::textrotate(Lienzo& lienzo) const {
  const GeometriaRapida g(estado_);
  const Letra letra = letraGirada(lienzo);
  rotulosRampas(lienzo, letra, g);
  rotulosCanalArriba(lienzo, letra, g);
  rotulosTramosGirados(lienzo, letra, g);
  rotuloEnergia(lienzo, letra, g);
  rotulosCanalAbajo(lienzo, letra, g);
  for (const ParEstacion& par : paresEstacion(g)) parEstacion(lienzo, letra, g.valores().progresivaInicio, par);
}

}  // namespace calvento
