#include "dibujo/recorte.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace calvento {

Marco alrededor(const Puntos& puntos) {
  Marco m{puntos[0].x, puntos[0].y, puntos[0].x, puntos[0].y};
  for (const Punto& p : puntos) {
    m.izquierda = std::min(m.izquierda, p.x);
    m.derecha = std::max(m.derecha, p.x);
    m.arriba = std::min(m.arriba, p.y);
    m.abajo = std::max(m.abajo, p.y);
  }
  return m;
}

std::optional<Raya> recortar(const Raya& linea, const Marco& marco) {
  // Liang and Barsky: the range of the parameter along the line that is inside all four edges
  double desde = 0;
  double hasta = 1;
  const auto borde = [&](double direccion, double distancia) {
    if (direccion == 0) return distancia >= 0;
    const double t = distancia / direccion;
    if (direccion < 0)
      desde = std::max(desde, t);
    else
      hasta = std::min(hasta, t);
    return desde <= hasta;
  };
  const Punto a = linea.a;
  const double dx = linea.b.x - a.x;
  const double dy = linea.b.y - a.y;
  const bool dentro = borde(-dx, a.x - marco.izquierda) && borde(dx, marco.derecha - a.x) &&
                      borde(-dy, a.y - marco.arriba) && borde(dy, marco.abajo - a.y);
  if (!dentro) return std::nullopt;
  return Raya{{a.x + desde * dx, a.y + desde * dy}, {a.x + hasta * dx, a.y + hasta * dy}};
}

namespace {

/// One step of the cutting of a polygon (Sutherland and Hodgman): keeps the side where distancia is not negative.
template <class Distancia>
Puntos cortar(const Puntos& poligono, Distancia distancia) {
  Puntos parte;
  if (poligono.empty()) return parte;
  Punto anterior = poligono.back();
  double dAnterior = distancia(anterior);
  for (const Punto& p : poligono) {
    const double d = distancia(p);
    if ((d >= 0) != (dAnterior >= 0)) {
      const double t = dAnterior / (dAnterior - d);
      parte.push_back({anterior.x + (p.x - anterior.x) * t, anterior.y + (p.y - anterior.y) * t});
    }
    if (d >= 0) parte.push_back(p);
    anterior = p;
    dAnterior = d;
  }
  return parte;
}

/// The hatch strokes in one of the two directions: along them x + signo·y is constant.
void rayar(const Puntos& poligono, Punto origen, double paso, int signo, std::vector<Raya>& trazos) {
  const auto altura = [&](Punto p) { return ((p.x - origen.x) + signo * (p.y - origen.y)) / paso; };
  double menor = altura(poligono.front());
  double mayor = menor;
  for (const Punto& p : poligono) {
    menor = std::min(menor, altura(p));
    mayor = std::max(mayor, altura(p));
  }
  const double primero = std::ceil(menor);
  const auto cuantos = static_cast<std::size_t>(std::max(0.0, std::floor(mayor) - primero + 1));
  // each edge of the polygon leaves its crossings with the strokes; a stroke runs between every other two of them
  std::vector<std::vector<double>> cruces(cuantos);
  Punto a = poligono.back();
  for (const Punto& b : poligono) {
    const double ha = altura(a);
    const double hb = altura(b);
    for (double k = std::ceil(std::min(ha, hb)); k < std::max(ha, hb); ++k)
      cruces[static_cast<std::size_t>(k - primero)].push_back(a.x + (b.x - a.x) * ((k - ha) / (hb - ha)));
    a = b;
  }
  for (std::size_t i = 0; i < cuantos; ++i) {
    auto& xs = cruces[i];
    std::sort(xs.begin(), xs.end());
    const double suma = (primero + static_cast<double>(i)) * paso;
    const auto y = [&](double x) { return origen.y + signo * (suma - (x - origen.x)); };
    for (std::size_t j = 0; j + 1 < xs.size(); j += 2)
      if (xs[j] < xs[j + 1]) trazos.push_back({{xs[j], y(xs[j])}, {xs[j + 1], y(xs[j + 1])}});
  }
}

}  // namespace

Puntos recortar(const Puntos& poligono, const Marco& marco) {
  Puntos p = cortar(poligono, [&](Punto q) { return q.x - marco.izquierda; });
  p = cortar(p, [&](Punto q) { return marco.derecha - q.x; });
  p = cortar(p, [&](Punto q) { return q.y - marco.arriba; });
  return cortar(p, [&](Punto q) { return marco.abajo - q.y; });
}

Puntos sobrePixeles(Puntos puntos, int grosor, bool cerrado, const Marco& hoja) {
  constexpr double recto = 1.0 / 16;  // pixels by which an edge may lean and still look level
  const double medio = grosor % 2 == 0 ? 0 : 0.5;
  const auto ajustada = [&](double v, double menor, double mayor) {
    const double r = std::floor(v - medio + 0.5) + medio;
    const bool cabe = mayor - menor > grosor && v >= menor && v <= mayor;
    return cabe ? std::clamp(r, menor + grosor / 2.0, mayor - grosor / 2.0) : r;
  };
  const Puntos antes = puntos;
  for (std::size_t i = cerrado ? 0 : 1; i < puntos.size(); ++i) {
    const std::size_t j = i == 0 ? puntos.size() - 1 : i - 1;
    const bool aNivel = std::fabs(antes[i].y - antes[j].y) <= recto;
    const bool aPlomo = std::fabs(antes[i].x - antes[j].x) <= recto;
    for (const std::size_t k : {i, j}) {
      if (aNivel) puntos[k].y = ajustada(antes[k].y, hoja.arriba, hoja.abajo);
      if (aPlomo) puntos[k].x = ajustada(antes[k].x, hoja.izquierda, hoja.derecha);
    }
  }
  return puntos;
}

std::vector<Raya> rayadoCruzado(const Puntos& poligono, Punto origen, double paso) {
  std::vector<Raya> trazos;
  if (poligono.size() < 3 || !(paso > 0)) return trazos;
  rayar(poligono, origen, paso, 1, trazos);
  rayar(poligono, origen, paso, -1, trazos);
  return trazos;
}

}  // namespace calvento
