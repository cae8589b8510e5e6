#include "cad/cota_dxf.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "comun/numeros.h"
#include "plataforma/medidas.h"

namespace calvento {

namespace {

/// Capital letters are about so much of the size of their font, in twips: 8 points of 20 twips.
constexpr double mayuscula = 0.72 * 160;
/// Half the width of an arrow head, in parts of its length.
constexpr double medioAnchoFlecha = 1.0 / 6;

struct Vector {
  double x, y;
};
PuntoCad mover(const PuntoCad& p, const Vector& v, double distancia) {
  return {p.x + v.x * distancia, p.y + v.y * distancia, p.z};
}

/// Texts are read from below or from the right.
double giroLegible(const Vector& u) {
  double giro = std::atan2(u.y, u.x);
  constexpr double recto = std::numbers::pi / 2;
  if (giro > recto + 1e-9) giro -= std::numbers::pi;
  if (giro <= -recto + 1e-9) giro += std::numbers::pi;
  return giro;
}

/// The line from a to b but for the stretch that the text takes, centred at a distance from a.
void lineaPartida(DibujoCota& d, const PuntoCad& a, const Vector& u, double centroTexto, double medioTexto) {
  const double desde = std::max(0.0, centroTexto - medioTexto);
  const double hasta = std::min(d.medida, centroTexto + medioTexto);
  if (desde >= hasta) {
    d.lineas.push_back({a, mover(a, u, d.medida)});
    return;
  }
  if (desde > 0) d.lineas.push_back({a, mover(a, u, desde)});
  if (hasta < d.medida) d.lineas.push_back({mover(a, u, hasta), mover(a, u, d.medida)});
}

}  // namespace

DibujoCota dibujarCota(const CotaDxf& c) {
  DibujoCota d;
  d.medida = std::hypot(c.b.x - c.a.x, c.b.y - c.a.y);
  const Vector u = d.medida > 0 ? Vector{(c.b.x - c.a.x) / d.medida, (c.b.y - c.a.y) / d.medida} : Vector{1, 0};
  const Vector n{-u.y, u.x};
  const double lejos = (c.texto.x - c.a.x) * n.x + (c.texto.y - c.a.y) * n.y;
  const double lado = lejos < 0 ? -1 : 1;
  const PuntoCad a = mover(c.a, n, lejos);
  d.enLinea = mover(c.b, n, lejos);

  for (const PuntoCad& p : {c.a, c.b})
    if (std::fabs(lejos) > c.separacion)
      d.lineas.push_back({mover(p, n, lado * c.separacion), mover(p, n, lejos + lado * c.extension)});

  d.texto.texto = texto(Round(Real(d.medida), 3));
  d.texto.en = c.texto;
  d.texto.altura = c.altura;
  d.texto.giro = giroLegible(u);
  d.texto.centrado = true;
  const double medioTexto = anchoTexto(d.texto.texto) * c.altura / mayuscula / 2 + holguraCota * c.altura;
  const double centroTexto = (c.texto.x - c.a.x) * u.x + (c.texto.y - c.a.y) * u.y;
  lineaPartida(d, a, u, centroTexto, c.posicion == 0 ? medioTexto : 0);

  // too short for both heads: they stand outside and point inward
  const double sentido = d.medida >= 2 * c.flecha ? 1 : -1;
  const auto flecha = [&](const PuntoCad& punta, double hacia) {
    const PuntoCad base = mover(punta, u, hacia * c.flecha);
    d.flechas.push_back(
        {punta, mover(base, n, c.flecha * medioAnchoFlecha), mover(base, n, -c.flecha * medioAnchoFlecha)});
    if (sentido < 0) d.lineas.push_back({base, mover(base, u, hacia * c.flecha)});
  };
  flecha(a, sentido);
  flecha(d.enLinea, -sentido);
  return d;
}

}  // namespace calvento
