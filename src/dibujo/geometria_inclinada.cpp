#include "dibujo/geometria_inclinada.h"

#include <cmath>

namespace calvento {

namespace {

/// Depth of the cut-off under the control section, m.
constexpr double profDentellonControl = 0.35;

}  // namespace

GeometriaInclinada::GeometriaInclinada(const DesignState& estado) : v(estado), p(estacionesPoza(v, v.xTrayectoria)) {}

Punto GeometriaInclinada::centroCurva() const {
  return {-v.radioCurva * std::sin(v.anguloCaida), v.cotaFin - v.radioCurva * std::cos(v.anguloCaida)};
}

/// An arc about the centre of the crest curve. Outside its run it has no value.
double GeometriaInclinada::arco(double x, double radio) const {
  const Punto centro = centroCurva();
  return centro.y + std::sqrt(radio * radio - (x - centro.x) * (x - centro.x));
}

Punto GeometriaInclinada::puntoUmbral() const {
  const double subida = entre(1, v.zCaida);
  const double x = -entre(v.sArriba * v.longControl + v.sobreelevacion + v.longControl * subida, subida + v.sArriba);
  return {x, fondoArriba(-x)};
}

/// The ten points of the curve behind the crest, at so much over the bed.
void GeometriaInclinada::trazarCurva(Trazo& trazo, double sobre) const {
  for (int i = 1; i <= trozosCurva; ++i) {
    const double x = i * v.xTrayectoria / trozosCurva;
    trazo.punto(x, curva(x) + sobre);
  }
}

/// The bed of the curve from its end back to one of its eleven points.
void GeometriaInclinada::trazarCurvaDeVuelta(Trazo& trazo, int hasta) const {
  for (int i = trozosCurva; i >= hasta; --i) {
    const double x = i * v.xTrayectoria / trozosCurva;
    trazo.punto(x, curva(x));
  }
}

void GeometriaInclinada::trazarSuperficie(Trazo& trazo) const {
  const double xMedio = xTransE() - canalDibujado / 2;
  for (const double x : {xCanal(), xMedio}) trazo.punto(x, fondoArriba(-x) + v.ynArriba);
  trazo.punto(xControl(), (v.yFin + v.ynArriba - v.sobreelevacion) / 2 + inicioControl().y);
  trazo.punto(0, v.yFin + v.cotaFin);
  trazarCurva(trazo, v.yFin);
  trazarSuperficiePoza(trazo, v, p);
}

std::vector<Punto> GeometriaInclinada::superficie() const {
  Trazo trazo;
  trazarSuperficie(trazo);
  return trazo.puntos();
}

std::vector<Punto> GeometriaInclinada::agua() const {
  const Punto inicio{xCanal(), fondoArriba(-xCanal())};
  Trazo trazo;
  trazo.punto(inicio);
  trazarSuperficie(trazo);
  trazarFondoPoza(trazo, v, p);
  trazarCurvaDeVuelta(trazo, 1);
  trazo.punto(0, v.cotaFin).punto(inicioControl()).punto(puntoUmbral()).punto(inicio);
  return trazo.puntos();
}

std::vector<Punto> GeometriaInclinada::concreto() const {
  const double t = espesorMuro;
  const Punto s = inicioControl();
  const double xDentellon = t - v.longControl;
  Trazo trazo;
  trazarPisoPoza(trazo, v, p);
  trazarCurvaDeVuelta(trazo, 0);
  trazo.punto(s).punto(s.x, s.y - profDentellonControl).punto(xDentellon, s.y - profDentellonControl);
  trazo.punto(xDentellon, v.cotaFin - xDentellon * v.sArriba - t / std::cos(std::atan(v.sArriba)));
  trazo.punto(0, v.cotaFin - t);
  for (int i = 0; i <= trozosCurva; ++i) {
    const double x = i * v.xTrayectoriaInt / trozosCurva;
    trazo.punto(x, arco(x, v.radioCurva - t));
  }
  trazarBajoPoza(trazo, v, p);
  return trazo.puntos();
}

std::vector<Punto> GeometriaInclinada::canal() const {
  const Punto s = inicioControl();
  const double bajoCanal = espesorVertical(v.sArriba);
  const double subida = entre(1, v.zCaida);
  const double bajoRampa = espesorVertical(subida);
  const double fondo = fondoArriba(-xCanal());
  const double x = -entre(v.sArriba * v.longControl + bajoCanal + v.sobreelevacion + v.longControl * subida - bajoRampa,
                          subida + v.sArriba);
  Trazo trazo;
  trazo.punto(s).punto(puntoUmbral()).punto(xCanal(), fondo).punto(xCanal(), fondo - bajoCanal);
  trazo.punto(x, fondoArriba(-x) - bajoCanal).punto(s.x, s.y - bajoRampa);
  return trazo.cerrar().puntos();
}

std::vector<Punto> GeometriaInclinada::corona() const {
  const double caida = entre(1, v.zRampaEntrada);
  const double k = std::sqrt(v.hRapida * v.hRapida + v.hRapida * caida * v.hRapida * caida);
  // where the top of the upstream lining meets the top of the slope
  const double x =
      entre(v.cotaTrayectoria + k + v.xTrayectoria * caida - fondoArriba(0) - v.hArriba, caida - v.sArriba);
  Trazo trazo;
  trazo.punto(xCanal(), fondoArriba(-xCanal()) + v.hArriba).punto(x, fondoArriba(-x) + v.hArriba);
  trazo.punto((v.cotaTrayectoria + k - v.cotaPoza - v.hPoza) * v.zRampaEntrada + v.xTrayectoria, v.hPoza + v.cotaPoza);
  trazo.punto(p.xPoza1, v.hPoza + v.cotaPoza);
  trazarCoronaSalida(trazo, v, p);
  return trazo.puntos();
}

std::vector<Punto> GeometriaInclinada::energia() const {
  Trazo trazo;
  trazo.punto(xCanal(), v.vArriba * v.vArriba / dosG + fondoArriba(-xCanal()) + v.ynArriba);
  trazo.punto(0, energiaCresta());
  trazarEnergiaPoza(trazo, v, p);
  return trazo.puntos();
}

std::vector<Punto> GeometriaInclinada::puntosControl() const {
  std::vector<Punto> puntos = {{xTransE(), fondoArriba(-xTransE())}, inicioControl(), {0, v.cotaFin}};
  anadirPuntosPoza(puntos, v, p);
  return puntos;
}

}  // namespace calvento
