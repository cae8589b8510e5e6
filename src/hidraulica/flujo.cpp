#include "hidraulica/flujo.h"

namespace calvento {

Flujo flujoEn(const Seccion& seccion, Real Q, Real y) {
  Flujo f;
  f.area = seccion.area(y);
  f.espejo = seccion.espejo(y);
  f.perimetro = seccion.perimetro(y);
  f.radio = f.area / f.perimetro;
  f.velocidad = Q / f.area;
  f.alturaVelocidad = cuadrado(f.velocidad) / (2 * gravedad);
  return f;
}

Real pendienteFriccion(Real n, Real velocidad, Real radio) {
  return cuadrado(velocidad * n / potencia(radio, 2.0 / 3.0));
}

}  // namespace calvento
