#include "estudio/curva.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "comun/numeros.h"
#include "comun/unidades.h"
#include "dibujo/reglas.h"

namespace calvento {

namespace {

constexpr double izquierda = 64, derecha = 24, arriba = 30, abajo = 46;  // pixels around the curves
constexpr double marca = 5;
constexpr double letraAncha = 6;  // pixels that a letter of 8 points takes, nearly
constexpr Color rgb(int rojo, int verde, int azul) { return {rojo | verde << 8 | azul << 16}; }
constexpr std::array colores = {rgb(0x1f, 0x77, 0xb4), rgb(0xd6, 0x27, 0x28), rgb(0x2c, 0xa0, 0x2c),
                                rgb(0x94, 0x67, 0xbd), rgb(0xff, 0x7f, 0x0e), rgb(0x17, 0xbe, 0xcf)};

/// Of a few curves each its own; many run from blue to red in their order.
Color colorDe(std::size_t cual, std::size_t cuantos) {
  if (cuantos <= colores.size()) return colores[cual];
  const double parte = static_cast<double>(cual) / static_cast<double>(cuantos - 1);
  return rgb(static_cast<int>(30 + 190 * parte), 70, static_cast<int>(200 - 170 * parte));
}

std::string corto(double v) {
  std::array<char, 32> texto{};
  std::snprintf(texto.data(), texto.size(), "%.6g", v);
  return texto.data();
}

void escribir(Lienzo& l, Punto en, const std::string& texto, double parte = 0) {
  l.CurrentX = en.x - parte * letraAncha * static_cast<double>(texto.size());
  l.CurrentY = en.y;
  l.Print(texto);
}

/// Both ends, and some room where they are the same.
void abrir(double& a, double& b) {
  if (a > b) a = 0, b = 1;
  const double falta = a == b ? std::max(std::abs(a) * 0.05, 0.05) : (b - a) * 0.04;
  a -= falta;
  b += falta;
}

std::vector<double> marcas(double a, double b) {
  const double paso = Real(pasoDeRegla(Real(b - a))).valor();
  std::vector<double> todas;
  if (!(paso > 0)) return todas;
  for (double i = std::ceil(a / paso); i * paso <= b && todas.size() < 50; ++i) todas.push_back(i * paso);
  return todas;
}

bool sube(const std::vector<Curva>& curvas) {
  double cambio = 0;
  for (const Curva& c : curvas) {
    std::vector<double> alturas;
    for (const Punto& p : c.puntos)
      if (std::isfinite(p.y)) alturas.push_back(p.y);
    if (!alturas.empty()) cambio += alturas.back() - alturas.front();
  }
  return cambio >= 0;
}

}  // namespace

bool GraficoEstudio::vacio() const {
  return std::none_of(curvas.begin(), curvas.end(), [](const Curva& c) {
    return std::any_of(c.puntos.begin(), c.puntos.end(), [](const Punto& p) { return std::isfinite(p.y); });
  });
}

Punto GraficoEstudio::enPixeles(const Lienzo& l, Punto p) const {
  return {izquierda + (p.x - x1) / (x2 - x1) * (l.anchoPixeles() - izquierda - derecha),
          l.altoPixeles() - abajo - (p.y - y1) / (y2 - y1) * (l.altoPixeles() - arriba - abajo)};
}

void GraficoEstudio::dibujar(Lienzo& l) const {
  l.Cls();
  l.fijarEstadoPluma({});
  l.Scale(0, 0, l.anchoPixeles(), l.altoPixeles());
  const double piso = l.altoPixeles() - abajo, fin = l.anchoPixeles() - derecha;
  const Color gris = rgb(0xdd, 0xdd, 0xdd);
  escribir(l, {8, 8}, tituloY);
  escribir(l, {fin, l.altoPixeles() - 18.0}, tituloX, 1);
  for (const double v : marcas(y1, y2)) {
    const double y = enPixeles(l, {x1, v}).y;
    l.Line({izquierda, y}, {fin, y}, gris);
    l.Line({izquierda - marca, y}, {izquierda, y}, color::negro);
    escribir(l, {izquierda - marca - 4, y - 6}, corto(v), 1);
  }
  const auto bajo = [&](double x, const std::string& texto) {
    const double px = enPixeles(l, {x, y1}).x;
    l.Line({px, piso}, {px, piso + marca}, color::negro);
    escribir(l, {px, piso + marca + 3}, texto, 0.5);
  };
  if (opciones.empty())
    for (const double v : marcas(x1, x2)) bajo(v, corto(v));
  for (std::size_t i = 0; i < opciones.size(); ++i) bajo(static_cast<double>(i), opciones[i]);
  l.Line({izquierda, arriba}, {izquierda, piso}, color::negro);
  l.Line({izquierda, piso}, {fin, piso}, color::negro);
  if (tecleado && *tecleado >= x1 && *tecleado <= x2) {
    const double x = enPixeles(l, {*tecleado, y1}).x;
    l.DrawStyle = EstiloLinea::guiones;
    l.Line({x, arriba}, {x, piso}, rgb(0x80, 0x80, 0x80));
    l.DrawStyle = EstiloLinea::solida;
    l.ForeColor = rgb(0x60, 0x60, 0x60);
    const std::string cual = "tecleado: " + corto(*tecleado);
    const bool cabe = x + 4 + letraAncha * static_cast<double>(cual.size()) < l.anchoPixeles();
    escribir(l, {cabe ? x + 4 : x - 4, piso - 16}, cual, cabe ? 0 : 1);
  }
  // the names stand at the upper end that the curves leave free
  std::size_t larga = 0;
  for (const Curva& c : curvas) larga = std::max(larga, c.nombre.size());
  const double leyenda = sube(curvas) ? izquierda + 10 : fin - 30 - letraAncha * static_cast<double>(larga);
  const std::size_t cada = std::max<std::size_t>(1, (curvas.size() + 7) / 8);  // names that have room
  for (std::size_t i = 0; i < curvas.size(); ++i) {
    const Color c = colorDe(i, curvas.size());
    std::vector<Punto> tramo;
    const auto trazar = [&] {
      l.DrawWidth = 2;
      if (tramo.size() > 1) l.Polyline(tramo, c);
      l.DrawWidth = 1;
      tramo.clear();
    };
    l.FillStyle = EstiloRelleno::solido;
    l.FillColor = l.ForeColor = c;
    for (const Punto& p : curvas[i].puntos) {
      if (!std::isfinite(p.y)) {
        trazar();  // a design without this result breaks the line
        continue;
      }
      tramo.push_back(enPixeles(l, p));
      if (curvas[i].puntos.size() <= 60) l.Circle(tramo.back(), 2.5);
    }
    trazar();
  }
  const double ancho = 26 + letraAncha * static_cast<double>(larga);
  l.FillStyle = EstiloRelleno::solido;
  l.FillColor = color::blanco;
  if (larga > 0)
    l.LineCaja({leyenda - 4, arriba},
               {leyenda + ancho, arriba + 8 + 14 * std::ceil(double(curvas.size()) / double(cada))},
               rgb(0xdd, 0xdd, 0xdd));
  for (std::size_t i = 0; larga > 0 && i < curvas.size(); i += cada) {
    l.ForeColor = colorDe(i, curvas.size());
    const double y = arriba + 4 + 14 * static_cast<double>(i / cada);
    l.DrawWidth = 2;
    l.Line({leyenda, y + 6}, {leyenda + 16, y + 6}, l.ForeColor);
    l.DrawWidth = 1;
    escribir(l, {leyenda + 21, y}, curvas[i].nombre);
  }
}

std::optional<GraficoEstudio::Leido> GraficoEstudio::leer(const Lienzo& l, Punto pixel) const {
  std::optional<Leido> cercano;
  double menor = std::numeric_limits<double>::infinity();
  for (const Curva& c : curvas)
    for (std::size_t i = 0; i < c.puntos.size(); ++i) {
      const Punto p = c.puntos[i];
      if (!std::isfinite(p.y)) continue;
      const Punto en = enPixeles(l, p);
      // the pointer moves along the axis: what stands above or below counts less
      const double lejos = std::hypot(en.x - pixel.x, (en.y - pixel.y) / 3);
      if (lejos >= menor) continue;
      menor = lejos;
      const std::string x = opciones.empty() ? corto(p.x) : opciones[i];
      cercano =
          Leido{tituloX + " = " + x + (c.nombre.empty() ? "" : ", " + c.nombre) + "\n" + tituloY + " = " + corto(p.y),
                c.filas[i], en};
    }
  return cercano;
}

GraficoEstudio graficoDe(const Estudio& estudio, const Diseno& base, std::size_t columna) {
  const auto& varian = estudio.variaciones();
  const std::size_t eje = varian.size() > 1 && !varian[0].entrada->esNumero() ? 1 : 0, otro = 1 - eje;
  const Entrada& x = *varian[eje].entrada;
  GraficoEstudio g;
  g.tituloX = x.titulo();
  g.tituloY = columnas(estudio.ficha())[columna].titulo();
  if (!x.esNumero())
    for (const std::string& v : varian[eje].valores) g.opciones.push_back(x.leido(v));
  g.curvas.resize(varian.size() > 1 ? varian[otro].valores.size() : 1);
  for (std::size_t i = 0; varian.size() > 1 && i < g.curvas.size(); ++i)
    g.curvas[i].nombre = conUnidad(varian[otro].entrada->leido(varian[otro].valores[i]), varian[otro].entrada->unidad);
  const double nada = std::numeric_limits<double>::infinity();
  g.x1 = g.y1 = nada;
  g.x2 = g.y2 = -nada;
  const std::size_t ultimos = varian.back().valores.size();
  for (std::size_t f = 0; f < estudio.filas().size(); ++f) {
    const std::array<std::size_t, 2> en = varian.size() > 1 ? std::array{f / ultimos, f % ultimos} : std::array{f, f};
    const double vx = x.esNumero() ? Val(varian[eje].valores[en[eje]]).valor() : static_cast<double>(en[eje]);
    const double vy = estudio.filas()[f].celdas[columna].numero;
    Curva& c = g.curvas[varian.size() > 1 ? en[otro] : 0];
    c.puntos.push_back({vx, std::isfinite(vy) ? vy : sinValor});
    c.filas.push_back(f);
    g.x1 = std::min(g.x1, vx), g.x2 = std::max(g.x2, vx);
    if (std::isfinite(vy)) g.y1 = std::min(g.y1, vy), g.y2 = std::max(g.y2, vy);
  }
  abrir(g.x1, g.x2);
  abrir(g.y1, g.y2);
  if (g.curvas.size() > 1) g.y2 += 0.3 * (g.y2 - g.y1);  // for their names
  const std::string tecleado = valorDe(base, x);
  if (x.esNumero() && !tecleado.empty()) g.tecleado = Val(tecleado).valor();
  return g;
}

}  // namespace calvento
