#pragma once

#include <functional>
#include <memory>

#include <QObject>
#include <QString>

#include "plataforma/rejilla.h"

class QMimeData;
class QTableWidget;
class QTableWidgetItem;

namespace calvento {

/// Shows a table in a QTableWidget: texts, colours, widths, joined headings, and takes it to the clipboard. Plain
/// heading rows become the lines of the widget's header, which stays in sight; joined ones are the first rows of the
/// table.
class VistaRejilla : public QObject {
 public:
  /// `atender` runs what a click of the user does.
  using Atender = std::function<void(const std::function<void()>&)>;
  VistaRejilla(Grid& control, QTableWidget& widget, Atender atender);

  void refrescar();

  /// The chosen cells as tab-separated text and as HTML; the whole table where all of its cells, or none, are chosen.
  /// The whole table brings its headings; rows without any text at its end stay behind. The caller owns it.
  std::unique_ptr<QMimeData> copia() const;
  void copiarAlPortapapeles() const;

  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  int filasEnCabecera() const;
  bool esTitulo(int fila) const { return fila < control_.tabla.filasTitulo; }
  void escribirCelda(int fila, int columna);
  QString textoCabecera(int columna) const;
  void pintarCelda(QTableWidgetItem& celda, int fila, int columna) const;
  void unirTitulos();
  void ajustarAnchos();
  void pulsar(int filaWidget, bool doble);
  void abrirMenu(const QPoint& donde);

  Grid& control_;
  QTableWidget& widget_;
  Atender atender_;
};

}  // namespace calvento
