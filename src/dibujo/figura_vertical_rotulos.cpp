#include "dibujo/figura_vertical.h"
#include "dibujo/rotulos_poza.h"
#include "dibujo/rotulos_vertical.h"

// The labels of the vertical drop's sheet.

namespace calvento {

std::vector<ParEstacion> paresEstacion(const GeometriaVertical& g) {
  const Valores& v = g.valores();
  return {{0, v.cotaFin, v.yFin + v.cotaFin + 0.1}, {g.estaciones().xPoza2, v.cotaAbajo, v.hAbajo + v.cotaAbajo + 0.1}};
}

RotuloPendiente pendienteArriba(const GeometriaVertical& g) {
  const double x = g.xTransE() - canalDibujado / 2;
  return pendienteArriba(g.valores(), {x, g.fondoArriba(-x)});
}

void FiguraVertical::DIMENSIONES(Lienzo& lienzo) const {
  const GeometriaVertical g(estado_);
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  const double base = v.cotaPoza - nivelLongitudes;
  letraDerecha(lienzo);
  rotulo(lienzo, g.xTransE() - ancho("Canal Aguas Arriba", 1150), v.cotaPoza - 0.3, "Canal Aguas Arriba");
  rotuloCentrado(lienzo, 0, v.yFin / 2 + v.cotaFin + alto(2500), "Yc=" + redondeado(estado_.yFin) + "m");
  if (v.longTransEntrada != 0)
    rotuloCentrado(lienzo, g.xControl() - v.longTransEntrada / 2, base, redondeado(estado_.longTransEntrada));
  rotuloCentrado(lienzo, -v.longControl / 2, base, redondeado(estado_.longControl));
  rotuloCentrado(lienzo, v.longRapida / 2, base, redondeado(estado_.longRapida));
  rotulosConjugados(lienzo, v, v.xTrayectoria, g.xResalto(), "m");
  rotuloProfundidad(lienzo, v, p, "h=");
  rotuloCentrado(lienzo, xAlturaCaida, (v.cotaFin + v.cotaPoza) / 2 + alto(2500),
                 "H=" + formato(v.cotaFin - v.cotaPoza, "0.00"), "0.00");
  rotulosLongitudesSalida(lienzo, v, p, v.cotaPoza, formato(v.longTransSalida, "0.000"));
  rotuloCanalAbajo(lienzo, v, p);
  rotulosAnchos(lienzo, anchosAcotados(g), ejePlanta_);
  titulos(lienzo, v.longRapida / 2, ejePlanta_ - v.espejoPoza / 2 - 0.3, v.cotaPoza - nivelTitulos);
}

void FiguraVertical::textrotate(Lienzo& lienzo) const {
  const GeometriaVertical g(estado_);
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  const Letra letra = letraGirada(lienzo);
  rotuloRampaSalida(lienzo, letra, v, p);
  const RotuloPendiente pendiente = pendienteArriba(g);
  rotuloPendiente(lienzo, letra, pendiente);
  rotuloCaudalArriba(lienzo, letra, v, pendiente, g.tiranteArriba(), caudalArriba(v));
  rotuloEnergia(lienzo, letra, {0, g.energiaCresta()}, {g.xResalto(), g.energiaPoza()});
  rotulosCanalAbajo(lienzo, letra, v, p, tiranteYVelocidadAbajo(v));
  rotuloGirado(lienzo, letra, giroBaja(v.sAbajo), p.xPoza2 + 0.2, v.hAbajo + v.cotaAbajo + alto(1500),
               "Proyección de canal");
  paresDeEstacion(lienzo, letra, v, paresEstacion(g));
}

}  // namespace calvento
