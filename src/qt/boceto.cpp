#include "qt/boceto.h"

#include <QDynamicPropertyChangeEvent>
#include <QPainter>
#include <QSvgRenderer>

namespace calvento {

namespace {
constexpr const char* propiedadSvg = "svg";
}

Boceto::Boceto(QWidget* padre) : QWidget(padre) {}
Boceto::~Boceto() = default;

bool Boceto::event(QEvent* evento) {
  if (evento->type() == QEvent::DynamicPropertyChange &&
      static_cast<QDynamicPropertyChangeEvent*>(evento)->propertyName() == propiedadSvg) {
    dibujo_ = std::make_unique<QSvgRenderer>(property(propiedadSvg).toString());
    updateGeometry();
    update();
  }
  return QWidget::event(evento);
}

QSize Boceto::sizeHint() const { return dibujo_ && dibujo_->isValid() ? dibujo_->defaultSize() : QSize(); }

QRectF Boceto::recuadro() const {
  if (!dibujo_ || !dibujo_->isValid()) return {};
  const QSizeF tamano = dibujo_->viewBoxF().size().scaled(size(), Qt::KeepAspectRatio);
  return {QPointF((width() - tamano.width()) / 2, (height() - tamano.height()) / 2), tamano};
}

void Boceto::paintEvent(QPaintEvent*) {
  const QRectF lugar = recuadro();
  if (lugar.isEmpty()) return;
  QPainter pintor(this);
  pintor.setRenderHint(QPainter::Antialiasing);
  dibujo_->render(&pintor, lugar);
}

}  // namespace calvento
