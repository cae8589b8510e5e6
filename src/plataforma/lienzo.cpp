#include "plataforma/lienzo.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace calvento {

namespace {

bool utilizable(double v) { return std::isfinite(v); }
bool utilizable(Punto p) { return utilizable(p.x) && utilizable(p.y); }

bool completar(std::vector<Punto>& puntos, double Punto::*coordenada) {
  const auto primero =
      std::find_if(puntos.begin(), puntos.end(), [&](const Punto& p) { return utilizable(p.*coordenada); });
  if (primero == puntos.end()) return false;
  double anterior = (*primero).*coordenada;
  for (Punto& p : puntos) {
    if (!utilizable(p.*coordenada)) p.*coordenada = anterior;
    anterior = p.*coordenada;
  }
  return true;
}

}  // namespace

bool completar(std::vector<Punto>& puntos) { return completar(puntos, &Punto::x) && completar(puntos, &Punto::y); }

void Lienzo::redimensionar(int anchoPixeles, int altoPixeles) {
  anchoPixeles_ = anchoPixeles;
  altoPixeles_ = altoPixeles;
  cambiar();
}

void Lienzo::redimensionarSinCrecer(int anchoPixeles, int altoPixeles) {
  altoReferencia_ = altoPixeles;
  redimensionar(anchoPixeles, altoPixeles);
}

void Lienzo::Scale(double x1, double y1, double x2, double y2) {
  escala_ = {x1, y1, x2 - x1, y2 - y1};
  cambiar();
}

void Lienzo::Cls() {
  primitivas_.clear();
  capas_.clear();
  CurrentX = CurrentY = 0;
  cambiar();
}

void Lienzo::cambiar() {
  ++version_;
  oyente_();
}

void Lienzo::moverA(Punto p) {
  CurrentX = p.x;
  CurrentY = p.y;
}

void Lienzo::anadir(Primitiva p) {
  if (capas_.empty() ? !capa_.empty() : capas_.back().nombre != capa_) capas_.push_back({primitivas_.size(), capa_});
  primitivas_.push_back(std::move(p));
  cambiar();
}

void Lienzo::Line(Punto a, Punto b) { Line(a, b, ForeColor); }

void Lienzo::Line(Punto a, Punto b, Color color) {
  if (!utilizable(a) || !utilizable(b)) return;
  moverA(b);
  anadir(PrimLinea{a, b, pluma(color)});
}

void Lienzo::LineA(Punto b) { LineA(b, ForeColor); }
void Lienzo::LineA(Punto b, Color color) { Line({CurrentX, CurrentY}, b, color); }

void Lienzo::LineCaja(Punto a, Punto b, Color color) {
  if (!utilizable(a) || !utilizable(b)) return;
  moverA(b);
  anadir(PrimCaja{a, b, pluma(color), {FillColor, FillStyle}});
}

void Lienzo::Polyline(std::vector<Punto> puntos) { Polyline(std::move(puntos), ForeColor); }

void Lienzo::Polyline(std::vector<Punto> puntos, Color color) {
  std::erase_if(puntos, [](Punto p) { return !utilizable(p); });
  if (puntos.empty()) return;
  moverA(puntos.back());
  if (puntos.size() > 1) anadir(PrimPolilinea{std::move(puntos), pluma(color)});
}

void Lienzo::Circle(Punto centro, double radio) {
  if (!utilizable(centro) || !utilizable(radio)) return;
  moverA(centro);
  anadir(PrimCirculo{centro, radio, pluma(ForeColor), {FillColor, FillStyle}});
}

void Lienzo::Polygon(std::vector<Punto> puntos) {
  if (!completar(puntos)) return;
  anadir(PrimPoligono{std::move(puntos), pluma(ForeColor), {FillColor, FillStyle}});
}

void Lienzo::Print(std::string texto) {
  if (!utilizable(Punto{CurrentX, CurrentY}) || !utilizable(Font.puntos) || !utilizable(Font.angulo)) return;
  anadir(PrimTexto{{CurrentX, CurrentY}, std::move(texto), ForeColor, Font});
}

}  // namespace calvento
