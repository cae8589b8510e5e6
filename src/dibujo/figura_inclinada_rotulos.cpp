#include "dibujo/figura_inclinada.h"
#include "dibujo/rotulos_inclinada.h"
#include "dibujo/rotulos_poza.h"

// The labels of the inclined drop's sheet.

namespace calvento {

namespace {

void rotulosCresta(Lienzo& lienzo, const GeometriaInclinada& g) {
  const Valores& v = g.valores();
  rotulo(lienzo, g.xTransE() - ancho("Canal Aguas Arriba", 1150), v.cotaPoza - 0.3, "Canal Aguas Arriba");
  if (v.frArriba < 1) {
    // a fast canal has no control section
    rotuloCentrado(lienzo, 0, v.cotaFin - 0.15, "Sección de control");
    rotuloCentrado(lienzo, 0, v.yFin / 2 + v.cotaFin + alto(2500), "Yc=" + redondeado(v.estado.yFin) + "m");
  }
  if (v.sobreelevacion != 0) {
    const double x = g.puntoUmbral().x;
    rotuloCentrado(lienzo, x, -v.sArriba * x + v.cotaFin - v.sobreelevacion / 2 + alto(2500),
                   redondeado(v.estado.sobreelevacion));
  }
}

/// Both ends of the curve.
void rotulosCurva(Lienzo& lienzo, const GeometriaInclinada& g) {
  const Valores& v = g.valores();
  rotulo(lienzo, -ancho("P.C.", 1000), v.cotaFin, "P.C.");
  rotulo(lienzo, g.estaciones().xPT - ancho("P.T.", 1000), v.cotaTrayectoria, "P.T.");
}

void rotulosLongitudesEntrada(Lienzo& lienzo, const GeometriaInclinada& g) {
  const Valores& v = g.valores();
  const double y = v.cotaPoza - nivelLongitudes;
  if (v.longTransEntrada != 0)
    rotuloCentrado(lienzo, g.xControl() - v.longTransEntrada / 2, y, redondeado(v.estado.longTransEntrada));
  rotuloCentrado(lienzo, -v.longControl / 2, y, redondeado(v.estado.longControl));
  rotuloCentrado(lienzo, v.xTrayectoria / 2, y, redondeado(v.estado.xTrayectoria));
}

}  // namespace

std::vector<ParEstacion> paresEstacion(const GeometriaInclinada& g) {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  return {{0, v.cotaFin, v.yFin + v.cotaFin + 0.1},
          {p.xPT, v.cotaTrayectoria, v.yFin + v.cotaTrayectoria + 0.1},
          {p.xPoza0, v.cotaPoza, v.hPoza / 2 + v.cotaPoza},
          {p.xPoza2, v.cotaAbajo, v.hPoza + v.cotaPoza + 0.1}};
}

RotuloPendiente pendienteArriba(const GeometriaInclinada& g) {
  const double x = g.xTransE() - canalDibujado / 2;
  return pendienteArriba(g.valores(), {x, g.fondoArriba(-x)});
}

void FiguraInclinada::DIMENSIONES(Lienzo& lienzo) const {
  const GeometriaInclinada g(estado_);
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  const double medioPoza = p.xPoza0 + v.longPoza / 2;
  letraDerecha(lienzo);
  rotulosCresta(lienzo, g);
  rotulosCurva(lienzo, g);
  rotulosLongitudesEntrada(lienzo, g);
  rotulosLongitudesPoza(lienzo, v, p, v.cotaPoza);
  rotulosConjugados(lienzo, v, p.xPoza0, medioPoza, "m");
  rotuloProfundidad(lienzo, v, p, "h= ");
  rotuloTiranteAbajo(lienzo, v, p);
  rotuloProyeccion(lienzo, v, p);
  rotuloCanalAbajo(lienzo, v, p);
  rotulosAnchos(lienzo, anchosAcotados(g), ejePlanta_);
  titulos(lienzo, medioPoza, ejePlanta_ - v.espejoPoza / 2 - 0.3, v.cotaPoza - nivelTitulos);
}

void FiguraInclinada::textrotate(Lienzo& lienzo) const {
  const GeometriaInclinada g(estado_);
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  const Letra letra = letraGirada(lienzo);
  rotuloRampaEntrada(lienzo, letra, v, p);
  rotuloRampaSalida(lienzo, letra, v, p);
  const RotuloPendiente pendiente = pendienteArriba(g);
  rotuloPendiente(lienzo, letra, pendiente);
  rotuloCaudalArriba(lienzo, letra, v, pendiente, v.ynArriba, caudalArriba(v));
  rotuloEnergia(lienzo, letra, {0, g.energiaCresta()}, {p.xPoza0, energiaPieResalto(v)});
  rotulosCanalAbajo(lienzo, letra, v, p, tiranteYVelocidadAbajo(v));
  paresDeEstacion(lienzo, letra, v, paresEstacion(g));
  const Punto centro = g.centroCurva();
  rotuloGirado(lienzo, letra, giroVertical, centro.x, centro.y, "R= " + redondeado(estado_.radioCurva));
}

}  // namespace calvento
