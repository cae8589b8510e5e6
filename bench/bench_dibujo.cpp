#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <string>

#include <QImage>
#include <QPainter>

#include "dibujo/form3.h"
#include "medida.h"
#include "qt/exportar_dibujo.h"
#include "qt/pintor.h"

// What one redrawing of the chute's sheet costs on a canvas of 865 by 433 pixels: computing the figure and painting it,
// against painting the same recorded primitives by calls of the painter written out one by one.

namespace calvento {
namespace {

/// A chute of three reaches with its 300 rows of profile.
DesignState rapida() {
  DesignState e;
  e.numTramos = 3;
  e.progresivaInicio = 1000;
  e.Q = 4;
  e.bArriba = 2, e.zArriba = 1, e.sArriba = 0.001, e.hArriba = 2, e.espejoArriba = 6;
  e.ynArriba = 1.5, e.vArriba = 1.2, e.frArriba = 0.4;
  e.sobreelevacion = 0.2, e.ycControl = 1, e.longTransEntrada = 4;
  e.bRapida = 2, e.hRapida = 0.8, e.espejoRapida = 2;
  e.cotaInicio = 110, e.cotaTramo2 = 109.5, e.cotaTramo3 = 108.5, e.cotaFin = 105;
  e.longTramo1 = 8, e.longTramo2 = 4, e.longTramo3 = 8, e.longRapida = 20;
  e.sTramo1 = 0.0625, e.sTramo2 = 0.25, e.sTramo3 = e.sUltimoTramo = 0.4375;
  e.yTramo1 = 0.8, e.yTramo2 = 0.5;
  for (int i = 1; i <= 300; ++i) {
    const double x = i * 20.0 / 300;
    e.perfil.push_back({Single(x), Single(0.3 + 0.7 * std::exp(-x / 5)), Single(110 - x / 4), 5, 112});
  }
  e.yFin = 0.3, e.vFin = 6, e.trayB = -0.4375, e.trayA = -0.03, e.xTrayectoria = 3, e.cotaTrayectoria = 103.25;
  e.zRampaEntrada = 2, e.zRampaSalida = 1.5, e.cotaPoza = 102.75, e.longPoza = 8, e.profPoza = 1.25;
  e.y1 = 0.25, e.v1 = 8, e.y2 = 2.5, e.v2 = 1, e.hPoza = 3, e.bPoza = 3, e.espejoPoza = 3;
  e.cotaAbajo = 104, e.longTransSalida = 3, e.sAbajo = 0.001, e.ynAbajo = 1.25, e.vAbajo = 1.5;
  e.bAbajo = 2, e.zAbajo = 1, e.hAbajo = 1.75, e.espejoAbajo = 5.5;
  return e;
}

/// The drawing window on a chute, and an image to paint on.
struct Escena {
  Escena() : ventana((asegurarAplicacionGrafica(), estado), parametros, navegador) {}
  const Lienzo& lienzo() const { return ventana.GRAF.lienzo; }
  void pintarTodo() {
    QPainter p(&imagen);
    pintar(lienzo(), p, QRectF(imagen.rect()));
  }

  DesignState estado = rapida();
  SinVentanas navegador;
  Form2 parametros{navegador};
  Form3 ventana;
  QImage imagen{865, 433, QImage::Format_RGB32};
};

/// The same picture by plain calls of QPainter, with pens and fonts as the primitives have them.
class Directo {
 public:
  Directo(const Lienzo& l, QPainter& p) : l_(l), p_(p), e_(l.escala()), alto_(l.altoPixeles()) {}
  void operator()(const PrimLinea& x) {
    pluma(x.pluma);
    p_.drawLine(punto(x.a), punto(x.b));
  }
  void operator()(const PrimPolilinea& x) {
    pluma(x.pluma);
    p_.drawPolyline(puntos(x.puntos));
  }
  void operator()(const PrimPoligono& x) { superficie(puntos(x.puntos), x.pluma, x.relleno); }
  void operator()(const PrimCaja& x) {
    superficie(QPolygonF(QRectF(punto(x.a), punto(x.b)).normalized()), x.pluma, x.relleno);
  }
  void operator()(const PrimCirculo& x) {
    pluma(x.pluma);
    const double r = x.radio * l_.anchoPixeles() / e_.ancho;
    p_.drawEllipse(punto(x.centro), r, r);
  }
  void operator()(const PrimTexto& x) {
    if (letra_ == nullptr || letra_->puntos != x.letra.puntos || letra_->negrita != x.letra.negrita) {
      QFont f("Arial");
      f.setPointSizeF(std::max(x.letra.puntos, 0.75));
      f.setBold(x.letra.negrita);
      f.setUnderline(x.letra.subrayada);
      p_.setFont(f);
      letra_ = &x.letra;
    }
    p_.setPen(color(x.color));
    p_.save();
    p_.translate(punto(x.en));
    p_.rotate(-x.letra.angulo);
    p_.drawText(QPointF(0, x.letra.puntos), QString::fromUtf8(x.texto));
    p_.restore();
  }

 private:
  QColor color(Color c) const { return {c.rojo(), c.verde(), c.azul()}; }
  QPointF punto(Punto p) const {
    return {(p.x - e_.izquierda) * l_.anchoPixeles() / e_.ancho, (p.y - e_.arriba) * alto_ / e_.alto};
  }
  QPolygonF puntos(const std::vector<Punto>& ps) const {
    QPolygonF q;
    for (const Punto& p : ps) q << punto(p);
    return q;
  }
  void pluma(const Pluma& x) {
    p_.setPen(QPen(color(x.color), x.grosor, x.estilo == EstiloLinea::solida ? Qt::SolidLine : Qt::DashDotLine));
    p_.setBrush(Qt::NoBrush);
  }
  void superficie(const QPolygonF& q, const Pluma& x, const Relleno& r) {
    pluma(x);
    if (r.estilo == EstiloRelleno::solido) p_.setBrush(color(r.color));
    if (r.estilo == EstiloRelleno::cruzadoDiagonal) p_.setBrush(QBrush(color(r.color), Qt::DiagCrossPattern));
    p_.drawPolygon(q);
  }

  const Lienzo& l_;
  QPainter& p_;
  EscalaLienzo e_;
  double alto_;
  const Letra* letra_ = nullptr;
};

constexpr const char* vistas[] = {"vistaTodo", "vistaTanque", "vistaPlanta", "vistaControl"};

/// Figure, rulers and paint of the whole sheet: what the user waits for after a click.
void Redibujo(benchmark::State& s) {
  Escena e;
  const char* vista = vistas[s.range(0)];
  for (auto _ : s) {
    e.ventana.ver(vista);
    e.pintarTodo();
  }
  s.SetLabel(vista);
}

void SoloFigura(benchmark::State& s) {
  Escena e;
  for (auto _ : s) e.ventana.ver(vistas[s.range(0)]);
  s.SetLabel(vistas[s.range(0)]);
}

void PinturaDirecta(benchmark::State& s) {
  Escena e;
  e.ventana.ver(vistas[s.range(0)]);
  for (auto _ : s) {
    QPainter p(&e.imagen);
    p.fillRect(e.imagen.rect(), Qt::white);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    Directo directo(e.lienzo(), p);
    for (const Primitiva& x : e.lienzo().primitivas()) std::visit(directo, x);
  }
  s.SetLabel(vistas[s.range(0)]);
}

void AbrirVentana(benchmark::State& s) {
  DesignState estado = rapida();
  SinVentanas navegador;
  const Form2 parametros(navegador);
  for (auto _ : s) benchmark::DoNotOptimize(Form3(estado, parametros, navegador));
}

BENCHMARK(Redibujo)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(SoloFigura)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(PinturaDirecta)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(AbrirVentana)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace calvento
