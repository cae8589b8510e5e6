#include "dibujo/figura_rapida.h"

#include "dibujo/bloques.h"
#include "dibujo/pintura.h"

// The areas and lines of the chute's sheet.

namespace calvento {

void FiguraRapida::POLIGONO(Lienzo& lienzo) const { pintarAguaSeccion(lienzo, GeometriaRapida(estado_).agua()); }

void FiguraRapida::PLANTA(Lienzo& lienzo) const {
  const GeometriaRapida g(estado_);
  const auto anchos = g.planta().anchos();
  pintarPlanta(lienzo, anchos, caraExterior(anchos), ejePlanta_);
}

void FiguraRapida::DIBUBABLOCKS(Lienzo& lienzo, const MinimoBloques& minimo) const {
  const GeometriaRapida g(estado_);
  pintarBloques(lienzo, bloquesDePoza(g.valores(), g.estaciones(), estado_.bPoza, ejePlanta_, minimo));
}

void FiguraRapida::RAPIDA(Lienzo& lienzo) const { pintarConcreto(lienzo, GeometriaRapida(estado_).concreto()); }
void FiguraRapida::CANAL(Lienzo& lienzo) const { pintarConcreto(lienzo, GeometriaRapida(estado_).canal()); }
void FiguraRapida::CANALB(Lienzo& lienzo) const { pintarConcreto(lienzo, GeometriaRapida(estado_).canalAbajo()); }
void FiguraRapida::COTAS(Lienzo& lienzo) const {
  pintarPuntosControl(lienzo, GeometriaRapida(estado_).puntosControl());
}

void FiguraRapida::DIBUJACANAL(Lienzo& lienzo) const {
  const GeometriaRapida g(estado_);
  const PlantaPoza planta = g.planta();
  pintarLineasCanal(lienzo,
                    {g.corona(), planta.rayado(ejePlanta_), lineasTransversales(planta.transversales(), ejePlanta_),
                     planta.bordesFondo(ejePlanta_), g.energia()});
}

}  // namespace calvento
