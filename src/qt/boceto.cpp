#include "qt/boceto.h"

#include <algorithm>
#include <cmath>

#include <QDynamicPropertyChangeEvent>
#include <QPainter>

namespace calvento {

namespace {

constexpr const char* propiedadTrazos = "trazos";
constexpr qreal pasoEscala = 1.0 / 32;
constexpr qreal mayorEscala = 4;

QSize por(const QSize& s, qreal escala) {
  const auto lado = [&](int v) { return v >= QWIDGETSIZE_MAX ? v : static_cast<int>(std::ceil(v * escala)); };
  return {lado(s.width()), lado(s.height())};
}

/// By its edges, so that what meets in the design meets in every size.
QRect por(const QRect& r, qreal escala) {
  const auto en = [&](int v) { return static_cast<int>(std::lround(v * escala)); };
  return {QPoint(en(r.left()), en(r.top())), QPoint(en(r.right() + 1) - 1, en(r.bottom() + 1) - 1)};
}

/// Growing does not help letters that grow with the sketch: where a system's are wider, they take the room on both
/// sides.
void ensanchar(QWidget& w) {
  const QSize falta = w.minimumSizeHint().expandedTo(w.size()) - w.size();
  w.setGeometry(w.geometry().marginsAdded(
      {falta.width() / 2, falta.height() / 2, (falta.width() + 1) / 2, (falta.height() + 1) / 2}));
}

bool cabe(const QWidget& w) {
  const QSize falta = w.minimumSizeHint().expandedTo(w.minimumSize());
  return falta.width() <= w.width() && std::max(falta.height(), w.heightForWidth(w.width())) <= w.height();
}

}  // namespace

Boceto::Boceto(QWidget* padre) : QWidget(padre) {}

bool Boceto::event(QEvent* evento) {
  if (evento->type() == QEvent::DynamicPropertyChange &&
      static_cast<QDynamicPropertyChangeEvent*>(evento)->propertyName() == propiedadTrazos) {
    dibujo_ = TrazosQt(property(propiedadTrazos).toString());
    updateGeometry();
    update();
  }
  return QWidget::event(evento);
}

void Boceto::anotar() {
  partes_.push_back({this, {}, minimumSize(), maximumSize()});
  for (QWidget* w : findChildren<QWidget*>()) {
    Parte p{w, {}, w->minimumSize(), w->maximumSize()};
    if (w->parentWidget() == this) p.lugar = w->geometry();
    if (w->testAttribute(Qt::WA_SetFont) && (w->font().resolveMask() & QFont::SizeResolved) != 0U)
      p.puntos = w->font().pointSizeF();
    partes_.push_back(p);
  }
}

void Boceto::poner(qreal escala) {
  for (const Parte& p : partes_) {
    if (!p.widget) continue;
    p.widget->setMinimumSize(por(p.minimo, escala));
    p.widget->setMaximumSize(por(p.maximo, escala));
    if (!p.lugar.isNull()) p.widget->setGeometry(por(p.lugar, escala));
    if (p.puntos <= 0) continue;
    QFont letra = p.widget->font();
    letra.setPointSizeF(p.puntos * escala);
    p.widget->setFont(letra);
    if (!p.lugar.isNull()) ensanchar(*p.widget);
  }
  // from the inside out, at once: layouts would hear of it in the next event only
  for (auto p = partes_.rbegin(); p != partes_.rend(); ++p)
    if (p->widget) p->widget->updateGeometry();
}

bool Boceto::cabeTodo() const {
  return std::all_of(partes_.begin(), partes_.end(), [](const Parte& p) {
    return !p.widget || p.lugar.isNull() || dynamic_cast<const Boceto*>(p.widget.data()) != nullptr || cabe(*p.widget);
  });
}

void Boceto::crecer() {
  if (findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly) == nullptr) return;
  if (partes_.empty()) anotar();
  qreal escala = 1;
  for (poner(escala); !cabeTodo() && escala < mayorEscala;) poner(escala += pasoEscala);
}

void Boceto::changeEvent(QEvent* evento) {
  QWidget::changeEvent(evento);
  if (evento->type() == QEvent::FontChange && !partes_.empty()) crecer();
}

QSize Boceto::sizeHint() const { return dibujo_.valido() ? dibujo_.tamano().toSize() : QSize(); }

QRectF Boceto::recuadro() const { return dibujo_.lugarEn(QRectF(QPointF(0, 0), size())); }

void Boceto::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  dibujo_.pintar(pintor, recuadro());
}

}  // namespace calvento
