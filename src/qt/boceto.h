#pragma once

#include <memory>

#include <QWidget>

class QSvgRenderer;

namespace calvento {

/// A vector sketch: paints the SVG named by its property "svg" (":/bocetos/rapida.svg"), as large as the widget allows
/// in the picture's own proportions, sharp at any scale and in print.
class Boceto : public QWidget {
 public:
  explicit Boceto(QWidget* padre = nullptr);
  ~Boceto() override;

  QSize sizeHint() const override;
  /// Where the picture lies in the widget; empty without a picture.
  QRectF recuadro() const;

 protected:
  bool event(QEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;

 private:
  std::unique_ptr<QSvgRenderer> dibujo_;
};

}  // namespace calvento

/// The name by which Qt Designer files know the widget.
using Boceto = calvento::Boceto;
