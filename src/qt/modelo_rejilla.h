#pragma once

#include <memory>

#include <QAbstractTableModel>
#include <QString>

#include "plataforma/rejilla.h"

class QWidget;

namespace calvento {

/// A table as Qt's views read it. Plain heading rows are the lines of the header; joined ones are the first rows. It is
/// told of each write and gathers them: once an event, and so also while a box stands, its views hear of all. Without
/// the control, which may go first, it keeps its size and has no texts.
class ModeloRejilla : public QAbstractTableModel {
 public:
  /// The widget is the one that shows the table: colours left to the desktop are those of its palette.
  ModeloRejilla(Grid& control, QWidget& widget);

  /// Tells the views now what they would hear in the next event.
  void ponerseAlDia();

  int rowCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : filas_; }
  int columnCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : columnas_; }
  QVariant data(const QModelIndex& indice, int papel = Qt::DisplayRole) const override;
  QVariant headerData(int seccion, Qt::Orientation orientacion, int papel = Qt::DisplayRole) const override;

  bool event(QEvent* evento) override;

 private:
  void medir();
  void anotar(CambioRejilla que);

  std::weak_ptr<Grid> control_;
  const QWidget& widget_;
  // as the views know it: the table itself may have another size until they are told
  int filas_ = 0;
  int columnas_ = 0;
  int enCabecera_ = 0;
  bool estructura_ = false;  ///< waits to be told
  bool celdas_ = false;      ///< waits to be told
  bool aviso_ = false;       ///< the event that tells is on its way
};

/// Rows that are lines of the header and none of the body.
int filasEnCabecera(const Rejilla& tabla);

}  // namespace calvento
