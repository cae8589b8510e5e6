#include "dibujo/rotulos.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "dibujo/trazo.h"

namespace calvento {

namespace {

constexpr double alturaDerecha = 40;  ///< points of an upright text on a canvas one metre high
constexpr double alturaGirada = 55;   ///< pixels of a line of rotated text on a canvas one metre high
constexpr double menorDerecha = 0.001;
constexpr double menorGirada = 0.55;

}  // namespace

std::string redondeado(Single valor) { return texto(Round(valor, 3)); }
std::string redondeado(double valor) { return texto(Round(Real(valor), 3)); }

void letraDerecha(Lienzo& lienzo) {
  const double puntos = std::max(entre(alturaDerecha, std::fabs(lienzo.ScaleHeight())), menorDerecha);
  lienzo.Font = {"Arial", std::isfinite(puntos) ? puntos : lienzo.Font.puntos};
}

Letra letraGirada(const Lienzo& lienzo) {
  const double altura = std::nearbyint(std::max(entre(alturaGirada, std::fabs(lienzo.ScaleHeight())), menorGirada));
  return {"Arial", std::isfinite(altura) ? puntosDeCelda(altura) : lienzo.Font.puntos};
}

double giroBaja(double pendiente) { return std::nearbyint((360 - std::atan(pendiente) * 180 / piCorto) * 10); }
double giroSube(double pendiente) { return std::nearbyint(std::atan(pendiente) * 1800 / piCorto); }

void rotulo(Lienzo& lienzo, double x, double y, std::string texto) {
  lienzo.CurrentX = x;
  lienzo.CurrentY = y;
  lienzo.Print(std::move(texto));
}

void rotuloGirado(Lienzo& lienzo, const Letra& letra, double giro, double x, double y, std::string texto) {
  lienzo.Font = letra;
  lienzo.Font.angulo = giro / 10;
  rotulo(lienzo, x, y, std::move(texto));
}

void parEstacion(Lienzo& lienzo, const Letra& letra, double progresivaInicio, const ParEstacion& par) {
  rotuloGirado(lienzo, letra, giroVertical, par.x - alto(1500), par.y,
               "Est:" + formato(progresivaInicio + par.x, "0+000.00"));
  rotuloGirado(lienzo, letra, giroVertical, par.x, par.y, "E:" + formato(par.cota, "0.000"));
}

void titulo(Lienzo& lienzo, double x, double y, std::string texto) {
  lienzo.Font.negrita = lienzo.Font.subrayada = true;
  rotulo(lienzo, x, y, std::move(texto));
  lienzo.Font.negrita = lienzo.Font.subrayada = false;
}

}  // namespace calvento
