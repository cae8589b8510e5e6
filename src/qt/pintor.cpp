#include "qt/pintor.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include <QFont>
#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

#include "plataforma/medidas.h"
#include "qt/cadena.h"
#include "qt/recorte.h"

namespace calvento {

namespace {

constexpr double pasoRayado = 8;  ///< pixels between the strokes of a hatch
constexpr double pixelesPorPunto = static_cast<double>(twipsPorPunto) / twipsPorPixel;
/// Every font is made at this size in pixels and stretched to the one wanted: font machines round the advance of small
/// letters to whole pixels and refuse huge ones, and a text must be equally wide on screen and on paper.
constexpr double letraHecha = 64;

/// Desktop colours have no place on paper: whatever the desktop's theme, such ink is black.
QColor tinta(Color c) { return c.esDelSistema() ? QColor(Qt::black) : QColor(c.rojo(), c.verde(), c.azul()); }

QVector<qreal> trazos(EstiloLinea estilo) {
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
  Repeticion(const Lienzo& lienzo, QPainter& pintor, const QRectF& destino)
      : pintor_(pintor),
        destino_(destino),
        escala_(lienzo.escala()),
        x_(destino.width() / escala_.ancho),
        y_(destino.height() / escala_.alto),
        pixel_(destino.height() / std::max(lienzo.altoPixeles(), 1)),
        aumento_(destino.height() / std::max(lienzo.altoReferencia(), 1)) {
    const QTransform& dispositivo = pintor.deviceTransform();
    if (pintor.paintEngine()->type() == QPaintEngine::Raster && dispositivo.type() <= QTransform::TxScale)
      aPuntos_ = dispositivo;
    const double margen = 64 * pixel_ + 64;  // room for the width of a line whose course lies just outside
    marco_ = destino.adjusted(-margen, -margen, margen, margen);
  }

  void operator()(const PrimLinea& p) { linea(QLineF(punto(p.a), punto(p.b)), p.pluma); }

  void operator()(const PrimPolilinea& p) {
    QPolygonF puntos;
    for (const Punto& q : p.puntos) puntos << punto(q);
    if (marco_.contains(puntos.boundingRect())) {
      usar(p.pluma);
      pintor_.setBrush(Qt::NoBrush);
      pintor_.drawPolyline(nitidos(puntos, p.pluma, false));
    } else {
      for (qsizetype i = 1; i < puntos.size(); ++i) linea(QLineF(puntos[i - 1], puntos[i]), p.pluma);
    }
  }

  void operator()(const PrimPoligono& p) {
    QPolygonF puntos;
    for (const Punto& q : p.puntos) puntos << punto(q);
    superficie(std::move(puntos), p.pluma, p.relleno);
  }

  void operator()(const PrimCaja& p) {
    const QPointF a = punto(p.a);
    const QPointF b = punto(p.b);
    superficie(QPolygonF({a, {b.x(), a.y()}, b, {a.x(), b.y()}}), p.pluma, p.relleno);
  }

  void operator()(const PrimCirculo& p) {
    constexpr int lados = 72;  // one corner every five degrees: round at any size that fits a sheet
    const QPointF c = punto(p.centro);
    const double r = std::fabs(p.radio * x_);
    QPolygonF puntos;
    for (int i = 0; i < lados; ++i) {
      const double a = 2 * std::numbers::pi * i / lados;
      puntos << c + QPointF(r * std::cos(a), r * std::sin(a));
    }
    superficie(std::move(puntos), p.pluma, p.relleno);
  }

  void operator()(const PrimTexto& p) {
    const double pixeles = p.letra.puntos * pixelesPorPunto * aumento_;
    const double alcance = pixeles * (static_cast<double>(p.texto.size()) + 1);
    const QPointF en = punto(p.en);
    if (!(pixeles > 0) || !destino_.adjusted(-alcance, -alcance, alcance, alcance).contains(en)) return;
    usar(p.letra);
    pintor_.setPen(tinta(p.color));
    pintor_.save();
    pintor_.translate(en);
    if (p.letra.angulo != 0) pintor_.rotate(-p.letra.angulo);
    pintor_.scale(pixeles / letraHecha, pixeles / letraHecha);
    pintor_.drawText(QPointF(0, ascensoLetra * letraHecha), aQt(p.texto));
    pintor_.restore();
  }

 private:
  QPointF punto(Punto p) const {
    return {destino_.left() + (p.x - escala_.izquierda) * x_, destino_.top() + (p.y - escala_.arriba) * y_};
  }

  /// Width of a line. It never becomes thinner than a hair that the eye finds, and on a screen it has whole points.
  double ancho(const Pluma& pluma) const {
    const double a = std::max(pluma.grosor * pixel_, std::min(pixel_, 0.8));
    return aPuntos_ ? puntosDeAncho(a) / aPuntos_->m22() : a;
  }
  int puntosDeAncho(double ancho) const { return std::max(1, static_cast<int>(std::lround(ancho * aPuntos_->m22()))); }

  /// A course on the points of the screen or image; on paper and in vector files it stays as it is.
  QPolygonF nitidos(QPolygonF puntos, const Pluma& pluma, bool cerrado) const {
    if (!aPuntos_) return puntos;
    return aPuntos_->inverted().map(
        sobrePixeles(aPuntos_->map(puntos), puntosDeAncho(ancho(pluma)), cerrado, aPuntos_->mapRect(destino_)));
  }

  void usar(const Pluma& pluma) {
    const double ancho = this->ancho(pluma);
    QPen p(tinta(pluma.color), ancho, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (pluma.estilo != EstiloLinea::solida) {
      QVector<qreal> t = trazos(pluma.estilo);
      for (qreal& largo : t) largo *= pixel_ / ancho;
      p.setDashPattern(t);
    }
    pintor_.setPen(p);
  }

  void usar(const Letra& letra) {
    if (letraEnUso_ && letraEnUso_->familia == letra.familia && letraEnUso_->negrita == letra.negrita &&
        letraEnUso_->subrayada == letra.subrayada)
      return;
    QFont f;
    f.setFamilies({aQt(letra.familia), "Liberation Sans", "Helvetica", "Nimbus Sans", "DejaVu Sans"});
    f.setStyleHint(QFont::SansSerif);
    f.setBold(letra.negrita);
    f.setUnderline(letra.subrayada);
    f.setHintingPreference(QFont::PreferNoHinting);
    f.setPixelSize(static_cast<int>(letraHecha));
    pintor_.setFont(f);
    letraEnUso_ = letra;
  }

  void linea(const QLineF& l, const Pluma& pluma) {
    const QLineF visible = recortar(l, marco_);
    if (visible.isNull()) return;
    usar(pluma);
    const QPolygonF extremos = nitidos({visible.p1(), visible.p2()}, pluma, false);
    pintor_.drawLine(extremos[0], extremos[1]);
  }

  void superficie(QPolygonF puntos, const Pluma& pluma, const Relleno& relleno) {
    const QRectF caja = puntos.boundingRect();
    if (caja.left() > marco_.right() || caja.right() < marco_.left() || caja.top() > marco_.bottom() ||
        caja.bottom() < marco_.top())
      return;
    if (!marco_.contains(caja)) puntos = recortar(puntos, marco_);
    if (puntos.isEmpty()) return;
    puntos = nitidos(std::move(puntos), pluma, true);
    if (relleno.estilo == EstiloRelleno::cruzadoDiagonal) {
      usar(Pluma{relleno.color, EstiloLinea::solida, 1});
      const auto rayas = rayadoCruzado(puntos, destino_.topLeft(), pasoRayado * pixel_);
      pintor_.drawLines(rayas.data(), static_cast<int>(rayas.size()));
    }
    if (relleno.estilo == EstiloRelleno::solido)
      pintor_.setBrush(tinta(relleno.color));
    else
      pintor_.setBrush(Qt::NoBrush);
    usar(pluma);
    pintor_.drawPolygon(puntos, Qt::OddEvenFill);
  }

  QPainter& pintor_;
  QRectF destino_;
  QRectF marco_;
  EscalaLienzo escala_;
  double x_;
  double y_;
  double pixel_;                       ///< one pixel of the picture at its own size
  double aumento_;                     ///< how much larger than at its reference height the picture is painted
  std::optional<QTransform> aPuntos_;  ///< to the points of the screen or image; none where lines have no points
  std::optional<Letra> letraEnUso_;
};

}  // namespace

void pintar(const Lienzo& lienzo, QPainter& pintor, const QRectF& destino) {
  pintor.save();
  pintor.setClipRect(destino, Qt::IntersectClip);
  pintor.fillRect(destino, Qt::white);
  pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  pintor.setLayoutDirection(Qt::LeftToRight);
  if (lienzo.ScaleWidth() != 0 && lienzo.ScaleHeight() != 0 && !destino.isEmpty()) {
    Repeticion repeticion(lienzo, pintor, destino);
    for (const Primitiva& p : lienzo.primitivas()) std::visit(repeticion, p);
  }
  pintor.restore();
}

QRectF encuadre(const Lienzo& lienzo, const QRectF& pagina) {
  if (lienzo.anchoPixeles() <= 0 || lienzo.altoPixeles() <= 0) return pagina;
  const QSizeF t = QSizeF(lienzo.anchoPixeles(), lienzo.altoPixeles()).scaled(pagina.size(), Qt::KeepAspectRatio);
  return {pagina.left() + (pagina.width() - t.width()) / 2, pagina.top() + (pagina.height() - t.height()) / 2,
          t.width(), t.height()};
}

}  // namespace calvento
