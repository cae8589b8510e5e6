#pragma once

#include <vector>

#include <QPointer>
#include <QWidget>

#include "qt/trazos_qt.h"

namespace calvento {

/// A vector sketch: paints what its property "trazos" names (":/bocetos/rapida.pic"), as large as the widget allows
/// in the picture's own proportions, sharp at any scale and in print. Labels and fields may lie on it, at fixed places:
/// sketch, places and sizes grow together, as far as the font of the desktop asks for it, so that nothing is cut.
class Boceto : public QWidget {
 public:
  explicit Boceto(QWidget* padre = nullptr);

  QSize sizeHint() const override;
  /// Where the picture lies in the widget; empty without a picture.
  QRectF recuadro() const;
  /// Finds the size again, for what lies on it now; to be called once when all of it has been put there.
  void crecer();

 protected:
  bool event(QEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;

 private:
  /// A widget as the design has it.
  struct Parte {
    QPointer<QWidget> widget;
    QRect lugar;  ///< null: a layout places it
    QSize minimo, maximo;
    qreal puntos = 0;  ///< size of a font of its own; 0: the desktop's
  };
  void anotar();
  void poner(qreal escala);
  bool cabeTodo() const;

  std::vector<Parte> partes_;
  TrazosQt dibujo_;
};

}  // namespace calvento

/// The name by which Qt Designer files know the widget.
using Boceto = calvento::Boceto;
