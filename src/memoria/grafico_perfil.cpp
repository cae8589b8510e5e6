#include <algorithm>
#include <cmath>

#include "estructura/pasos.h"
#include "memoria/laminas.h"
#include "memoria/lista.h"

namespace calvento {

namespace {

using lista::d;

constexpr double anchoMm = 170, altoMm = 95;
constexpr int pixelesPorMm = 4;
constexpr Color colorFondo{0x2A4A6B}, colorAgua{0xC87020}, colorEnergia{0x3030C0}, colorReja{0xD8D8D8};

/// Bed, water and energy line as the design left them; distances from the start of the structure.
struct Lineas {
  std::vector<Punto> fondo, agua, energia;
  void seccion(double x, double cota, double tirante, double velocidad) {
    fondo.push_back({x, cota});
    agua.push_back({x, cota + tirante});
    energia.push_back({x, cota + tirante + velocidad * velocidad / dosG});
  }
};

void trasLaCaida(Lineas& l, const DesignState& e, double x, double finTrayectoria) {
  const double alPie = x + (finTrayectoria - d(e.cotaPoza)) * d(e.zRampaEntrada);
  l.fondo.push_back({x, finTrayectoria});
  l.seccion(alPie, d(e.cotaPoza), d(e.y1), d(e.v1));
  const double fin = alPie + d(e.longPoza);
  l.seccion(fin, d(e.cotaPoza), d(e.y2), d(e.v2));
  const double salida = fin + (d(e.cotaAbajo) - d(e.cotaPoza)) * d(e.zRampaSalida);
  for (const double mas : {0.0, d(e.longTransSalida) + 5})
    l.seccion(salida + mas, d(e.cotaAbajo), d(e.ynAbajo), d(e.vAbajo));
}

Lineas lineasDe(const Diseno& x) {
  const DesignState& e = x.e;
  Lineas l;
  const double Q = d(e.Q);
  const double control = x.rapida() ? 0 : d(e.longControl);
  const double antes = d(e.longTransEntrada) + control + 5;
  const double cotaCanal = x.rapida() ? d(e.cotaInicio) : d(e.cotaFin) - (x.inclinada() ? d(e.sobreelevacion) : 0);
  if (x.vertical()) {
    for (auto f = e.perfilCaida.rbegin(); f != e.perfilCaida.rend(); ++f) {
      l.fondo.push_back({f->x, cotaCanal});
      l.agua.push_back({f->x, cotaCanal + f->tirante});
    }
    l.seccion(0, cotaCanal, d(e.ycControl), lista::control(x).velocidad(Q, d(e.ycControl)));
    l.fondo.push_back({0, d(e.cotaPoza)});
    const double impacto = d(e.longRapida) - (d(e.tipoTanque) == 1 ? d(e.longPoza) : d(e.longTramo2) + d(e.longTramo3));
    l.agua.push_back({impacto, d(e.cotaPoza) + d(e.y1)});
    l.fondo.push_back({d(e.longRapida), d(e.cotaPoza)});
    l.agua.push_back({d(e.longRapida), d(e.cotaPoza) + d(e.y2)});
    const auto abajo = lista::canalAbajo(e);
    for (const double mas : {0.0, d(e.longTransSalida) + 3})
      l.seccion(d(e.longRapida) + (d(e.cotaAbajo) - d(e.cotaPoza)) * d(e.zRampaSalida) + mas, d(e.cotaAbajo),
                d(e.ynAbajo), abajo.velocidad(Q, d(e.ynAbajo)));
    return l;
  }
  l.seccion(-antes, cotaCanal, d(e.ynArriba), d(e.vArriba));
  l.seccion(-d(e.longTransEntrada) - control, cotaCanal, d(e.ynArriba), d(e.vArriba));
  if (x.rapida()) {
    const auto rapida = lista::control(x);
    l.seccion(0, d(e.cotaInicio), d(e.ycControl), rapida.velocidad(Q, d(e.ycControl)));
    for (const FilaPerfil& f : e.perfil) l.seccion(d(f.x), d(f.cota), d(f.tirante), d(f.velocidad));
    trasLaCaida(l, e, d(e.longRapida) + d(e.xTrayectoria), d(e.cotaTrayectoria));
  } else {
    l.seccion(-control, d(e.cotaFin), d(e.yFin), d(e.vFin));
    l.seccion(0, d(e.cotaFin), d(e.yFin), d(e.vFin));
    trasLaCaida(l, e, d(e.xTrayectoria), d(e.cotaTrayectoria));
  }
  return l;
}

/// The step of the series 1, 2, 5 that makes no more than so many of the span.
double paso(double tramo, int cuantos) {
  for (const float p : pasosEje())
    if (tramo / static_cast<double>(p) <= cuantos) return static_cast<double>(p);
  return tramo;
}

/// The plot with its axes: both scales as the paper allows.
class Grafico {
 public:
  Grafico(double x1, double x2, double y1, double y2)
      : x1_(x1),
        x2_(x2),
        y1_(y1),
        y2_(y2),
        l_(static_cast<int>(anchoMm) * pixelesPorMm, static_cast<int>(altoMm) * pixelesPorMm) {
    // margins for the numbers
    const double ex = (x2 - x1) / (anchoMm - 24), ey = (y2 - y1) / (altoMm - 16);
    l_.Scale(x1 - 20 * ex, y2 + 4 * ey, x2 + 4 * ex, y1 - 12 * ey);
    mmX_ = ex;
    mmY_ = ey;
  }
  void ejes(double progresiva) {
    l_.Font = {"Arial", puntos(2.8)};
    const double px = paso(x2_ - x1_, 8), py = paso(y2_ - y1_, 7);
    for (double x = std::ceil((x1_ + progresiva) / px) * px; x <= x2_ + progresiva; x += px) {
      l_.Line({x - progresiva, y1_}, {x - progresiva, y2_}, colorReja);
      escribir(x - progresiva - 7 * mmX_, y1_ - 1.5 * mmY_, formato(Real(x), "0+000.00"));
    }
    for (double y = std::ceil(y1_ / py) * py; y <= y2_; y += py) {
      l_.Line({x1_, y}, {x2_, y}, colorReja);
      escribir(x1_ - 19 * mmX_, y + 1.6 * mmY_, formato(Real(y), "0.00"));
    }
    l_.LineCaja({x1_, y2_}, {x2_, y1_}, color::negro);
    escribir((x1_ + x2_) / 2 - 18 * mmX_, y1_ - 7 * mmY_, "Progresiva (km+m)");
  }
  void linea(const std::vector<Punto>& puntos, Color c, int grosor, EstiloLinea estilo = EstiloLinea::solida) {
    l_.DrawWidth = grosor;
    l_.DrawStyle = estilo;
    l_.Polyline(puntos, c);
    l_.DrawWidth = 1;
    l_.DrawStyle = EstiloLinea::solida;
  }
  void leyenda(int fila, const char* texto, Color c, int grosor, EstiloLinea estilo = EstiloLinea::solida) {
    const double x = x2_ - 52 * mmX_, y = y2_ - (4 + 5 * fila) * mmY_;
    linea({{x, y}, {x + 10 * mmX_, y}}, c, grosor, estilo);
    escribir(x + 12 * mmX_, y + 1.7 * mmY_, texto);
  }
  Lienzo& lienzo() { return l_; }

 private:
  static double puntos(double mm) { return mm * pixelesPorMm * twipsPorPixel / twipsPorPunto; }
  void escribir(double x, double y, std::string texto) {
    l_.CurrentX = x;
    l_.CurrentY = y;
    l_.Print(std::move(texto));
  }
  static constexpr int twipsPorPixel = 15, twipsPorPunto = 20;
  double x1_, x2_, y1_, y2_, mmX_ = 1, mmY_ = 1;
  Lienzo l_;
};

}  // namespace

Figura graficoPerfil(const Diseno& x) {
  const Lineas l = lineasDe(x);
  double x1 = 1e300, x2 = -1e300, y1 = 1e300, y2 = -1e300;
  for (const auto* puntos : {&l.fondo, &l.agua, &l.energia})
    for (const Punto& p : *puntos) {
      x1 = std::min(x1, p.x), x2 = std::max(x2, p.x);
      y1 = std::min(y1, p.y), y2 = std::max(y2, p.y);
    }
  if (!(x2 > x1) || !(y2 > y1)) fallar(Motivo::argumentoNoValido);
  const double aire = 0.06 * (y2 - y1);
  Grafico g(x1, x2, y1 - aire, y2 + aire);
  g.ejes(d(x.e.progresivaInicio));
  g.linea(l.energia, colorEnergia, 2, EstiloLinea::guiones);
  g.linea(l.agua, colorAgua, 2);
  g.linea(l.fondo, colorFondo, 3);
  g.leyenda(0, "Línea de energía", colorEnergia, 2, EstiloLinea::guiones);
  g.leyenda(1, "Superficie del agua", colorAgua, 2);
  g.leyenda(2, "Fondo", colorFondo, 3);
  return {"Perfil hidráulico (escalas vertical y horizontal distintas)", std::move(g.lienzo()), anchoMm, altoMm};
}

}  // namespace calvento
