#include "qt/impresion.h"

#include <algorithm>

#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QPrinter>

namespace calvento {

bool imprimirVista(QMainWindow& vista, QPrinter& impresora) {
  QRect cliente = vista.rect();
  if (const QWidget* menu = vista.menuWidget(); menu != nullptr && menu->isVisible())
    cliente.setTop(menu->geometry().bottom() + 1);
  impresora.setPageOrientation(cliente.width() > cliente.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
  QPainter pintor;
  if (!pintor.begin(&impresora)) return false;
  const QRectF pagina = pintor.viewport();
  const double escala = std::min(pagina.width() / cliente.width(), pagina.height() / cliente.height());
  pintor.translate((pagina.width() - escala * cliente.width()) / 2, 0);
  pintor.scale(escala, escala);
  vista.render(&pintor, QPoint(), QRegion(cliente));
  return pintor.end();
}

}  // namespace calvento
