#include "dibujo/geometria_vertical.h"

#include <cmath>

#include "dibujo/resalto_dibujo.h"

namespace calvento {

namespace {

/// Run of the lower nappe where the pool reaches the crest, m.
constexpr double recorridoMinimo = 0.1;

EstacionesPoza estacionesDe(const Valores& v) {
  EstacionesPoza p{};
  p.xPoza1 = v.longRapida;
  p.lRampaS = v.zRampaSalida * v.profPoza;
  p.xPoza2 = p.xPoza1 + p.lRampaS;
  p.xTrans = p.xPoza2 + v.longTransSalida;
  p.xSalida = p.xTrans + canalDibujado;
  return p;
}

/// Horizontal run of the upper nappe, to the point where it reaches the depth y1 over the floor.
Real recorridoSuperior(const DesignState& e) {
  return e.vFin * Sqr(2 * (e.yFin + e.cotaFin - e.cotaPoza) / 9.81) - e.y1;
}

/// Horizontal run of the lower nappe, down to the pool at the foot of the face.
Real recorridoInferior(const DesignState& e) {
  const Real caida = e.cotaFin - e.cotaPoza;
  if (!(caida > e.yVert94)) return recorridoMinimo;
  return (-e.trayB - Sqr(cuadrado(e.trayB) - 4 * Real(e.trayA) * (caida - e.yVert94))) / (2 * Real(e.trayA));
}

}  // namespace

GeometriaVertical::GeometriaVertical(const DesignState& estado) : v(estado), p(estacionesDe(v)) {}

double GeometriaVertical::tiranteArriba() const {
  const auto& perfil = v.estado.perfilCaida;
  return perfil.empty() ? sinValor : perfil.back().tirante;
}

/// Ten points along the nappe, at so much over its lower side.
void GeometriaVertical::trazarNapa(Trazo& trazo, double recorrido, bool deVuelta, double sobre) const {
  for (int k = 1; k <= trozosCurva; ++k) {
    const int i = deVuelta ? trozosCurva + 1 - k : k;
    const double x = i * recorrido / trozosCurva;
    trazo.punto(x, napa(x) + sobre);
  }
}

void GeometriaVertical::trazarSuperficie(Trazo& trazo, DesignState& e) const {
  const auto& perfil = v.estado.perfilCaida;
  // the rise of the bed goes by the depth, not by the distance: meant so
  for (auto fila = perfil.rbegin(); fila != perfil.rend(); ++fila)
    trazo.punto(fila->x, fondoArriba(std::fabs(fila->tirante)) + fila->tirante);

  pasandoFallos([&] { e.xTrayectoria = recorridoSuperior(e); });
  trazarNapa(trazo, e.xTrayectoria.valor(), false, v.yFin);
  pasandoFallos([&] { e.xTrayectoria += e.y1; });
  trazarResalto(trazo, e.xTrayectoria.valor(), v.cotaPoza, v.longPoza, v.y1, v.y2);
  trazo.punto(p.xPoza2, v.ynAbajo + v.cotaAbajo);
  trazo.punto(p.xSalida, v.ynAbajo + fondoAbajo(v, v.longTransSalida + canalDibujado));
}

std::vector<Punto> GeometriaVertical::superficie(DesignState estado) const {
  Trazo trazo;
  trazarSuperficie(trazo, estado);
  return trazo.puntos();
}

std::vector<Punto> GeometriaVertical::agua(DesignState& e) const {
  Trazo trazo;
  trazarSuperficie(trazo, e);
  trazo.punto(p.xSalida, fondoAbajo(v, v.longTransSalida + canalDibujado) - espesorMuro * v.sAbajo);
  trazo.punto(p.xPoza2 + espesorMuro, v.cotaAbajo).punto(p.xPoza2, v.cotaAbajo).punto(p.xPoza1, v.cotaPoza);
  trazo.punto(0, v.cotaPoza).punto(0, v.yVert94 + v.cotaPoza);

  pasandoFallos([&] { e.xTrayectoria = recorridoInferior(e); });
  trazarNapa(trazo, e.xTrayectoria.valor(), true, 0);
  for (const double x : {0.0, xControl(), xTransE(), xCanal()}) trazo.punto(x, fondoArriba(-x));
  return trazo.puntos();
}

std::vector<Punto> GeometriaVertical::concreto() const {
  const double t = espesorMuro;
  const double cresta = v.cotaFin;
  const double piso = v.cotaPoza;
  Trazo trazo;
  trazo.punto(xControl(), fondoArriba(v.longControl)).punto(0, cresta).punto(0, piso).punto(p.xPoza1, piso);
  trazo.punto(p.xPoza2, v.profPoza + piso).punto(p.xPoza2 + t, v.profPoza + piso);
  trazo.punto(p.xPoza2 + t, piso - 3 * t).punto(p.xPoza2, piso - 3 * t).punto(p.xPoza2, piso - t);
  trazo.punto(0, piso - t).punto(0, piso - 3 * t).punto(-t, piso - 3 * t).punto(-t, cresta - t);
  trazo.punto(t - v.longControl, cresta - t).punto(t - v.longControl, cresta - 2 * t).punto(xControl(), cresta - 2 * t);
  return trazo.cerrar().puntos();
}

std::vector<Punto> GeometriaVertical::canal() const {
  const double espesor = espesorVertical(v.sArriba);
  Trazo trazo;
  for (const double x : {xControl(), xTransE(), xCanal()}) trazo.punto(x, fondoArriba(-x));
  for (const double x : {xCanal(), xControl()}) trazo.punto(x, fondoArriba(-x) - espesor);
  return trazo.cerrar().puntos();
}

std::vector<Punto> GeometriaVertical::canalAbajo() const {
  return revestimiento({p.xPoza2 + espesorMuro, v.cotaAbajo},
                       {p.xSalida, fondoAbajo(v, v.longTransSalida + canalDibujado)}, v.sAbajo);
}

std::vector<Punto> GeometriaVertical::corona() const {
  Trazo trazo;
  trazo.punto(xCanal(), fondoArriba(-xCanal()) + v.hArriba).punto(0, v.hArriba + v.cotaFin);
  trazo.punto(p.xPoza2, v.hAbajo + v.cotaAbajo);
  trazo.punto(p.xSalida, fondoAbajo(v, v.longTransSalida + canalDibujado) + v.hAbajo);
  return trazo.puntos();
}

std::vector<Punto> GeometriaVertical::energia() const {
  const double abajo = v.vAbajo * v.vAbajo / dosG + v.ynAbajo;
  Trazo trazo;
  trazo.punto(xCanal(), v.vArriba * v.vArriba / dosG + fondoArriba(-xCanal()) + tiranteArriba());
  trazo.punto(0, energiaCresta()).punto(xResalto(), energiaPoza()).punto(p.xPoza2, energiaPoza());
  trazo.punto(p.xPoza2, abajo + v.cotaAbajo);
  trazo.punto(p.xSalida, abajo + fondoAbajo(v, v.longTransSalida + canalDibujado));
  return trazo.puntos();
}

std::vector<Punto> GeometriaVertical::puntosControl() const {
  return {{xTransE(), fondoArriba(-xTransE())},
          {xControl(), fondoArriba(v.longControl)},
          {0, v.cotaFin},
          {0, v.cotaPoza},
          {p.xPoza1, v.cotaPoza},
          {p.xPoza2, v.cotaAbajo},
          {p.xTrans, fondoAbajo(v, v.longTransSalida)}};
}

std::array<AnchoEn, 8> GeometriaVertical::anchos(double xEscalon) const {
  const double control = v.bPozaCaida / 2;
  const double poza = control + v.longTransVert;
  return {{{xCanal(), v.espejoArriba / 2},
           {xTransE(), v.espejoArriba / 2},
           {xControl(), control},
           {xEscalon, control},
           {xEscalon, poza},
           {p.xPoza2, poza},
           {p.xTrans, v.espejoAbajo / 2},
           {p.xSalida, v.espejoAbajo / 2}}};
}

std::vector<AnchoEn> GeometriaVertical::anchosMuro() const { return caraExterior(anchos(-espesorMuro)); }

std::array<AnchoEn, 7> GeometriaVertical::anchosTransversales() const {
  const double poza = v.espejoPoza / 2;
  return {{{xTransE(), v.espejoArriba / 2},
           {xControl(), v.espejoRapida / 2},
           {0, v.espejoRapida / 2},
           {0, poza},
           {p.xPoza1, poza},
           {p.xPoza2, poza},
           {p.xTrans, v.espejoAbajo / 2}}};
}

std::vector<std::vector<Punto>> GeometriaVertical::bordesFondo(double eje) const {
  std::vector<std::vector<Punto>> bordes;
  for (const int lado : {-1, 1}) {
    // the lower edge narrows to the entry, the upper one to the basin: meant so
    const double control = (lado < 0 ? v.bEntradaCaida : v.bPozaCaida) / 2;
    const AnchoEn entrada[] = {{xCanal(), v.bArriba / 2}, {xTransE(), v.bArriba / 2}, {xControl(), control}};
    const AnchoEn salida[] = {{p.xPoza2, anchoPoza() / 2}, {p.xTrans, v.bAbajo / 2}, {p.xSalida, v.bAbajo / 2}};
    bordes.push_back(bordeFondo(entrada, eje, lado));
    bordes.push_back(bordeFondo(salida, eje, lado));
  }
  return bordes;
}

}  // namespace calvento
