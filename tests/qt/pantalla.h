#pragma once

#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <QWidget>

namespace calvento {

/// What the screen shows of a widget when the running events are done; unlike QWidget::grab it makes nothing paint.
inline QImage enPantalla(const QWidget& widget) {
  QTest::qWait(20);
  const QPoint lugar = widget.mapTo(widget.window(), QPoint());
  return widget.screen()
      ->grabWindow(widget.window()->winId(), lugar.x(), lugar.y(), widget.width(), widget.height())
      .toImage();
}

}  // namespace calvento
