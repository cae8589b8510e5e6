#include "dibujo/figura_rapida.h"
#include "dibujo/rotulos_poza.h"
#include "dibujo/rotulos_rapida.h"

// The slanted and vertical labels of the chute's sheet.

namespace calvento {

namespace {

void rotulosCanalArriba(Lienzo& lienzo, const Letra& letra, const GeometriaRapida& g) {
  const DesignState& e = g.valores().estado;
  const RotuloPendiente pendiente = pendienteArriba(g);
  rotuloPendiente(lienzo, letra, pendiente, "Canal aguas arriba; ");
  rotuloCaudalArriba(
      lienzo, letra, g.valores(), pendiente, g.valores().ynArriba,
      "Q= " + redondeado(e.Q) + "m³/s; Yn= " + redondeado(e.ynArriba) + "; V= " + redondeado(e.vArriba) + "m/s");
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

}  // namespace

RotuloPendiente pendienteArriba(const GeometriaRapida& g) {
  const double distancia = g.valores().longTransEntrada + canalDibujado / 2;
  return pendienteArriba(g.valores(), {-distancia, g.fondoArriba(distancia)});
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
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  const Letra letra = letraGirada(lienzo);
  rotuloRampaEntrada(lienzo, letra, v, p);
  rotuloRampaSalida(lienzo, letra, v, p);
  rotulosCanalArriba(lienzo, letra, g);
  rotulosTramosGirados(lienzo, letra, g);
  rotuloEnergia(lienzo, letra, {v.longRapida, g.energiaFin()}, {p.xPoza0, energiaPieResalto(v)});
  rotulosCanalAbajo(lienzo, letra, v, p, "V= " + redondeado(estado_.vAbajo) + "m/s");
  paresDeEstacion(lienzo, letra, v, paresEstacion(g));
}

}  // namespace calvento
