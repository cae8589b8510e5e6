#include "dibujo/geometria_rapida.h"

#include <algorithm>
#include <cmath>

namespace calvento {

namespace {

/// Width of the top of the inlet sill, m.
constexpr double anchoUmbral = 0.1;
/// Rows of the profile in each reach.
constexpr std::size_t filasPorTramo = 100;

std::array<TramoRapida, 3> tramosDe(const Valores& v) {
  const Punto inicio{0, v.cotaInicio};
  const Punto fin{v.longRapida, v.cotaFin};
  const Punto junta1{v.longTramo1, v.cotaTramo2};
  const Punto junta2{v.longTramo1 + v.longTramo2, v.cotaTramo3};
  return {{
      {inicio, v.numTramos == 1 ? fin : junta1, v.longTramo1, v.sTramo1},
      {junta1, v.numTramos == 2 ? fin : junta2, v.longTramo2, v.sTramo2},
      {junta2, fin, v.longTramo3, v.sTramo3},
  }};
}

}  // namespace

GeometriaRapida::GeometriaRapida(const DesignState& estado)
    : v(estado), p(estacionesPoza(v, v.longRapida + v.xTrayectoria)), tramos_(tramosDe(v)) {}

double GeometriaRapida::parabola(double x) const {
  const double d = x - v.longRapida;
  return v.cotaFin + v.trayB * d + v.trayA * d * d;
}

double GeometriaRapida::fondoEnFila(std::size_t fila, double x) const {
  const TramoRapida& t = tramos()[std::min(fila / filasPorTramo, tramos().size() - 1)];
  return t.inicio.y + entre((x - t.inicio.x) * (t.fin.y - t.inicio.y), t.longitud);
}

Punto GeometriaRapida::puntoUmbral() const {
  const double dosH = 2 * v.sobreelevacion;
  const double a = entre(dosH - 2 * v.sArriba * anchoUmbral - 2 * v.sArriba * dosH, 2 * v.sArriba + 1);
  return {-a - anchoUmbral - dosH, fondoArriba(a + anchoUmbral + dosH)};
}

double GeometriaRapida::energiaFin() const { return v.vFin * v.vFin / dosG + v.yFin + v.cotaFin; }

/// The ten points of the trajectory behind its start, at so much over the bed.
void GeometriaRapida::trazarTrayectoria(Trazo& trazo, bool deVuelta, double sobre) const {
  for (int k = 1; k <= trozosCurva; ++k) {
    const int i = deVuelta ? trozosCurva + 1 - k : k;
    const double x = v.longRapida + i * v.xTrayectoria / trozosCurva;
    trazo.punto(x, parabola(x) + sobre);
  }
}

void GeometriaRapida::trazarSuperficie(Trazo& trazo) const {
  const double dosH = 2 * v.sobreelevacion;
  const double enUmbral = v.cotaInicio + v.sobreelevacion + v.ycControl;
  trazo.punto(xCanal(), fondoArriba(v.longTransEntrada + canalDibujado) + v.ynArriba);
  trazo.punto(-anchoUmbral - dosH, enUmbral).punto(-dosH, enUmbral).punto(0, v.cotaInicio + v.ycControl);
  const auto& perfil = v.estado.perfil;
  for (std::size_t i = 0; i < perfil.size(); ++i) {
    const double x = perfil[i].x.valor();
    trazo.punto(x, fondoEnFila(i, x) + perfil[i].tirante.valor());
  }
  trazarTrayectoria(trazo, false, v.yFin);
  trazarSuperficiePoza(trazo, v, p);
}

std::vector<Punto> GeometriaRapida::superficie() const {
  Trazo trazo;
  trazarSuperficie(trazo);
  return trazo.puntos();
}

std::vector<Punto> GeometriaRapida::agua() const {
  const double dosH = 2 * v.sobreelevacion;
  const double cotaUmbral = v.cotaInicio + v.sobreelevacion;
  const double fondo = fondoArriba(v.longTransEntrada + canalDibujado);
  Trazo trazo;
  trazo.punto(xCanal(), fondo);
  trazarSuperficie(trazo);
  trazarFondoPoza(trazo, v, p);
  trazarTrayectoria(trazo, true, 0);
  for (std::size_t i = tramos().size(); i-- > 0;) trazo.punto(tramos()[i].fin);
  trazo.punto(0, v.cotaInicio).punto(-dosH, cotaUmbral).punto(-anchoUmbral - dosH, cotaUmbral);
  trazo.punto(puntoUmbral()).punto(xCanal(), fondo);
  return trazo.puntos();
}

std::vector<Punto> GeometriaRapida::concreto() const {
  const double t = espesorMuro;
  Trazo trazo;
  trazarPisoPoza(trazo, v, p);
  trazarTrayectoria(trazo, true, 0);
  trazo.punto(v.longRapida, parabola(v.longRapida));
  trazo.punto(v.longRapida, v.cotaFin - profDentellon).punto(v.longRapida + t, v.cotaFin - profDentellon);
  trazo.punto(v.longRapida + t, parabola(v.longRapida + t) - t);
  for (int i = 1; i <= trozosCurva; ++i) {
    const double x = v.longRapida + t + i * (v.xTrayectoria - t) / trozosCurva;
    trazo.punto(x, parabola(x) - t);
  }
  trazarBajoPoza(trazo, v, p);
  return trazo.puntos();
}

std::vector<Punto> GeometriaRapida::canal() const {
  const double dosH = 2 * v.sobreelevacion;
  const double cotaUmbral = v.cotaInicio + v.sobreelevacion;
  const double fondo = fondoArriba(v.longTransEntrada + canalDibujado);
  Trazo trazo;
  trazo.punto(0, v.cotaInicio).punto(-dosH, cotaUmbral).punto(-anchoUmbral - dosH, cotaUmbral);
  trazo.punto(puntoUmbral());
  trazo.punto(xCanal(), fondo).punto(xCanal(), fondo - espesorVertical(v.sArriba));
  const double c = entre((std::sqrt(v.sTramo1 * v.sTramo1 + 1) - 1) * espesorRevestimiento, v.sTramo1 - v.sArriba);
  trazo.punto(-c, v.cotaInicio - espesorRevestimiento + c * v.sArriba);
  for (const auto& tramo : tramos()) trazo.punto(tramo.fin.x, tramo.fin.y - espesorVertical(tramo.pendiente));
  for (std::size_t i = tramos().size(); i-- > 0;) trazo.punto(tramos()[i].fin);
  return trazo.cerrar().puntos();
}

/// Where the top of the chute's lining meets the top of the entrance ramp.
double GeometriaRapida::xCoronaRampa() const {
  const double z = v.zRampaEntrada;
  const TramoRapida& ultimo = tramos().back();
  const double caida = (ultimo.fin.y - ultimo.inicio.y) * z;
  double corte = 0;
  if (v.numTramos == 1) corte = (v.cotaTrayectoria * z + p.xPT - z * v.cotaInicio) * v.longTramo1;
  if (v.numTramos == 2) {
    const double desdeJunta = entre(caida * v.longTramo1, v.longTramo2);
    corte = (v.cotaTrayectoria * z + p.xPT - v.cotaTramo2 * z + desdeJunta) * v.longTramo2;
  }
  if (v.numTramos == 3)
    corte = v.longTramo3 * z * (v.cotaTrayectoria - v.cotaFin) + p.xPT * v.longTramo3 + caida * v.longRapida;
  return entre(corte, caida + ultimo.longitud);
}

std::vector<Punto> GeometriaRapida::corona() const {
  Trazo trazo;
  trazo.punto(xCanal(), fondoArriba(v.longTransEntrada + canalDibujado) + v.hArriba);
  trazo.punto(0, v.hArriba + v.cotaInicio).punto(5, v.cotaInicio - v.sTramo1 * 5 + v.hRapida);
  for (const auto& tramo : tramos().first(tramos().size() - 1)) trazo.punto(tramo.fin.x, tramo.fin.y + v.hRapida);
  const double ix = xCoronaRampa();
  trazo.punto(ix, entre(p.xPT - ix, v.zRampaEntrada) + v.cotaTrayectoria + v.hRapida);
  trazo.punto(p.xPoza0, v.hPoza + v.cotaPoza).punto(p.xPoza1, v.hPoza + v.cotaPoza);
  trazarCoronaSalida(trazo, v, p);
  return trazo.puntos();
}

/// Velocity head of the design discharge at a depth of the chute's section.
double GeometriaRapida::cargaVelocidad(double tirante) const {
  const double velocidad = entre(v.Q, (v.zRapida * tirante + v.bRapida) * tirante);
  return velocidad * velocidad / dosG;
}

std::vector<Punto> GeometriaRapida::energia() const {
  Trazo trazo;
  trazo.punto(xCanal(), v.vArriba * v.vArriba / dosG + fondoArriba(v.longTransEntrada + canalDibujado) + v.ynArriba);
  trazo.punto(0, v.ycControl + v.cotaInicio + cargaVelocidad(v.ycControl) + v.sobreelevacion);
  const std::array<double, 2> tirantes = {v.yTramo1, v.yTramo2};
  for (std::size_t i = 0; i + 1 < tramos().size(); ++i)
    trazo.punto(tramos()[i].fin.x, tirantes[i] + tramos()[i].fin.y + cargaVelocidad(tirantes[i]));
  trazo.punto(v.longRapida, energiaFin());
  trazarEnergiaPoza(trazo, v, p);
  return trazo.puntos();
}

std::vector<Punto> GeometriaRapida::puntosControl() const {
  std::vector<Punto> puntos = {{-v.longTransEntrada, fondoArriba(v.longTransEntrada)}, {0, v.cotaInicio}};
  for (const auto& tramo : tramos()) puntos.push_back(tramo.fin);
  anadirPuntosPoza(puntos, v, p);
  return puntos;
}

}  // namespace calvento
