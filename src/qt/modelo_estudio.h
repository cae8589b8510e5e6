#pragma once

#include <vector>

#include <QAbstractTableModel>

#include "estudio/estudio.h"

namespace calvento {

/// The table of a study: the inputs that vary, the results that a design is chosen by, and why a design has none.
class ModeloEstudio : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  /// Shows that study, or none; it must live until another one is shown.
  void mostrar(const Estudio* estudio);
  /// More rows of the study are there.
  void crecer();
  /// Its row in the study.
  std::size_t filaDe(int renglon) const { return orden_.at(static_cast<std::size_t>(renglon)); }
  int renglonDe(std::size_t fila) const;

  int rowCount(const QModelIndex& padre = {}) const override;
  int columnCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int papel) const override;
  QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
  void sort(int columna, Qt::SortOrder orden) override;

 private:
  QString texto(std::size_t fila, int columna) const;

  const Estudio* estudio_ = nullptr;
  std::vector<std::size_t> resultados_;  ///< shown columns, of columnas(ficha)
  std::vector<std::size_t> orden_;       ///< rows of the study
  int porColumna_ = -1;
  Qt::SortOrder como_ = Qt::AscendingOrder;
};

}  // namespace calvento
