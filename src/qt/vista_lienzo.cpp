#include "qt/vista_lienzo.h"

#include <algorithm>
#include <utility>

#include <QMouseEvent>
#include <QPaintEngine>
#include <QPainter>
#include <QPointer>

#include "qt/pintor.h"

namespace calvento {

VistaLienzo::VistaLienzo(QWidget* padre) : QWidget(padre) {
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void VistaLienzo::mostrar(PictureBox& caja) {
  caja_ = caja.vinculo();
  imagen_ = {};
  caja.alDibujar([yo = QPointer<VistaLienzo>(this)] {
    if (yo) yo->update();  // Qt gathers these and paints in the next event
  });
  if (isVisible()) avisarTamano();
  update();
}

QRectF VistaLienzo::destino(const PictureBox& caja) const {
  return caja.Resize ? QRectF(rect()) : encuadre(caja.lienzo, QRectF(rect()));
}

void VistaLienzo::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  const auto caja = caja_.lock();
  if (!caja) {
    pintor.fillRect(rect(), Qt::white);
    return;
  }
  if (pintor.paintEngine()->type() != QPaintEngine::Raster) {  // a printer gets lines and texts, not dots
    pintor.fillRect(rect(), Qt::white);
    pintar(caja->lienzo, pintor, destino(*caja));
    return;
  }
  const double densidad = pintor.device()->devicePixelRatioF();
  const QSize puntos = size() * densidad;
  if (imagen_.size() != puntos || imagen_.devicePixelRatio() != densidad || version_ != caja->lienzo.version()) {
    imagen_ = QPixmap(puntos);
    imagen_.setDevicePixelRatio(densidad);
    imagen_.fill(Qt::white);
    QPainter p(&imagen_);
    pintar(caja->lienzo, p, destino(*caja));
    version_ = caja->lienzo.version();
  }
  pintor.drawPixmap(0, 0, imagen_);
  if (property("borde").toBool()) {
    pintor.setPen(QPen(Qt::darkGray, 1));
    pintor.drawRect(QRectF(0.5, 0.5, width() - 1, height() - 1));
  }
  if (caja->recuadro.valor().visible) pintarRecuadro(*caja, pintor);
}

void VistaLienzo::pintarRecuadro(const PictureBox& caja, QPainter& pintor) const {
  const QRectF d = destino(caja);
  const EscalaLienzo& e = caja.lienzo.escala();
  const auto pixel = [&](Punto p) {
    return QPointF(d.left() + (p.x - e.izquierda) * d.width() / e.ancho,
                   d.top() + (p.y - e.arriba) * d.height() / e.alto);
  };
  pintor.setPen(QPen(Qt::black, 1, Qt::DotLine));
  pintor.setBrush(Qt::NoBrush);
  pintor.drawRect(QRectF(pixel(caja.recuadro.valor().a), pixel(caja.recuadro.valor().b)).normalized());
}

void VistaLienzo::avisarTamano() {
  const auto caja = caja_.lock();
  if (caja && caja->Resize && (width() != caja->lienzo.anchoPixeles() || height() != caja->lienzo.altoPixeles()))
    caja->Resize(width(), height());
}

void VistaLienzo::resizeEvent(QResizeEvent*) {
  if (isVisible()) avisarTamano();  // sizes before the layout is done are of no interest
}

void VistaLienzo::showEvent(QShowEvent*) { avisarTamano(); }

void VistaLienzo::puntero(const std::function<void(Punto)> PictureBox::*evento, QPointF pixel) {
  const auto caja = caja_.lock();
  if (!caja || !((*caja).*evento)) return;
  const QRectF d = destino(*caja);
  const EscalaLienzo& e = caja->lienzo.escala();
  ((*caja).*evento)({e.izquierda + (pixel.x() - d.left()) * e.ancho / d.width(),
                     e.arriba + (pixel.y() - d.top()) * e.alto / d.height()});
}

void VistaLienzo::mousePressEvent(QMouseEvent* evento) { puntero(&PictureBox::MouseDown, evento->position()); }
void VistaLienzo::mouseMoveEvent(QMouseEvent* evento) { puntero(&PictureBox::MouseMoveEn, evento->position()); }
void VistaLienzo::mouseReleaseEvent(QMouseEvent* evento) { puntero(&PictureBox::MouseUp, evento->position()); }

}  // namespace calvento
