#include "dibujo/pintura.h"

#include <utility>

#include "dibujo/cotas.h"

namespace calvento {

namespace {

void relleno(Lienzo& lienzo, Color color, EstiloRelleno estilo) {
  lienzo.FillColor = color;
  lienzo.FillStyle = estilo;
}

void pintarAgua(Lienzo& lienzo, std::vector<Punto> puntos) {
  relleno(lienzo, color::cianClaro, EstiloRelleno::solido);
  lienzo.Polygon(std::move(puntos));
}

}  // namespace

void pintarAguaSeccion(Lienzo& lienzo, std::vector<Punto> puntos) {
  lienzo.Cls();
  lienzo.ForeColor = color::azulClaro;
  pintarAgua(lienzo, std::move(puntos));
}

void pintarConcreto(Lienzo& lienzo, std::vector<Punto> puntos) {
  relleno(lienzo, color::grisClaro, EstiloRelleno::cruzadoDiagonal);
  lienzo.Polygon(std::move(puntos));
}

void pintarPlanta(Lienzo& lienzo, std::span<const AnchoEn> dentro, std::span<const AnchoEn> fuera, double eje) {
  pintarAgua(lienzo, aguaPlanta(dentro, eje));
  for (const int lado : {-1, 1}) pintarConcreto(lienzo, muroPlanta(dentro, fuera, eje, lado));
}

void pintarPuntosControl(Lienzo& lienzo, const std::vector<Punto>& puntos) {
  relleno(lienzo, color::negro, EstiloRelleno::solido);
  for (const Punto& p : puntos)
    lienzo.LineCaja({p.x - medioPuntoControl, p.y - medioPuntoControl},
                    {p.x + medioPuntoControl, p.y + medioPuntoControl}, color::negro);
}

void pintarLineasCanal(Lienzo& lienzo, const LineasCanal& l) {
  const auto lineas = [&lienzo](const std::vector<Segmento>& segmentos) {
    for (const auto& s : segmentos) lienzo.Line(s.a, s.b, color::grisMedio);
  };
  lienzo.DrawStyle = EstiloLinea::solida;
  lienzo.Polyline(l.corona, color::rojo);
  lineas(l.rayado);
  lienzo.DrawStyle = EstiloLinea::guionPunto;
  lineas(l.transversales);
  for (const auto& borde : l.bordes) lienzo.Polyline(borde, color::grisMedio);
  lienzo.Polyline(l.energia, color::grisMedio);
  lienzo.DrawStyle = EstiloLinea::solida;
}

}  // namespace calvento
