#include "hidraulica/salto.h"

#include "comun/numeros.h"
#include "hidraulica/resalto.h"
#include "hidraulica/solvers.h"

namespace calvento {

namespace {

/// Length of the jump in multiples of its height, a polynomial through the values that Sieñchin gives by side slope.
Real coeficienteLongitud(Real z) {
  const Real z2 = z * z;
  const Real z3 = z2 * z;
  return -6.9689 * (z3 * z2) + 27.378 * (z2 * z2) - 36.044 * z3 + 18.822 * z2 + 2.4133 * z + 5;
}

}  // namespace

Real Y(DesignState& estado, Real Q, Real y1, Real b, Real z) {
  if (z == 0) return conjugadoRectangular(y1, Q / b);
  return conjugadoTrapezoidal(Q, y1, {b, z}, estado.v1, estado.v2, estado.espejoAbajo);
}

Salto calcularSalto(DesignState& estado, Real z, Real b) {
  const Seccion seccion{b, z};
  const Real Q = estado.Q;
  const Real y1 = estado.y1;
  estado.y2 = Y(estado, Q, y1, b, z);
  const Real y2 = estado.y2;
  const Real A1 = seccion.area(y1);
  const Real A2 = seccion.area(y2);
  estado.v1 = Q / A1;
  estado.v2 = Q / A2;
  estado.espejoArriba = seccion.espejo(y1);
  estado.espejoAbajo = seccion.espejo(y2);

  Salto s;
  const Real D1 = A1 / estado.espejoArriba;
  const Real D2 = A2 / estado.espejoAbajo;
  s.F1 = estado.v1 / Sqr(gravedad * D1);
  s.F2 = estado.v2 / Sqr(gravedad * D2);
  s.E1 = y1 + cuadrado(Q) / (2 * gravedad * cuadrado(A1));
  s.E2 = y2 + cuadrado(Q) / (2 * gravedad * cuadrado(A2));
  estado.longRapida = Round(coeficienteLongitud(z), 1) * (y2 - y1);
  return s;
}

}  // namespace calvento
