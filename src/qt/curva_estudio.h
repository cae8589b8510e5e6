#pragma once

#include <functional>

#include <QWidget>

#include "estudio/curva.h"

namespace calvento {

/// Shows a result of a study over what varies, and the values under the pointer.
class CurvaEstudio : public QWidget {
 public:
  explicit CurvaEstudio(QWidget* padre = nullptr);

  void mostrar(GraficoEstudio grafico);
  /// Writes it as SVG, PDF or PNG, by the extension. Fails as exportarDibujo does.
  void guardar(const std::string& archivo) const;
  /// A design of the study was chosen by a click.
  std::function<void(std::size_t fila)> alElegir;

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;

 private:
  void redibujar();

  GraficoEstudio grafico_;
  Lienzo lienzo_{400, 300};
};

}  // namespace calvento
