#include "qt/modelo_estudio.h"

#include <algorithm>

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

#include "qt/cadena.h"

namespace calvento {

void ModeloEstudio::mostrar(const Estudio* estudio) {
  beginResetModel();
  estudio_ = estudio;
  resultados_.clear();
  orden_.clear();
  porColumna_ = -1;
  if (estudio_ != nullptr) {
    const auto& todas = columnas(estudio_->ficha());
    for (std::size_t c = 0; c < todas.size(); ++c)
      if (todas[c].principal) resultados_.push_back(c);
    for (std::size_t f = 0; f < estudio_->filas().size(); ++f) orden_.push_back(f);
  }
  endResetModel();
}

void ModeloEstudio::crecer() {
  const std::size_t son = estudio_ == nullptr ? 0 : estudio_->filas().size();
  if (son == orden_.size()) return;
  beginInsertRows({}, static_cast<int>(orden_.size()), static_cast<int>(son) - 1);
  while (orden_.size() < son) orden_.push_back(orden_.size());
  endInsertRows();
  if (porColumna_ >= 0) sort(porColumna_, como_);
}

int ModeloEstudio::renglonDe(std::size_t fila) const {
  return static_cast<int>(std::find(orden_.begin(), orden_.end(), fila) - orden_.begin());
}

int ModeloEstudio::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(orden_.size());
}

int ModeloEstudio::columnCount(const QModelIndex& padre) const {
  if (padre.isValid() || estudio_ == nullptr) return 0;
  return static_cast<int>(estudio_->variaciones().size() + resultados_.size()) + 1;
}

/// The inputs first, then the results; the last column says why there are none.
QString ModeloEstudio::texto(std::size_t fila, int columna) const {
  const Fila& f = estudio_->filas()[fila];
  const auto c = static_cast<std::size_t>(columna);
  const auto& varian = estudio_->variaciones();
  if (c < varian.size()) return aQt(varian[c].entrada->leido(f.puestos[c]));
  if (c == varian.size() + resultados_.size()) return f.calculado ? QString() : aQt(f.motivo);
  const std::size_t cual = resultados_[c - varian.size()];
  return aQt(textoDe(columnas(estudio_->ficha())[cual], f.celdas[cual]));
}

QVariant ModeloEstudio::data(const QModelIndex& indice, int papel) const {
  if (estudio_ == nullptr || !indice.isValid()) return {};
  const std::size_t fila = filaDe(indice.row());
  const Fila& f = estudio_->filas()[fila];
  switch (papel) {
    case Qt::DisplayRole:
      return texto(fila, indice.column());
    case Qt::TextAlignmentRole:
      return QVariant(indice.column() + 1 == columnCount() ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
    case Qt::ForegroundRole:
      return f.calculado ? QVariant() : QBrush(QGuiApplication::palette().color(QPalette::Disabled, QPalette::Text));
    case Qt::ToolTipRole:
      return f.calculado ? QVariant() : aQt(f.motivo);
    default:
      return {};
  }
}

QVariant ModeloEstudio::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
  if (papel != Qt::DisplayRole || estudio_ == nullptr) return {};
  if (orientacion == Qt::Vertical) return static_cast<int>(filaDe(seccion)) + 1;
  const auto c = static_cast<std::size_t>(seccion);
  const auto& varian = estudio_->variaciones();
  if (c >= varian.size() + resultados_.size()) return QStringLiteral("Por qué no");
  return aQt(c < varian.size() ? varian[c].entrada->titulo()
                               : columnas(estudio_->ficha())[resultados_[c - varian.size()]].titulo())
      .replace(QStringLiteral(": "), QStringLiteral(":\n"))
      .replace(QStringLiteral(" ("), QStringLiteral("\n("));
}

void ModeloEstudio::sort(int columna, Qt::SortOrder orden) {
  porColumna_ = columna;
  como_ = orden;
  if (estudio_ == nullptr || columna < 0 || columna + 1 >= columnCount()) return;
  const auto c = static_cast<std::size_t>(columna), varian = estudio_->variaciones().size();
  emit layoutAboutToBeChanged();
  const QModelIndexList antes = persistentIndexList();
  std::vector<std::size_t> filas;
  for (const QModelIndex& i : antes) filas.push_back(filaDe(i.row()));
  orden_ = ordenadas(*estudio_, c < varian ? c : varian + resultados_[c - varian], orden == Qt::AscendingOrder);
  QModelIndexList despues;
  for (qsizetype i = 0; i < antes.size(); ++i)
    despues.push_back(index(renglonDe(filas[static_cast<std::size_t>(i)]), antes[i].column()));
  changePersistentIndexList(antes, despues);
  emit layoutChanged();
}

}  // namespace calvento
