#include "hidraulica/resalto.h"

namespace calvento {

namespace {

/// One end of the jump in the trapezoidal basin.
struct Lado {
  Real A, T, v, y, c;
};

/// Geometry and velocity at a depth; velocity and top width go through their 4-byte stores.
Lado ladoEn(Real y, Real Q, const PozaResalto& poza, Single& velocidad, Single& espejo) {
  const Real A = (poza.z * y + poza.b) * y;
  velocidad = Q / A;
  espejo = 2 * poza.z * y + poza.b;
  return {A, espejo, velocidad, y, poza.z * y / 3 + poza.b / 2};
}

}  // namespace

Real conjugadoRectangular(Real y1, Real q) { return -y1 / 2 + Sqr(y1 * y1 / 4 + 2 * q * q / (y1 * gravedad)); }

void TIRANTESCONJUGADOS(DesignState& e, const PozaResalto& poza, double tolerancia) {
  const Real k1 = e.ahogamiento + 1;
  Single y1Anterior, y2Anterior;
  Lado uno;
  Vueltas vueltas;
  do {
    vueltas.una();
    uno = ladoEn(e.y1, e.Q, poza, e.v1, e.espejoArriba);
    const Lado dos = ladoEn(e.y2, e.Q, poza, e.v2, e.espejoAbajo);

    const Real f = (dos.v * dos.v / dosG + dos.y) * k1 - uno.y - 1.1 * uno.v * uno.v / dosG - poza.difEnergia;
    const Real g = dos.c * dos.y * dos.y + e.Q * dos.v / gravedad - uno.c * uno.y * uno.y - e.Q * uno.v / gravedad;

    const Real f1 = uno.v * uno.v * (1.1 * uno.T) / (gravedad * uno.A) - 1;
    const Real f2 = k1 * (1 - dos.v * dos.v * dos.T / (gravedad * dos.A));
    const Real g1 = uno.v * uno.v * uno.T / gravedad - 2 * uno.c * uno.y - uno.y * uno.y * poza.z / 3;
    const Real g2 = 2 * dos.c * dos.y + dos.y * dos.y * poza.z / 3 - dos.v * dos.v * dos.T / gravedad;

    y1Anterior = e.y1;
    y2Anterior = e.y2;
    e.y1 = e.y1 - (g2 * f / (f1 * g2 - f2 * g1) + f2 * g / (f2 * g1 - f1 * g2));
    e.y2 = e.y2 - (g1 * f / (f2 * g1 - f1 * g2) + f1 * g / (f1 * g2 - f2 * g1));
  } while (!(Abs(e.y1 - y1Anterior) < tolerancia && Abs(e.y2 - y2Anterior) < tolerancia));

  e.fr1 = e.v1 / Sqr(gravedad * uno.A / uno.T);
  e.cotaPoza = (e.vAbajo * e.vAbajo / dosG + e.ynAbajo + e.cotaAbajo) - (e.v2 * e.v2 / dosG + e.y2) * k1;
  if (e.cotaPoza > e.cotaAbajo) e.cotaPoza = e.cotaAbajo;
  e.profPoza = e.cotaAbajo - e.cotaPoza;
}

Real razonAhogamiento(const DesignState& e) {
  return (e.vAbajo * e.vAbajo - e.v2 * e.v2) / (e.v2 * e.v2 + 2 * e.y2 * gravedad);
}

}  // namespace calvento
