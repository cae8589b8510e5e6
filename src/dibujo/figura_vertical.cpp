#include "dibujo/figura_vertical.h"

#include <algorithm>

#include "dibujo/bloques.h"
#include "dibujo/pintura.h"
#include "dibujo/rotulos_poza.h"
#include "dibujo/rotulos_vertical.h"

// The areas, lines, dimension lines and notes of the vertical drop's sheet.

namespace calvento {

namespace {

/// Distance between two lines of a note, and of a note from the wall of the plan, m.
constexpr double renglon = 0.15;
constexpr double juntoAlMuro = 0.02;

void nota(Lienzo& lienzo, double x, double y, std::initializer_list<std::string> renglones) {
  for (const std::string& t : renglones) {
    rotulo(lienzo, x, y, t);
    y -= renglon;
  }
}

void cotaObstaculos(Lienzo& lienzo, const Segmento& s) {
  lienzo.Line(s.a, s.b);
  flechaHorizontal(lienzo, s.a, 1);
  flechaHorizontal(lienzo, s.b, -1);
  rotuloCentrado(lienzo, s.b.x / 2, s.b.y + renglon, formato(s.b.x, "0.000"));
}

/// Beside the plan, behind the stations that are written at the end of the basin.
void notaObstaculos(Lienzo& lienzo, const GeometriaVertical& g, const MinimoBloques& minimo, double eje) {
  const Valores& v = g.valores();
  if (!(v.estado.tipoTanque == 0)) return;
  const ObstaculosCaida o = obstaculosCaida(v.estado, minimo);
  cotaObstaculos(lienzo, distanciaObstaculos(g, o, eje));
  const double pie = eje - std::max(v.espejoPoza, v.espejoAbajo) / 2 - espesorMuro;
  nota(
      lienzo, g.estaciones().xPoza2 + 0.3, pie - 0.05,
      {"Altura= " + texto(Round(o.hilera.alto, 3)) + "m",
       "Ancho y espaciamiento= " + texto(Round(o.hilera.ancho, 3)) + "m", "Nro de Bloques= " + texto(o.hilera.numero)});
}

/// The contraction outside both walls of the plan, or the pipes in the ground before the face.
void notaVentilacion(Lienzo& lienzo, const GeometriaVertical& g, const std::string& pulgadas, double eje) {
  const Valores& v = g.valores();
  if (v.estado.tipoTransVert == 1) {
    nota(lienzo, -0.9 - ancho("AGUJEROS DE VENTILACION:", 1300), (v.cotaFin + v.cotaPoza) / 2 + renglon,
         {"AGUJEROS DE VENTILACION:", "Diámetro tubería= " + pulgadas + " pulg.",
          "Nro de Tubos= " + texto(v.estado.numTubos)});
    return;
  }
  const std::string t = "Contracción lateral= " + formato(v.estado.longTransVert, "0.00");
  const double muro = g.anchoPoza() / 2 + espesorMuro;
  rotulo(lienzo, 0.2, eje - muro - juntoAlMuro, t);
  rotulo(lienzo, 0.2, eje + muro + renglon, t);
}

}  // namespace

Segmento distanciaObstaculos(const GeometriaVertical& g, const ObstaculosCaida& o, double eje) {
  const double y = eje - g.anchoPoza() / 4;
  return {{0, y}, {o.distancia.valor(), y}};
}

void FiguraVertical::POLIGONO(Lienzo& lienzo) const {
  pintarAguaSeccion(lienzo, GeometriaVertical(estado_).agua(estado_));
}

void FiguraVertical::PLANTA(Lienzo& lienzo) const {
  const GeometriaVertical g(estado_);
  pintarPlanta(lienzo, g.anchosPlanta(), g.anchosMuro(), ejePlanta_);
}

void FiguraVertical::DIBUBABLOCKS(Lienzo& lienzo, const MinimoBloques& minimo) const {
  pintarBloques(lienzo, bloquesDeCaida(Valores(estado_), ejePlanta_, minimo));
}

void FiguraVertical::RAPIDA(Lienzo& lienzo) const { pintarConcreto(lienzo, GeometriaVertical(estado_).concreto()); }
void FiguraVertical::CANAL(Lienzo& lienzo) const { pintarConcreto(lienzo, GeometriaVertical(estado_).canal()); }
void FiguraVertical::CANALB(Lienzo& lienzo) const { pintarConcreto(lienzo, GeometriaVertical(estado_).canalAbajo()); }
void FiguraVertical::COTAS(Lienzo& lienzo) const {
  pintarPuntosControl(lienzo, GeometriaVertical(estado_).puntosControl());
}

void FiguraVertical::DIBUJACANAL(Lienzo& lienzo) const {
  const GeometriaVertical g(estado_);
  pintarLineasCanal(lienzo, {g.corona(), g.rayado(ejePlanta_), lineasTransversales(g.anchosTransversales(), ejePlanta_),
                             g.bordesFondo(ejePlanta_), g.energia()});
}

CadenaCotas cadenaSeccion(const GeometriaVertical& g) {
  const EstacionesPoza& p = g.estaciones();
  CadenaCotas cadena;
  cadena.base = g.valores().cotaPoza;
  cadena.desde = g.xTransE();
  cadena.hasta = p.xTrans;
  cadena.dobles = {g.xControl(), 0, p.xPoza1, p.xPoza2};
  cadena.marcas = cadena.dobles;
  cadena.marcas.insert(cadena.marcas.end(), {cadena.desde, cadena.hasta});
  return cadena;
}

std::vector<CotaAltura> alturasAcotadas(const GeometriaVertical& g) {
  const Valores& v = g.valores();
  const double x = g.estaciones().xPoza2;
  return {{x, v.cotaAbajo, v.cotaAbajo + v.ynAbajo},
          {x, v.cotaPoza, v.cotaAbajo},
          {g.xResalto(), v.cotaPoza, v.cotaPoza + v.y2},
          {0, v.cotaFin, v.cotaFin + v.yFin},
          {xAlturaCaida, v.cotaPoza, v.cotaFin}};
}

std::vector<AnchoEn> anchosAcotados(const GeometriaVertical& g) {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  return {{g.xTransE(), (2 * v.hArriba * v.zArriba + v.bArriba) / 2},
          {g.xControl(), v.bPozaCaida / 2},
          {p.xPoza2, g.anchoPoza() / 2},
          {p.xTrans, (2 * v.hAbajo * v.zAbajo + v.bAbajo) / 2}};
}

void FiguraVertical::EJESDIMENSION(Lienzo& lienzo, const MinimoBloques& minimo, const std::string& pulgadas) const {
  const GeometriaVertical g(estado_);
  cadenaCotas(lienzo, cadenaSeccion(g));
  barraPoza(lienzo, g.valores(), g.estaciones());
  cotasVerticales(lienzo, alturasAcotadas(g));
  // the label of this depth stands beside its line, which has no gap
  const CotaAltura abajo = alturasAcotadas(g).front();
  lienzo.Line({abajo.x, abajo.abajo}, {abajo.x, abajo.arriba});
  flechasAnchos(lienzo, anchosAcotados(g), ejePlanta_);
  // the notes are upright whichever routine ran before
  letraDerecha(lienzo);
  pasandoFallos([&] { notaObstaculos(lienzo, g, minimo, ejePlanta_); });
  notaVentilacion(lienzo, g, pulgadas, ejePlanta_);
}

}  // namespace calvento
