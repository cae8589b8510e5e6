#include "qt/paginas_memoria.h"

#include <algorithm>
#include <cmath>

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

namespace calvento {

namespace {

constexpr int separacion = 14;  ///< between pages, pixels
constexpr double menorAumento = 0.2, mayorAumento = 5;

}  // namespace

PaginasMemoria::PaginasMemoria(QWidget* padre) : QAbstractScrollArea(padre) {
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(QStringLiteral("Páginas de la memoria"));
  verticalScrollBar()->setSingleStep(40);
  horizontalScrollBar()->setSingleStep(40);
}

double PaginasMemoria::pixelesPorMm() const { return logicalDpiX() / 25.4 * aumento_; }

double PaginasMemoria::arribaDe(int pagina) const {
  double y = separacion;
  for (int i = 0; maqueta_ != nullptr && i < pagina; ++i)
    y += maqueta_->tamanoMm(i).height() * pixelesPorMm() + separacion;
  return y;
}

void PaginasMemoria::mostrar(const MaquetaMemoria* maqueta) {
  maqueta_ = maqueta;
  medir();
  viewport()->update();
}

void PaginasMemoria::ponerAumento(double aumento) {
  const int donde = pagina();
  const double parte = maqueta_ == nullptr ? 0 : (verticalScrollBar()->value() - arribaDe(donde)) / pixelesPorMm();
  ancho_ = false;
  aumento_ = std::clamp(aumento, menorAumento, mayorAumento);
  medir();
  verticalScrollBar()->setValue(static_cast<int>(arribaDe(donde) + parte * pixelesPorMm()));
  viewport()->update();
  if (alAumentar) alAumentar();
}

void PaginasMemoria::alAncho() {
  const int donde = pagina();
  ancho_ = true;
  medir();
  irA(donde);
  viewport()->update();
  if (alAumentar) alAumentar();
}

void PaginasMemoria::medir() {
  if (maqueta_ == nullptr) return;
  if (ancho_) {
    aumento_ = 1;
    aumento_ =
        std::clamp((viewport()->width() - 2.0 * separacion) / (210 * pixelesPorMm()), menorAumento, mayorAumento);
  }
  double mayor = 0;
  for (int i = 0; i < maqueta_->paginas(); ++i) mayor = std::max(mayor, maqueta_->tamanoMm(i).width() * pixelesPorMm());
  const auto poner = [](QScrollBar* barra, double todo, int visto) {
    barra->setRange(0, std::max(0, static_cast<int>(std::ceil(todo)) - visto));
    barra->setPageStep(visto);
  };
  poner(verticalScrollBar(), arribaDe(maqueta_->paginas()), viewport()->height());
  // what is in the middle stays there, at first the middle of the pages: drawings are wider than the rest
  QScrollBar& barra = *horizontalScrollBar();
  const double parte = barra.maximum() == 0 ? 0.5 : double(barra.value()) / barra.maximum();
  poner(&barra, mayor + 2 * separacion, viewport()->width());
  barra.setValue(static_cast<int>(std::lround(parte * barra.maximum())));
}

void PaginasMemoria::irA(int pagina) {
  verticalScrollBar()->setValue(static_cast<int>(arribaDe(pagina)) - separacion / 2);
}

int PaginasMemoria::pagina() const {
  if (maqueta_ == nullptr) return 0;
  const double medio = verticalScrollBar()->value() + viewport()->height() / 3.0;
  int i = 0;
  while (i + 1 < maqueta_->paginas() && arribaDe(i + 1) <= medio) ++i;
  return i;
}

void PaginasMemoria::paintEvent(QPaintEvent* evento) {
  QPainter pintor(viewport());
  pintor.fillRect(evento->rect(), palette().color(QPalette::Dark));
  if (maqueta_ == nullptr) return;
  double mayor = viewport()->width();
  for (int i = 0; i < maqueta_->paginas(); ++i)
    mayor = std::max(mayor, maqueta_->tamanoMm(i).width() * pixelesPorMm() + 2 * separacion);
  for (int i = 0; i < maqueta_->paginas(); ++i) {
    const QSizeF t = maqueta_->tamanoMm(i) * pixelesPorMm();
    const QRectF hoja(std::floor((mayor - t.width()) / 2 - horizontalScrollBar()->value()),
                      std::floor(arribaDe(i) - verticalScrollBar()->value()), std::round(t.width()),
                      std::round(t.height()));
    if (!hoja.intersects(QRectF(evento->rect()))) continue;
    pintor.fillRect(hoja, Qt::white);  // paper, whatever the desktop's theme
    maqueta_->pintar(pintor, i, hoja);
  }
}

void PaginasMemoria::resizeEvent(QResizeEvent*) {
  const int donde = pagina();
  medir();
  if (ancho_) irA(donde);
}

void PaginasMemoria::scrollContentsBy(int, int) {
  viewport()->update();
  if (alPasarPagina) alPasarPagina(pagina());
}

void PaginasMemoria::wheelEvent(QWheelEvent* evento) {
  if (!(evento->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(evento);
  ponerAumento(aumento_ * std::pow(1.1, evento->angleDelta().y() / 120.0));
  evento->accept();
}

void PaginasMemoria::keyPressEvent(QKeyEvent* evento) {
  switch (evento->key()) {
    case Qt::Key_Home:
      return irA(0);
    case Qt::Key_End:
      return verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    case Qt::Key_PageDown:
      return verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    case Qt::Key_PageUp:
      return verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
    default:
      QAbstractScrollArea::keyPressEvent(evento);
  }
}

}  // namespace calvento
