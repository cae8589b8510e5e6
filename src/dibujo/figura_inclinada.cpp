#include "dibujo/figura_inclinada.h"

#include "dibujo/bloques.h"
#include "dibujo/pintura.h"
#include "dibujo/rotulos_inclinada.h"
#include "dibujo/rotulos_poza.h"

// The areas, lines and dimension lines of the inclined drop's sheet.

namespace calvento {

void FiguraInclinada::POLIGONO(Lienzo& lienzo) const { pintarAguaSeccion(lienzo, GeometriaInclinada(estado_).agua()); }

void FiguraInclinada::PLANTA(Lienzo& lienzo) const {
  const GeometriaInclinada g(estado_);
  const auto anchos = g.planta().anchos();
  pintarPlanta(lienzo, anchos, caraExterior(anchos), ejePlanta_);
}

void FiguraInclinada::DIBUBABLOCKS(Lienzo& lienzo, const MinimoBloques& minimo) const {
  const GeometriaInclinada g(estado_);
  pintarBloques(lienzo, bloquesDePoza(g.valores(), g.estaciones(), estado_.bPozaCaida, ejePlanta_, minimo));
}

void FiguraInclinada::RAPIDA(Lienzo& lienzo) const { pintarConcreto(lienzo, GeometriaInclinada(estado_).concreto()); }
void FiguraInclinada::CANAL(Lienzo& lienzo) const { pintarConcreto(lienzo, GeometriaInclinada(estado_).canal()); }
void FiguraInclinada::CANALB(Lienzo& lienzo) const { pintarConcreto(lienzo, GeometriaInclinada(estado_).canalAbajo()); }
void FiguraInclinada::COTAS(Lienzo& lienzo) const {
  pintarPuntosControl(lienzo, GeometriaInclinada(estado_).puntosControl());
}

void FiguraInclinada::DIBUJACANAL(Lienzo& lienzo) const {
  const GeometriaInclinada g(estado_);
  const PlantaPoza planta = g.planta();
  pintarLineasCanal(lienzo,
                    {g.corona(), planta.rayado(ejePlanta_), lineasTransversales(planta.transversales(), ejePlanta_),
                     planta.bordesFondo(ejePlanta_), g.energia()});
}

CadenaCotas cadenaSeccion(const GeometriaInclinada& g) {
  const EstacionesPoza& p = g.estaciones();
  CadenaCotas cadena;
  cadena.base = g.valores().cotaPoza;
  cadena.desde = g.xTransE();
  cadena.hasta = p.xTrans;
  cadena.dobles = {g.xControl(), 0, p.xPT, p.xPoza0, p.xPoza1, p.xPoza2};
  cadena.marcas = cadena.dobles;
  cadena.marcas.insert(cadena.marcas.end(), {cadena.desde, cadena.hasta});
  return cadena;
}

std::vector<CotaAltura> alturasAcotadas(const GeometriaInclinada& g) {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  return {{p.xPoza2, v.cotaAbajo, v.cotaAbajo + v.ynAbajo},
          {p.xPoza2, v.cotaPoza, v.cotaAbajo},
          {p.xPoza0 + v.longPoza / 2, v.cotaPoza, v.cotaPoza + v.y2},
          {0, v.cotaFin, v.cotaFin + v.yFin}};
}

std::vector<AnchoEn> anchosAcotados(const GeometriaInclinada& g) {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  return {{g.xTransE(), (2 * v.hArriba * v.zArriba + v.bArriba) / 2},
          {g.xControl(), (2 * v.hArriba * v.zPozaCaida + v.bEntradaCaida) / 2},
          {p.xPoza0, v.espejoPoza / 2},
          {p.xPoza2, v.espejoPoza / 2},
          {p.xTrans, (2 * v.hAbajo * v.zAbajo + v.bAbajo) / 2}};
}

void FiguraInclinada::EJESDIMENSION(Lienzo& lienzo) const {
  const GeometriaInclinada g(estado_);
  cadenaCotas(lienzo, cadenaSeccion(g));
  barraPoza(lienzo, g.valores(), g.estaciones());
  cotasVerticales(lienzo, alturasAcotadas(g));
  flechasAnchos(lienzo, anchosAcotados(g), ejePlanta_);
}

}  // namespace calvento
