#include "dibujo/figura_rapida.h"
#include "dibujo/rotulos_poza.h"
#include "dibujo/rotulos_rapida.h"

// The upright labels of the chute's sheet.

namespace calvento {

RotuloEcuacion ecuacionTrayectoria(const GeometriaRapida& g) {
  const Valores& v = g.valores();
  RotuloEcuacion r;
  r.texto = "Y= " + formato(v.trayB, "0.0000") + " X" + "  " + formato(v.trayA, "0.000000") + " X²";
  r.x = v.xTrayectoria / 2.75 + v.longRapida - ancho(r.texto, 1250);
  return r;
}

void FiguraRapida::DIMENSIONES(Lienzo& lienzo) const {
  const GeometriaRapida g(estado_);
  letraDerecha(lienzo);
  rotulosEntrada(lienzo, g);
  rotulosTramos(lienzo, g);
  rotulosPoza(lienzo, g);
  rotulosLongitudes(lienzo, g);
  rotulosAnchos(lienzo, g);
  const double medioPoza = g.estaciones().xPoza0 + g.valores().longPoza / 2;
  titulos(lienzo, medioPoza, pieDePlanta() - nivelTitulos, g.valores().cotaPoza - nivelTitulos);
}

void FiguraRapida::rotulosEntrada(Lienzo& lienzo, const GeometriaRapida& g) const {
  const Valores& v = g.valores();
  if (v.longTransEntrada != 0) {
    const std::string t = formato(v.longTransEntrada, "0.000");
    rotulo(lienzo, -v.longTransEntrada / 2 - ancho(t, 1000) * 0.5, v.cotaInicio - 0.4, t);
  }
  if (v.sobreelevacion != 0)
    rotulo(lienzo, v.sobreelevacion * -4 - ancho("0.00", 2000), v.sobreelevacion / 2 + v.cotaInicio + alto(2500),
           "h=" + redondeado(estado_.sobreelevacion));
  rotulo(lienzo, -ancho("Sección de control", 2000), v.cotaInicio - 0.15, "Sección de control");
  if (v.frArriba != 1)
    rotulo(lienzo, v.sobreelevacion * -2 - ancho("0.00", 2000),
           v.sobreelevacion + v.cotaInicio + v.ycControl / 2 + alto(2500), "Yc= " + redondeado(estado_.ycControl));
}

void FiguraRapida::rotulosTramos(Lienzo& lienzo, const GeometriaRapida& g) const {
  const Valores& v = g.valores();
  const double y = v.cotaPoza - nivelLongitudes;
  const Single longitudes[] = {v.numTramos == 1 ? estado_.longRapida : estado_.longTramo1, estado_.longTramo2,
                               estado_.longTramo3};
  double inicio = 0;
  for (int i = 0; i < v.numTramos; ++i) {
    const std::string t = redondeado(longitudes[i]);
    const double longitud = longitudes[i].valor();
    rotulo(lienzo, inicio + longitud / 2 - ancho(t, 2000), y, t);
    inicio += longitud;
  }
  rotulo(lienzo, v.longRapida / 2 - ancho("CANAL DE LA RAPIDA", 2000), alto(1000) + y, "CANAL DE LA RAPIDA");
}

void FiguraRapida::rotulosPoza(Lienzo& lienzo, const GeometriaRapida& g) const {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  rotulo(lienzo, v.longRapida - ancho("P.C.", 1000), v.cotaFin, "P.C.");
  rotulo(lienzo, p.xPT - ancho("P.T.", 1000), v.cotaTrayectoria, "P.T.");
  const RotuloEcuacion ecuacion = ecuacionTrayectoria(g);
  rotulo(lienzo, ecuacion.x, (v.cotaFin + v.cotaPoza) / 2 - alto(5000), ecuacion.texto);
  rotulosConjugados(lienzo, v, p.xPoza0, p.xPoza0 + v.longPoza / 2, "");
  rotuloProfundidad(lienzo, v, p, "h= ");
  rotuloTiranteAbajo(lienzo, v, p);
  rotuloProyeccion(lienzo, v, p);
  rotuloCanalAbajo(lienzo, v, p);
}

/// Lengths from the end of the chute to the outlet, in the chain of the section and again in that of the plan.
void FiguraRapida::rotulosLongitudes(Lienzo& lienzo, const GeometriaRapida& g) const {
  const Valores& v = g.valores();
  for (const double base : {v.cotaPoza, pieDePlanta()}) {
    const double medio = v.xTrayectoria / 2 + v.longRapida;
    rotuloCentrado(lienzo, medio, base - nivelLongitudes, redondeado(estado_.xTrayectoria),
                   formato(v.xTrayectoria, "0.000"));
    rotulosLongitudesPoza(lienzo, v, g.estaciones(), base);
  }
}

void FiguraRapida::rotulosAnchos(Lienzo& lienzo, const GeometriaRapida& g) const {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  const AnchoEn anchos[] = {{-v.longTransEntrada, v.espejoArriba / 2},
                            {0, v.espejoRapida / 2},
                            {v.longRapida, v.espejoRapida / 2},
                            {p.xPoza0, v.espejoPoza / 2},
                            {p.xPoza2, v.espejoPoza / 2},
                            {p.xTrans, v.espejoAbajo / 2}};
  calvento::rotulosAnchos(lienzo, anchos, ejePlanta_);
}

}  // namespace calvento
