#include "dibujo/geometria_poza.h"

#include <cmath>

#include "dibujo/resalto_dibujo.h"

namespace calvento {

double espesorVertical(double pendiente) { return espesorRevestimiento / std::cos(std::atan(pendiente)); }

EstacionesPoza estacionesPoza(const Valores& v, double xPT) {
  EstacionesPoza p{};
  p.xPT = xPT;
  p.lRampaE = (v.cotaTrayectoria - v.cotaPoza) * v.zRampaEntrada;
  p.lRampaS = (v.cotaAbajo - v.cotaPoza) * v.zRampaSalida;
  p.xPoza0 = p.xPT + p.lRampaE;
  p.xPoza1 = p.xPoza0 + v.longPoza;
  p.xPoza2 = p.xPoza1 + p.lRampaS;
  p.xTrans = p.xPoza2 + v.longTransSalida;
  p.xSalida = p.xTrans + canalDibujado;
  return p;
}

double fondoAbajo(const Valores& v, double distancia) { return v.cotaAbajo - distancia * v.sAbajo; }

double energiaPieResalto(const Valores& v) { return v.v1 * v.v1 * 0.9 / dosG + v.y1 + v.cotaPoza; }

void trazarSuperficiePoza(Trazo& trazo, const Valores& v, const EstacionesPoza& p) {
  trazarResalto(trazo, p.xPoza0, v.cotaPoza, v.longPoza, v.y1, v.y2);
  trazo.punto(p.xPoza2, v.ynAbajo + v.cotaAbajo);
  trazo.punto(p.xSalida, v.ynAbajo + fondoAbajo(v, v.longTransSalida + canalDibujado));
}

void trazarFondoPoza(Trazo& trazo, const Valores& v, const EstacionesPoza& p) {
  trazo.punto(p.xSalida, fondoAbajo(v, v.longTransSalida + canalDibujado));
  trazarPisoPoza(trazo, v, p);
}

void trazarPisoPoza(Trazo& trazo, const Valores& v, const EstacionesPoza& p) {
  trazo.punto(p.xTrans, fondoAbajo(v, v.longTransSalida)).punto(p.xPoza2, v.cotaAbajo);
  trazo.punto(p.xPoza1, v.cotaPoza).punto(p.xPoza0, v.cotaPoza).punto(p.xPT, v.cotaTrayectoria);
}

void trazarBajoPoza(Trazo& trazo, const Valores& v, const EstacionesPoza& p) {
  const double t = espesorMuro;
  const double k = std::sqrt(v.sAbajo * v.sAbajo + 1) * t;
  const auto bajoTransicion = [&](double x) { return (p.xPoza2 - x) * v.sAbajo + v.cotaAbajo - k; };
  trazo.punto(p.xPoza0 - std::tan(std::atan(entre(1, v.zRampaEntrada)) / 2) * t, v.cotaPoza - t);
  double xRampa = p.xPoza2 + t;
  if (v.zRampaSalida != 0) {
    const double subida = entre(1, v.zRampaSalida);
    const double xa = p.xPoza1 + std::tan(std::atan(subida) / 2) * t;
    trazo.punto(xa, v.cotaPoza - t);
    xRampa = entre(p.xPoza2 * v.sAbajo + v.cotaAbajo - k - v.cotaPoza + t + xa * subida, subida + v.sAbajo);
  } else {
    trazo.punto(p.xPoza1 + t, v.cotaPoza - t);
  }
  trazo.punto(xRampa, bajoTransicion(xRampa)).punto(p.xTrans - t, bajoTransicion(p.xTrans - t));
  const double fondoTrans = fondoAbajo(v, v.longTransSalida);
  trazo.punto(p.xTrans - t, fondoAbajo(v, v.longTransSalida - t) - profDentellon);
  trazo.punto(p.xTrans, fondoTrans - profDentellon).punto(p.xTrans, fondoTrans);
}

std::vector<Punto> revestimiento(Punto inicio, Punto fin, double pendiente) {
  const double espesor = espesorVertical(pendiente);
  Trazo trazo;
  trazo.punto(inicio).punto(fin).punto(fin.x, fin.y - espesor).punto(inicio.x, inicio.y - espesor).cerrar();
  return trazo.puntos();
}

std::vector<Punto> revestimientoAbajo(const Valores& v, const EstacionesPoza& p) {
  return revestimiento({p.xTrans, fondoAbajo(v, v.longTransSalida)},
                       {p.xSalida, fondoAbajo(v, v.longTransSalida + canalDibujado)}, v.sAbajo);
}

void trazarCoronaSalida(Trazo& trazo, const Valores& v, const EstacionesPoza& p) {
  trazo.punto(p.xTrans, fondoAbajo(v, v.longTransSalida) + v.hAbajo);
  trazo.punto(p.xSalida, fondoAbajo(v, v.longTransSalida + canalDibujado) + v.hAbajo);
}

void anadirPuntosPoza(std::vector<Punto>& puntos, const Valores& v, const EstacionesPoza& p) {
  puntos.push_back({p.xPT, v.cotaTrayectoria});
  puntos.push_back({p.xPoza0, v.cotaPoza});
  puntos.push_back({p.xPoza1, v.cotaPoza});
  puntos.push_back({p.xPoza2, v.cotaAbajo});
  puntos.push_back({p.xTrans, fondoAbajo(v, v.longTransSalida)});
}

void trazarEnergiaPoza(Trazo& trazo, const Valores& v, const EstacionesPoza& p) {
  const double enPoza = v.v2 * v.v2 / dosG + v.y2 + v.cotaPoza;
  const double abajo = v.vAbajo * v.vAbajo / dosG + v.ynAbajo;
  trazo.punto(p.xPoza0, energiaPieResalto(v));
  trazo.punto(p.xPoza0 + v.longPoza / 2, enPoza).punto(p.xPoza1, enPoza);
  trazo.punto(p.xPoza1, abajo + v.cotaAbajo);
  trazo.punto(p.xSalida, abajo + fondoAbajo(v, v.longTransSalida + canalDibujado));
}

namespace {

/// Along the stations at the half width, onward or backward.
void trazarBorde(Trazo& trazo, std::span<const AnchoEn> anchos, double eje, int lado, bool deVuelta) {
  for (std::size_t i = 0; i < anchos.size(); ++i) {
    const AnchoEn& a = anchos[deVuelta ? anchos.size() - 1 - i : i];
    trazo.punto(a.x, eje + lado * a.medio);
  }
}

}  // namespace

std::vector<Punto> aguaPlanta(std::span<const AnchoEn> anchos, double eje) {
  Trazo trazo;
  trazarBorde(trazo, anchos, eje, -1, false);
  trazarBorde(trazo, anchos, eje, 1, true);
  return trazo.cerrar().puntos();
}

std::vector<Punto> muroPlanta(std::span<const AnchoEn> dentro, std::span<const AnchoEn> fuera, double eje, int lado) {
  Trazo trazo;
  trazarBorde(trazo, dentro, eje, lado, false);
  trazarBorde(trazo, fuera, eje, lado, true);
  return trazo.cerrar().puntos();
}

std::vector<AnchoEn> caraExterior(std::span<const AnchoEn> dentro) {
  std::vector<AnchoEn> fuera(dentro.begin(), dentro.end());
  for (AnchoEn& a : fuera) a.medio += espesorMuro;
  return fuera;
}

std::vector<Segmento> lineasTransversales(std::span<const AnchoEn> anchos, double eje) {
  std::vector<Segmento> lineas;
  for (const auto& a : anchos) lineas.push_back({{a.x, eje - a.medio}, {a.x, eje + a.medio}});
  return lineas;
}

std::vector<Punto> bordeFondo(std::span<const AnchoEn> anchos, double eje, int lado) {
  Trazo trazo;
  trazarBorde(trazo, anchos, eje, lado, false);
  return trazo.puntos();
}

double PlantaPoza::medioAnchoPT() const {
  return entre((bPoza - bEntrada) * v.xTrayectoria, p.lRampaE + v.xTrayectoria) / 2 + bEntrada / 2;
}

std::array<AnchoEn, 9> PlantaPoza::anchos() const {
  const double arriba = v.espejoArriba / 2;
  const double rapida = v.espejoRapida / 2;
  const double poza = v.espejoPoza / 2;
  const double abajo = v.espejoAbajo / 2;
  return {{{x[0], arriba},
           {x[1], arriba},
           {x[2], rapida},
           {x[3], rapida},
           {p.xPoza0, poza},
           {p.xPoza1, poza},
           {p.xPoza2, poza},
           {p.xTrans, abajo},
           {p.xSalida, abajo}}};
}

std::array<AnchoEn, 8> PlantaPoza::transversales() const {
  const auto a = anchos();
  return {{a[1], a[2], a[3], {p.xPT, medioAnchoPT()}, a[4], a[5], a[6], a[7]}};
}

std::vector<std::vector<Punto>> PlantaPoza::bordesFondo(double eje) const {
  const AnchoEn entrada[] = {
      {x[0], v.bArriba / 2}, {x[1], v.bArriba / 2}, {x[2], bEntrada / 2}, {x[3], bEntrada / 2}, {p.xPoza0, bPoza / 2}};
  const AnchoEn salida[] = {{p.xPoza2, bPoza / 2}, {p.xTrans, v.bAbajo / 2}, {p.xSalida, v.bAbajo / 2}};
  const AnchoEn poza[] = {{p.xPoza0, bPoza / 2}, {p.xPoza2, bPoza / 2}};
  std::vector<std::vector<Punto>> bordes;
  for (const int lado : {-1, 1})
    for (const std::span<const AnchoEn> tramo :
         {std::span<const AnchoEn>(entrada), std::span<const AnchoEn>(salida), std::span<const AnchoEn>(poza)})
      bordes.push_back(bordeFondo(tramo, eje, lado));
  return bordes;
}

std::vector<Segmento> PlantaPoza::rayado(double eje) const {
  std::vector<Segmento> rayas;
  const auto raya = [&](double hasta, double y) { rayas.push_back({{p.xPT, y}, {hasta, y}}); };
  const double mitad = p.xPT + p.lRampaE / 2;
  const double medio = medioAnchoPT();
  raya(mitad, eje);
  for (const int lado : {-1, 1}) {
    raya(p.xPoza0, eje + lado * medio / 3);
    raya(mitad, eje + lado * 2 * medio / 3);
  }
  for (const Segmento& s : rayadoRampaSalida(p, eje, bPoza)) rayas.push_back(s);
  return rayas;
}

std::vector<Segmento> rayadoRampaSalida(const EstacionesPoza& p, double eje, double anchoPoza) {
  std::vector<Segmento> rayas;
  const auto raya = [&](double desde, double hasta, double y) { rayas.push_back({{desde, y}, {hasta, y}}); };
  const double mitad = p.xPoza1 + p.lRampaS / 2;
  raya(p.xPoza2, mitad, eje);
  for (const int lado : {-1, 1}) {
    raya(p.xPoza2, p.xPoza1, eje + lado * anchoPoza / 6);
    raya(mitad, p.xPoza2, eje + lado * 2 * anchoPoza / 6);
  }
  return rayas;
}

}  // namespace calvento
