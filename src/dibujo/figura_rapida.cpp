#include "dibujo/figura_rapida.h"

#include <utility>

#include "dibujo/cotas.h"

// The areas and lines of the chute's sheet.

namespace calvento {

namespace {

void relleno(Lienzo& lienzo, Color color, EstiloRelleno estilo) {
  lienzo.FillColor = color;
  lienzo.FillStyle = estilo;
}

void agua(Lienzo& lienzo, std::vector<Punto> puntos) {
  relleno(lienzo, color::cianClaro, EstiloRelleno::solido);
  lienzo.Polygon(std::move(puntos));
}

void concreto(Lienzo& lienzo, std::vector<Punto> puntos) {
  relleno(lienzo, color::grisClaro, EstiloRelleno::cruzadoDiagonal);
  lienzo.Polygon(std::move(puntos));
}

}  // namespace

void FiguraRapida::POLIGONO(Lienzo& lienzo) const {
  lienzo.Cls();
  // no later routine changes it: all texts and lines without a colour of their own are light blue
  lienzo.ForeColor = color::azulClaro;
  agua(lienzo, GeometriaRapida(estado_).agua());
}

void FiguraRapida::PLANTA(Lienzo& lienzo) const {
  const auto anchos = GeometriaRapida(estado_).anchosPlanta();
  agua(lienzo, aguaPlanta(anchos, ejePlanta_));
  for (const int lado : {-1, 1}) concreto(lienzo, muroPlanta(anchos, ejePlanta_, lado));
}

void FiguraRapida::RAPIDA(Lienzo& lienzo) const { concreto(lienzo, GeometriaRapida(estado_).concreto()); }
void FiguraRapida::CANAL(Lienzo& lienzo) const { concreto(lienzo, GeometriaRapida(estado_).canal()); }
void FiguraRapida::CANALB(Lienzo& lienzo) const { concreto(lienzo, GeometriaRapida(estado_).canalAbajo()); }

void FiguraRapida::COTAS(Lienzo& lienzo) const {
  relleno(lienzo, color::negro, EstiloRelleno::solido);
  for (const Punto& p : GeometriaRapida(estado_).puntosControl())
    lienzo.LineCaja({p.x - medioPuntoControl, p.y - medioPuntoControl},
                    {p.x + medioPuntoControl, p.y + medioPuntoControl}, color::negro);
}

void FiguraRapida::DIBUJACANAL(Lienzo& lienzo) const {
  const GeometriaRapida g(estado_);
  const auto lineas = [&lienzo](const std::vector<Segmento>& segmentos) {
    for (const auto& s : segmentos) lienzo.Line(s.a, s.b, color::grisMedio);
  };
  lienzo.DrawStyle = EstiloLinea::solida;
  lienzo.Polyline(g.corona(), color::rojo);
  lineas(rayadoRampas(g.estaciones(), ejePlanta_, g.medioAnchoTrayectoria(), g.valores().bPoza));
  lienzo.DrawStyle = EstiloLinea::guionPunto;
  lineas(lineasTransversales(g.anchosTransversales(), ejePlanta_));
  for (const auto& borde : g.bordesFondo(ejePlanta_)) lienzo.Polyline(borde, color::grisMedio);
  lienzo.Polyline(g.energia(), color::grisMedio);
  lienzo.DrawStyle = EstiloLinea::solida;
}

}  // namespace calvento
