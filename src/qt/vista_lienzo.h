#pragma once

#include <memory>

#include <QPixmap>
#include <QWidget>

#include "plataforma/lienzo.h"

namespace calvento {

/// The widget of a PictureBox: white paper with the retained picture, whatever the desktop's theme and scaling. It
/// hands pointer events on in world coordinates. A box without a Resize event keeps its picture's proportions. With the
/// dynamic property "borde" it has a thin frame, which takes no room from the picture.
class VistaLienzo : public QWidget {
 public:
  explicit VistaLienzo(QWidget* padre = nullptr);

  /// Shows that control from now on. The widget may outlive it.
  void mostrar(PictureBox& caja);

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void showEvent(QShowEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;

 private:
  QRectF destino(const PictureBox& caja) const;
  void avisarTamano();
  void puntero(const std::function<void(Punto)> PictureBox::*evento, QPointF pixel);
  void pintarRecuadro(const PictureBox& caja, QPainter& pintor) const;

  std::weak_ptr<PictureBox> caja_;
  QPixmap imagen_;  ///< the picture as last painted, for the moves of the zoom box
  std::uint64_t version_ = 0;
};

}  // namespace calvento

/// The name by which Qt Designer files know the widget.
using VistaLienzo = calvento::VistaLienzo;
