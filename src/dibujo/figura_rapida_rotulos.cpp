#include "dibujo/figura_rapida.h"
#include "dibujo/rotulos.h"
#include "dibujo/rotulos_rapida.h"

// The upright labels of the chute's sheet.

namespace calvento {

namespace {

/// Level of the lengths under the base of a dimension chain, m.
constexpr double nivelLongitudes = 0.4;
/// Level of the titles, m.
constexpr double nivelTitulos = 0.6;

}  // namespace

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
  titulo(lienzo, medioPoza - ancho("PLANTA", 2500), pieDePlanta() - nivelTitulos, "PLANTA");
  titulo(lienzo, medioPoza - ancho("SECCION LONGITUDINAL", 2500), g.valores().cotaPoza - nivelTitulos,
         "SECCION LONGITUDINAL");
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
  rotulo(lienzo, p.xPoza0, alto(1500) + v.cotaPoza, "Y1=" + redondeado(estado_.y1));
  rotulo(lienzo, p.xPoza0 + v.longPoza / 2 - ancho("0.000", 2000), v.y2 / 2 + v.cotaPoza + alto(2500),
         "Y2=" + redondeado(estado_.y2));
  rotulo(lienzo, p.xPoza2 - ancho("0.00", 2000), (v.cotaAbajo - v.cotaPoza) / 2 + v.cotaPoza + alto(2500),
         "h= " + formato(v.profPoza, "0.00"));
  rotulo(lienzo, p.xPoza2 - ancho("0.000", 2000), v.ynAbajo / 2 + v.cotaAbajo + alto(2500),
         "Yn= " + redondeado(estado_.ynAbajo));
  rotulo(lienzo, p.xPoza0 + v.longPoza / 3, v.cotaPoza + v.hPoza + 0.15, "Proyección de canal");
  rotulo(lienzo, p.xTrans + 0.1, v.cotaPoza - 0.3, "Canal Aguas Abajo");
}

/// Lengths from the end of the chute to the outlet, in the chain of the section and again in that of the plan.
void FiguraRapida::rotulosLongitudes(Lienzo& lienzo, const GeometriaRapida& g) const {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  const auto longitud = [&](double medio, const std::string& t, double valor, std::string_view patron) {
    const double x = medio - ancho(formato(valor, patron), 1000) * 0.5;
    for (const double base : {v.cotaPoza, pieDePlanta()}) rotulo(lienzo, x, base - nivelLongitudes, t);
  };
  longitud(v.xTrayectoria / 2 + v.longRapida, redondeado(estado_.xTrayectoria), v.xTrayectoria, "0.000");
  longitud(p.lRampaE / 2 + p.xPT, redondeado(p.lRampaE), p.lRampaE, "0.000");
  longitud(p.xPoza0 + v.longPoza / 2, redondeado(estado_.longPoza), v.longPoza, "0.000");
  if (v.profPoza != 0) longitud(p.xPoza1 + p.lRampaS / 2, redondeado(p.lRampaS), p.lRampaS, "0.000");
  if (v.longTransSalida != 0)
    longitud(p.xPoza2 + v.longTransSalida / 2, redondeado(estado_.longTransSalida), v.longTransSalida, "0.00");
}

void FiguraRapida::rotulosAnchos(Lienzo& lienzo, const GeometriaRapida& g) const {
  const Valores& v = g.valores();
  const EstacionesPoza& p = g.estaciones();
  const AnchoEn anchos[] = {{-v.longTransEntrada, v.espejoArriba},
                            {0, v.espejoRapida},
                            {v.longRapida, v.espejoRapida},
                            {p.xPoza0, v.espejoPoza},
                            {p.xPoza2, v.espejoPoza},
                            {p.xTrans, v.espejoAbajo}};
  for (const auto& a : anchos)
    rotulo(lienzo, a.x - ancho("0.00", 2000), alto(2500) + ejePlanta_, formato(a.medio, "0.00"));
}

}  // namespace calvento
