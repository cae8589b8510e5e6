#include "plataforma/lienzo.h"

#include <cmath>
#include <utility>

namespace calvento {

namespace {

bool utilizable(double v) { return std::isfinite(v); }
bool utilizable(Punto p) { return utilizable(p.x) && utilizable(p.y); }

}  // namespace

void Lienzo::redimensionar(int anchoPixeles, int altoPixeles) {
  anchoPixeles_ = anchoPixeles;
  altoPixeles_ = altoPixeles;
  ++version_;
}

void Lienzo::Scale(double x1, double y1, double x2, double y2) {
  escala_ = {x1, y1, x2 - x1, y2 - y1};
  ++version_;
}

void Lienzo::Cls() {
  primitivas_.clear();
  CurrentX = CurrentY = 0;
  ++version_;
}

void Lienzo::Line(Punto a, Punto b) { Line(a, b, ForeColor); }

void Lienzo::Line(Punto a, Punto b, Color color) {
  CurrentX = b.x;
  CurrentY = b.y;
  if (!utilizable(a) || !utilizable(b)) return;
  primitivas_.emplace_back(PrimLinea{a, b, pluma(color)});
  ++version_;
}

void Lienzo::LineA(Punto b) { LineA(b, ForeColor); }
void Lienzo::LineA(Punto b, Color color) { Line({CurrentX, CurrentY}, b, color); }

void Lienzo::LineCaja(Punto a, Punto b, Color color) {
  CurrentX = b.x;
  CurrentY = b.y;
  if (!utilizable(a) || !utilizable(b)) return;
  primitivas_.emplace_back(PrimCaja{a, b, pluma(color), {FillColor, FillStyle}});
  ++version_;
}

void Lienzo::Circle(Punto centro, double radio) {
  if (!utilizable(centro) || !utilizable(radio)) return;
  primitivas_.emplace_back(PrimCirculo{centro, radio, pluma(ForeColor), {FillColor, FillStyle}});
  ++version_;
}

void Lienzo::Polygon(std::vector<Punto> puntos) {
  if (puntos.empty()) return;
  // the number of points never changes: a point without a usable coordinate repeats the one before it
  std::size_t primero = 0;
  while (primero < puntos.size() && !utilizable(puntos[primero])) ++primero;
  if (primero == puntos.size()) return;
  for (std::size_t i = 0; i < primero; ++i) puntos[i] = puntos[primero];
  for (std::size_t i = primero + 1; i < puntos.size(); ++i)
    if (!utilizable(puntos[i])) puntos[i] = puntos[i - 1];
  primitivas_.emplace_back(PrimPoligono{std::move(puntos), pluma(ForeColor), {FillColor, FillStyle}});
  ++version_;
}

void Lienzo::Print(std::string texto) {
  if (!utilizable(Punto{CurrentX, CurrentY}) || !utilizable(Font.puntos) || !utilizable(Font.angulo)) return;
  primitivas_.emplace_back(PrimTexto{{CurrentX, CurrentY}, std::move(texto), ForeColor, Font});
  ++version_;
}

}  // namespace calvento
