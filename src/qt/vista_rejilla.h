#pragma once

#include <functional>
#include <memory>

#include <QTableView>

#include "plataforma/rejilla.h"

class QMimeData;

namespace calvento {

class ModeloRejilla;

/// The widget of a table: texts, colours, widths, joined headings; it takes the table to the clipboard. Plain heading
/// rows become the lines of the header, which stays in sight.
class VistaRejilla : public QTableView {
 public:
  /// Runs what a click of the user does.
  using Atender = std::function<void(const std::function<void()>&)>;
  explicit VistaRejilla(QWidget* padre = nullptr);

  /// Shows that control from now on. The widget may outlive it.
  void mostrar(Grid& control, Atender atender);

  /// The chosen cells as tab-separated text and as HTML; the whole table where all of its cells, or none, are chosen.
  /// The whole table brings its headings; rows without any text at its end stay behind. The caller owns it.
  std::unique_ptr<QMimeData> copia() const;
  void copiarAlPortapapeles() const;

  bool eventFilter(QObject* objeto, QEvent* evento) override;

 protected:
  bool event(QEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void focusInEvent(QFocusEvent* evento) override;
  void changeEvent(QEvent* evento) override;

 private:
  bool sePulsa() const;
  void acomodar();
  void unirTitulos();
  void ajustarAnchos();
  void pulsar(int fila, bool doble);
  void pulsarCabecera(bool doble);
  void abrirMenu(const QPoint& donde);

  std::weak_ptr<Grid> control_;
  ModeloRejilla* modelo_ = nullptr;
  Atender atender_;
};

}  // namespace calvento

/// The name by which Qt Designer files know the widget.
using VistaRejilla = calvento::VistaRejilla;
