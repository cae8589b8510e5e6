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

void trazarAguaPoza(Trazo& trazo, const Valores& v, const EstacionesPoza& p) {
  trazarSuperficiePoza(trazo, v, p);
  trazarFondoPoza(trazo, v, p);
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

std::vector<Punto> revestimientoAbajo(const Valores& v, const EstacionesPoza& p) {
  const double espesor = espesorVertical(v.sAbajo);
  const Punto inicio{p.xTrans, fondoAbajo(v, v.longTransSalida)};
  const Punto fin{p.xSalida, fondoAbajo(v, v.longTransSalida + canalDibujado)};
  Trazo trazo;
  trazo.punto(inicio).punto(fin).punto(fin.x, fin.y - espesor).punto(inicio.x, inicio.y - espesor).cerrar();
  return trazo.puntos();
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

/// Along the stations at so much outside the half width, onward or backward.
void trazarBorde(Trazo& trazo, std::span<const AnchoEn> anchos, double eje, int lado, double fuera, bool deVuelta) {
  for (std::size_t i = 0; i < anchos.size(); ++i) {
    const AnchoEn& a = anchos[deVuelta ? anchos.size() - 1 - i : i];
    trazo.punto(a.x, eje + lado * (a.medio + fuera));
  }
}

}  // namespace

std::vector<Punto> aguaPlanta(std::span<const AnchoEn> anchos, double eje) {
  Trazo trazo;
  trazarBorde(trazo, anchos, eje, -1, 0, false);
  trazarBorde(trazo, anchos, eje, 1, 0, true);
  return trazo.cerrar().puntos();
}

std::vector<Punto> muroPlanta(std::span<const AnchoEn> anchos, double eje, int lado) {
  Trazo trazo;
  trazarBorde(trazo, anchos, eje, lado, 0, false);
  trazarBorde(trazo, anchos, eje, lado, espesorMuro, true);
  return trazo.cerrar().puntos();
}

std::vector<Segmento> lineasTransversales(std::span<const AnchoEn> anchos, double eje) {
  std::vector<Segmento> lineas;
  for (const auto& a : anchos) lineas.push_back({{a.x, eje - a.medio}, {a.x, eje + a.medio}});
  return lineas;
}

std::vector<Punto> bordeFondo(std::span<const AnchoEn> anchos, double eje, int lado) {
  Trazo trazo;
  trazarBorde(trazo, anchos, eje, lado, 0, false);
  return trazo.puntos();
}

double medioAnchoPT(const Valores& v, const EstacionesPoza& p, double bEntrada, double bPoza) {
  return entre((bPoza - bEntrada) * v.xTrayectoria, p.lRampaE + v.xTrayectoria) / 2 + bEntrada / 2;
}

std::vector<Segmento> rayadoRampas(const EstacionesPoza& p, double eje, double medioPT, double bPoza) {
  std::vector<Segmento> rayas;
  const auto raya = [&](double desde, double hasta, double y) { rayas.push_back({{desde, y}, {hasta, y}}); };
  const double mitadE = p.xPT + p.lRampaE / 2;
  const double mitadS = p.xPoza1 + p.lRampaS / 2;
  raya(p.xPT, mitadE, eje);
  for (const int lado : {-1, 1}) {
    raya(p.xPT, p.xPoza0, eje + lado * medioPT / 3);
    raya(p.xPT, mitadE, eje + lado * 2 * medioPT / 3);
  }
  raya(p.xPoza2, mitadS, eje);
  for (const int lado : {-1, 1}) {
    raya(p.xPoza2, p.xPoza1, eje + lado * bPoza / 6);
    raya(mitadS, p.xPoza2, eje + lado * 2 * bPoza / 6);
  }
  return rayas;
}

}  // namespace calvento
