#pragma once

#include <cmath>
#include <vector>

#include "cad/aplicacion_cad.h"

// What every drawing asks of the numbers that it is sent; each fails with FalloCad.

namespace calvento {

/// A number that is none would make the whole drawing worthless.
inline double exigir(double v) {
  if (!std::isfinite(v)) throw FalloCad("Una coordenada del dibujo no tiene valor");
  return v;
}
inline const PuntoCad& exigir(const PuntoCad& p) {
  exigir(p.x), exigir(p.y), exigir(p.z);
  return p;
}
inline double exigirAlturaTexto(double altura) {
  if (!(exigir(altura) > 0)) throw FalloCad("La altura de un texto debe ser mayor que 0");
  return altura;
}
inline double exigirRadio(double radio) {
  if (!(exigir(radio) > 0)) throw FalloCad("El radio de un círculo debe ser mayor que 0");
  return radio;
}
inline const std::vector<double>& exigirVertices(const std::vector<double>& vertices) {
  if (vertices.size() < 6 || vertices.size() % 3 != 0) throw FalloCad("Una polilínea necesita dos puntos o más");
  for (const double v : vertices) exigir(v);
  return vertices;
}

}  // namespace calvento
