#include "dibujo/repeticion.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "plataforma/medidas.h"

namespace calvento {

namespace {

constexpr double pasoRayado = 8;  ///< pixels between the strokes of a hatch
constexpr double pixelesPorPunto = static_cast<double>(twipsPorPunto) / twipsPorPixel;

std::vector<double> guiones(EstiloLinea estilo) {
  switch (estilo) {
    case EstiloLinea::guiones:
      return {12, 5};
    case EstiloLinea::puntos:
      return {2, 3};
    case EstiloLinea::guionPunto:
      return {9, 4, 2, 4};
    case EstiloLinea::guionPuntoPunto:
      return {9, 3, 2, 3, 2, 3};
    case EstiloLinea::solida:
      break;
  }
  return {};
}

class Repeticion {
 public:
  Repeticion(const Lienzo& lienzo, const Marco& destino, Papel& papel)
      : papel_(papel),
        destino_(destino),
        escala_(lienzo.escala()),
        x_(destino.ancho() / escala_.ancho),
        y_(destino.alto() / escala_.alto),
        pixel_(destino.alto() / std::max(lienzo.altoPixeles(), 1)),
        aumento_(destino.alto() / std::max(lienzo.altoReferencia(), 1)),
        // room for the width of a line whose course lies just outside
        marco_(destino.crecido(64 * pixel_ + 64)) {}

  void operator()(const PrimLinea& p) { linea({punto(p.a), punto(p.b)}, trazo(p.pluma)); }

  void operator()(const PrimPolilinea& p) {
    Puntos puntos = enHoja(p.puntos);
    const TrazoHoja t = trazo(p.pluma);
    if (marco_.contiene(alrededor(puntos))) {
      papel_.polilinea(papel_.ajustados(std::move(puntos), t.ancho, false), t);
    } else {
      for (std::size_t i = 1; i < puntos.size(); ++i) linea({puntos[i - 1], puntos[i]}, t);
    }
  }

  void operator()(const PrimPoligono& p) { superficie(enHoja(p.puntos), p.pluma, p.relleno); }

  void operator()(const PrimCaja& p) {
    const Punto a = punto(p.a);
    const Punto b = punto(p.b);
    superficie({a, {b.x, a.y}, b, {a.x, b.y}}, p.pluma, p.relleno);
  }

  void operator()(const PrimCirculo& p) {
    constexpr int lados = 72;  // one corner every five degrees: round at any size that fits a sheet
    const Punto c = punto(p.centro);
    const double r = std::fabs(p.radio * x_);
    if (marco_.contiene({c.x - r, c.y - r, c.x + r, c.y + r}) && p.relleno.estilo != EstiloRelleno::cruzadoDiagonal &&
        papel_.circulo(c, r, trazo(p.pluma), pleno(p.relleno)))
      return;
    Puntos puntos;
    for (int i = 0; i < lados; ++i) {
      const double a = 2 * std::numbers::pi * i / lados;
      puntos.push_back({c.x + r * std::cos(a), c.y + r * std::sin(a)});
    }
    superficie(std::move(puntos), p.pluma, p.relleno);
  }

  void operator()(const PrimTexto& p) {
    const double tamano = p.letra.puntos * pixelesPorPunto * aumento_;
    const Punto en = punto(p.en);
    if (tamano > 0 && destino_.crecido(tamano * (static_cast<double>(p.texto.size()) + 1)).contiene(en))
      papel_.texto({en, tamano, p});
  }

 private:
  Punto punto(Punto p) const {
    return {destino_.izquierda + (p.x - escala_.izquierda) * x_, destino_.arriba + (p.y - escala_.arriba) * y_};
  }
  Puntos enHoja(const Puntos& puntos) const {
    Puntos r;
    r.reserve(puntos.size());
    for (const Punto& p : puntos) r.push_back(punto(p));
    return r;
  }

  /// A line never becomes thinner than a hair that the eye finds.
  TrazoHoja trazo(const Pluma& pluma) const {
    TrazoHoja t{pluma.color, papel_.ancho(std::max(pluma.grosor * pixel_, std::min(pixel_, 0.8))),
                guiones(pluma.estilo)};
    for (double& largo : t.guiones) largo *= pixel_;
    return t;
  }
  static std::optional<Color> pleno(const Relleno& r) {
    return r.estilo == EstiloRelleno::solido ? std::optional(r.color) : std::nullopt;
  }

  void linea(const Raya& l, const TrazoHoja& t) {
    const auto visible = recortar(l, marco_);
    if (visible && visible->a != visible->b)
      papel_.polilinea(papel_.ajustados({visible->a, visible->b}, t.ancho, false), t);
  }

  void superficie(Puntos puntos, const Pluma& pluma, const Relleno& relleno) {
    if (puntos.empty()) return;
    const Marco caja = alrededor(puntos);
    if (!marco_.toca(caja)) return;
    if (!marco_.contiene(caja)) puntos = recortar(puntos, marco_);
    if (puntos.empty()) return;
    const TrazoHoja t = trazo(pluma);
    puntos = papel_.ajustados(std::move(puntos), t.ancho, true);
    if (relleno.estilo == EstiloRelleno::cruzadoDiagonal)
      papel_.rayas(rayadoCruzado(puntos, {destino_.izquierda, destino_.arriba}, pasoRayado * pixel_),
                   trazo({relleno.color, EstiloLinea::solida, 1}));
    papel_.area(puntos, t, pleno(relleno));
  }

  Papel& papel_;
  Marco destino_;
  EscalaLienzo escala_;
  double x_;
  double y_;
  double pixel_;    ///< one pixel of the picture at its own size
  double aumento_;  ///< how much larger than at its reference height the picture is painted
  Marco marco_;
};

}  // namespace

void repetir(const Lienzo& lienzo, const Marco& destino, Papel& papel) {
  if (lienzo.ScaleWidth() == 0 || lienzo.ScaleHeight() == 0 || !(destino.ancho() > 0) || !(destino.alto() > 0)) return;
  Repeticion repeticion(lienzo, destino, papel);
  auto capa = lienzo.capas().begin();
  const auto& primitivas = lienzo.primitivas();
  for (std::size_t i = 0; i < primitivas.size(); ++i) {
    for (; capa != lienzo.capas().end() && capa->desde <= i; ++capa) papel.capa(capa->nombre);
    std::visit(repeticion, primitivas[i]);
  }
}

}  // namespace calvento
