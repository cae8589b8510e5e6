#include "qt/impresion.h"

#include <algorithm>

#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QPicture>
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
  // a widget painted on a printer becomes dots of the screen; through a picture it stays lines and texts
  QPicture dibujo;
  vista.render(&dibujo, QPoint(), QRegion(cliente));
  const double puntos = double(dibujo.logicalDpiX()) / impresora.logicalDpiX();  // a picture brings its own scale
  pintor.scale(puntos, puntos);
  pintor.drawPicture(0, 0, dibujo);
  return pintor.end();
}

}  // namespace calvento
