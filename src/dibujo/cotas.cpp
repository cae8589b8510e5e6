#include "dibujo/cotas.h"

#include <cmath>

#include "comun/real.h"
#include "dibujo/rotulos.h"

namespace calvento {

namespace {

constexpr double grados(double g) { return g * piCorto / 180; }
/// Extension ticks lie so far under the base of a chain, m.
constexpr double inicioMarca = 0.25;
constexpr double finMarca = 0.5;

}  // namespace

void flechaHorizontal(Lienzo& lienzo, Punto p, int sentido, double largo) {
  const double abertura = largo * std::tan(grados(30));
  for (const int lado : {1, -1}) lienzo.Line(p, {p.x + sentido * largo, p.y + lado * abertura});
}

void flechaVertical(Lienzo& lienzo, Punto p, int sentido, double largo) {
  const double abertura = largo * std::tan(grados(30));
  for (const int lado : {1, -1}) lienzo.Line(p, {p.x + lado * abertura, p.y + sentido * largo});
}

void cadenaCotas(Lienzo& lienzo, const CadenaCotas& cadena) {
  const double nivel = cadena.base - nivelCadena;
  for (const double x : cadena.marcas) lienzo.Line({x, cadena.base - inicioMarca}, {x, cadena.base - finMarca});
  lienzo.Line({cadena.desde, nivel}, {cadena.hasta, nivel});
  flechaHorizontal(lienzo, {cadena.desde, nivel}, 1);
  for (const double x : cadena.dobles)
    for (const int sentido : {-1, 1}) flechaHorizontal(lienzo, {x, nivel}, sentido);
  flechaHorizontal(lienzo, {cadena.hasta, nivel}, -1);
}

void cotaVertical(Lienzo& lienzo, double x, double abajo, double arriba, double largo) {
  const double medio = (abajo + arriba) / 2;
  const double hueco = alto(2000);
  lienzo.Line({x, abajo}, {x, medio - hueco});
  lienzo.Line({x, medio + hueco}, {x, arriba});
  flechasVerticales(lienzo, x, abajo, arriba, largo);
}

void cotasVerticales(Lienzo& lienzo, std::span<const CotaAltura> alturas) {
  for (const CotaAltura& c : alturas) cotaVertical(lienzo, c.x, c.abajo, c.arriba);
}

void flechasVerticales(Lienzo& lienzo, double x, double abajo, double arriba, double largo) {
  flechaVertical(lienzo, {x, abajo}, 1, largo);
  flechaVertical(lienzo, {x, arriba}, -1, largo);
}

void flechaGuia(Lienzo& lienzo, Punto p, double fi) {
  const double largo = -largoFlecha / std::cos(grados(30));
  lienzo.Line(p, {p.x + largo * std::sin(grados(60 - fi)), p.y + largo * std::cos(grados(60 - fi))});
  lienzo.Line(p, {p.x + largo * std::cos(grados(fi - 30)), p.y + largo * std::sin(grados(fi - 30))});
}

}  // namespace calvento
