#pragma once

#include <functional>

#include <QAbstractScrollArea>

#include "qt/maqueta_memoria.h"

namespace calvento {

/// The pages of a report one below the other, at any zoom. Only what is in sight is painted.
class PaginasMemoria : public QAbstractScrollArea {
 public:
  explicit PaginasMemoria(QWidget* padre = nullptr);

  void mostrar(const MaquetaMemoria* maqueta);
  /// Pixels to the millimetre are those of the screen times this.
  void ponerAumento(double aumento);
  double aumento() const { return aumento_; }
  /// So that a page is as wide as the view.
  void alAncho();
  bool estaAlAncho() const { return ancho_; }
  void irA(int pagina);
  int pagina() const;

  std::function<void(int pagina)> alPasarPagina;
  std::function<void()> alAumentar;  ///< the user sees the pages larger or smaller from now on

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  double pixelesPorMm() const;
  /// Upper edge of a page in the whole strip of pages, pixels.
  double arribaDe(int pagina) const;
  void medir();

  const MaquetaMemoria* maqueta_ = nullptr;
  double aumento_ = 1;
  bool ancho_ = true;  ///< follows the width of the view
};

}  // namespace calvento
