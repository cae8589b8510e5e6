#include <cmath>
#include <span>

#include "dibujo/cotas.h"
#include "dibujo/figura_rapida.h"
#include "dibujo/rotulos_poza.h"
#include "dibujo/rotulos_rapida.h"

// The dimension lines of the chute's sheet, in the colour of the pen.

namespace calvento {

namespace {

/// Line under the equation of the trajectory and its leader to the middle of the curve.
void guiaTrayectoria(Lienzo& lienzo, const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const RotuloEcuacion r = ecuacionTrayectoria(g);
  const double medio = (v.cotaFin + v.cotaPoza) / 2;
  const double dy = medio - alto(1000);
  const Punto finLinea{r.x + ancho(r.texto, 1250), dy};
  const double x = v.xTrayectoria / 2 + v.longRapida;
  const Punto enCurva{x, g.parabola(x)};
  lienzo.Line({r.x, dy}, finLinea);
  lienzo.Line(finLinea, enCurva);
  const double fi = std::atan(entre(enCurva.y - medio + alto(1000), v.xTrayectoria / 6)) * 180 / piCorto;
  flechaGuia(lienzo, enCurva, fi);
}

}  // namespace

CadenaCotas cadenaEntrada(const GeometriaRapida& g) {
  const Valores& v = g.valores();
  CadenaCotas cadena;
  cadena.base = v.cotaInicio;
  cadena.desde = -v.longTransEntrada;
  cadena.hasta = 0;
  cadena.marcas = {-v.longTransEntrada, 0};
  return cadena;
}

CadenaCotas cadenaSeccion(const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  CadenaCotas cadena;
  cadena.base = v.cotaPoza;
  cadena.desde = 0;
  cadena.hasta = p.xTrans;
  // the joints between reaches have arrows, but no tick
  cadena.marcas = {0, v.longRapida, p.xPT, p.xPoza0, p.xPoza1, p.xPoza2, p.xTrans};
  if (v.numTramos == 1) cadena.dobles = {v.longRapida};
  if (v.numTramos >= 2) cadena.dobles = {v.longTramo1, v.longTramo1 + v.longTramo2};
  if (v.numTramos == 3) cadena.dobles.push_back(v.longRapida);
  cadena.dobles.insert(cadena.dobles.end(), {p.xPT, p.xPoza0, p.xPoza1, p.xPoza2});
  return cadena;
}

CadenaCotas cadenaPlanta(const GeometriaRapida& g, double pie) {
  const EstacionesPoza& p = g.estaciones();
  CadenaCotas cadena;
  cadena.base = pie;
  cadena.desde = g.valores().longRapida;
  cadena.hasta = p.xTrans;
  cadena.dobles = {p.xPT, p.xPoza0, p.xPoza1, p.xPoza2};
  cadena.marcas = {cadena.desde, p.xPT, p.xPoza0, p.xPoza1, p.xPoza2, p.xTrans};
  return cadena;
}

std::vector<CotaAltura> alturasAcotadas(const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  const double cotaUmbral = v.sobreelevacion + v.cotaInicio;
  return {{p.xPoza2, v.cotaAbajo, v.cotaAbajo + v.ynAbajo},
          {p.xPoza2, v.cotaPoza, v.cotaAbajo},
          {p.xPoza0 + v.longPoza / 2, v.cotaPoza, v.cotaPoza + v.y2},
          {-2 * v.sobreelevacion, cotaUmbral, cotaUmbral + v.ycControl},
          {v.longRapida, v.cotaFin, v.cotaFin + v.yFin}};
}

std::vector<AnchoEn> anchosAcotados(const GeometriaRapida& g) {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  const double arriba = (2 * v.zArriba * v.hArriba + v.bArriba) / 2;
  const double rapida = (2 * v.zRapida * v.hRapida + v.bRapida) / 2;
  const double abajo = (2 * v.zAbajo * v.hAbajo + v.bAbajo) / 2;
  return {{-v.longTransEntrada, arriba}, {0, rapida},      {v.longRapida, rapida}, {p.xPoza0, v.espejoPoza / 2},
          {p.xPoza2, v.espejoPoza / 2},  {p.xTrans, abajo}};
}

void FiguraRapida::EJESDIMENSION(Lienzo& lienzo) const {
  const GeometriaRapida g(estado_);
  cadenaCotas(lienzo, cadenaEntrada(g));
  cadenaCotas(lienzo, cadenaSeccion(g));
  barraPoza(lienzo, g.valores(), g.estaciones());
  const std::vector<CotaAltura> alturas = alturasAcotadas(g);
  cotasVerticales(lienzo, std::span(alturas).first(alturas.size() - 1));
  flechasVerticales(lienzo, alturas.back().x, alturas.back().abajo, alturas.back().arriba);
  guiaTrayectoria(lienzo, g);
  flechasAnchos(lienzo, anchosAcotados(g), ejePlanta_);
}

void FiguraRapida::EJESDIMENSIONPLANTA(Lienzo& lienzo) const {
  const GeometriaRapida g(estado_);
  cadenaCotas(lienzo, cadenaPlanta(g, pieDePlanta()));
  // it stands in the section, not in the plan: meant so
  barraPoza(lienzo, g.valores(), g.estaciones());
}

}  // namespace calvento
