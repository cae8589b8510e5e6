#include "qt/recorte.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace calvento {

QLineF recortar(const QLineF& linea, const QRectF& marco) {
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
  const bool dentro = borde(-linea.dx(), linea.x1() - marco.left()) && borde(linea.dx(), marco.right() - linea.x1()) &&
                      borde(-linea.dy(), linea.y1() - marco.top()) && borde(linea.dy(), marco.bottom() - linea.y1());
  if (!dentro) return {};
  return {linea.pointAt(desde), linea.pointAt(hasta)};
}

namespace {

/// One step of the cutting of a polygon (Sutherland and Hodgman): keeps the side where distancia is not negative.
template <class Distancia>
QPolygonF cortar(const QPolygonF& poligono, Distancia distancia) {
  QPolygonF parte;
  if (poligono.isEmpty()) return parte;
  QPointF anterior = poligono.last();
  double dAnterior = distancia(anterior);
  for (const QPointF& p : poligono) {
    const double d = distancia(p);
    if ((d >= 0) != (dAnterior >= 0)) parte << anterior + (p - anterior) * (dAnterior / (dAnterior - d));
    if (d >= 0) parte << p;
    anterior = p;
    dAnterior = d;
  }
  return parte;
}

/// The hatch strokes in one of the two directions: along them x + signo·y is constant.
void rayar(const QPolygonF& poligono, QPointF origen, double paso, int signo, std::vector<QLineF>& trazos) {
  const auto altura = [&](QPointF p) { return ((p.x() - origen.x()) + signo * (p.y() - origen.y())) / paso; };
  double menor = altura(poligono.first());
  double mayor = menor;
  for (const QPointF& p : poligono) {
    menor = std::min(menor, altura(p));
    mayor = std::max(mayor, altura(p));
  }
  const double primero = std::ceil(menor);
  const auto cuantos = static_cast<std::size_t>(std::max(0.0, std::floor(mayor) - primero + 1));
  // each edge of the polygon leaves its crossings with the strokes; a stroke runs between every other two of them
  std::vector<std::vector<double>> cruces(cuantos);
  QPointF a = poligono.last();
  for (const QPointF& b : poligono) {
    const double ha = altura(a);
    const double hb = altura(b);
    for (double k = std::ceil(std::min(ha, hb)); k < std::max(ha, hb); ++k)
      cruces[static_cast<std::size_t>(k - primero)].push_back(a.x() + (b.x() - a.x()) * ((k - ha) / (hb - ha)));
    a = b;
  }
  for (std::size_t i = 0; i < cuantos; ++i) {
    auto& xs = cruces[i];
    std::sort(xs.begin(), xs.end());
    const double suma = (primero + static_cast<double>(i)) * paso;
    const auto y = [&](double x) { return origen.y() + signo * (suma - (x - origen.x())); };
    for (std::size_t j = 0; j + 1 < xs.size(); j += 2)
      if (xs[j] < xs[j + 1]) trazos.emplace_back(xs[j], y(xs[j]), xs[j + 1], y(xs[j + 1]));
  }
}

}  // namespace

QPolygonF recortar(const QPolygonF& poligono, const QRectF& marco) {
  QPolygonF p = cortar(poligono, [&](QPointF q) { return q.x() - marco.left(); });
  p = cortar(p, [&](QPointF q) { return marco.right() - q.x(); });
  p = cortar(p, [&](QPointF q) { return q.y() - marco.top(); });
  return cortar(p, [&](QPointF q) { return marco.bottom() - q.y(); });
}

QPolygonF sobrePixeles(QPolygonF puntos, int grosor, bool cerrado, const QRectF& hoja) {
  constexpr double recto = 1.0 / 16;  // pixels by which an edge may lean and still look level
  const double medio = grosor % 2 == 0 ? 0 : 0.5;
  const auto ajustada = [&](double v, double menor, double mayor) {
    const double r = std::floor(v - medio + 0.5) + medio;
    const bool cabe = mayor - menor > grosor && v >= menor && v <= mayor;
    return cabe ? std::clamp(r, menor + grosor / 2.0, mayor - grosor / 2.0) : r;
  };
  const QPolygonF antes = puntos;
  for (qsizetype i = cerrado ? 0 : 1; i < puntos.size(); ++i) {
    const qsizetype j = i == 0 ? puntos.size() - 1 : i - 1;
    const QPointF arista = antes[i] - antes[j];
    for (const qsizetype k : {i, j}) {
      if (std::fabs(arista.y()) <= recto) puntos[k].setY(ajustada(antes[k].y(), hoja.top(), hoja.bottom()));
      if (std::fabs(arista.x()) <= recto) puntos[k].setX(ajustada(antes[k].x(), hoja.left(), hoja.right()));
    }
  }
  return puntos;
}

std::vector<QLineF> rayadoCruzado(const QPolygonF& poligono, QPointF origen, double paso) {
  std::vector<QLineF> trazos;
  if (poligono.size() < 3 || !(paso > 0)) return trazos;
  rayar(poligono, origen, paso, 1, trazos);
  rayar(poligono, origen, paso, -1, trazos);
  return trazos;
}

}  // namespace calvento
