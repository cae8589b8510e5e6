#include "qt/modelo_rejilla.h"

#include <algorithm>
#include <utility>

#include <QBrush>
#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QSize>
#include <QStringList>
#include <QWidget>

#include "qt/cadena.h"
#include "qt/colores.h"

namespace calvento {

namespace {

QEvent::Type tipoAviso() {
  static const int tipo = QEvent::registerEventType();
  return static_cast<QEvent::Type>(tipo);
}

Qt::Alignment alineacionQt(Alineacion a) {
  switch (a) {
    case Alineacion::izquierda:
      return Qt::AlignLeft | Qt::AlignVCenter;
    case Alineacion::derecha:
      return Qt::AlignRight | Qt::AlignVCenter;
    case Alineacion::centro:
      break;
  }
  return Qt::AlignCenter;
}

/// Background and text of a cell. A coloured one brings its own text colour; the others are left to the desktop.
std::pair<QBrush, QBrush> colores(const Rejilla& t, int fila, int columna, const QPalette& paleta) {
  const Color fondo = t.fondo(fila, columna);
  if (!fondo.esDelSistema()) {
    const QColor suelo = aQt(fondo, paleta);
    return {suelo, textoPara(suelo)};
  }
  if (fila < t.filasTitulo() || fondo == color::caraBoton) return {paleta.button(), paleta.buttonText()};
  return {};
}

QVariant siHay(const QBrush& pincel) { return pincel == QBrush() ? QVariant() : QVariant(pincel); }

/// Whether the text of a heading runs over more than its own column.
bool estaUnida(const Rejilla& t, int fila, int columna) {
  const auto igualA = [&](int otra) {
    return otra >= 0 && otra < t.columnas() && t.texto(0, otra) == t.texto(0, columna);
  };
  return t.titulosUnidos() && fila == 0 && (igualA(columna - 1) || igualA(columna + 1));
}

}  // namespace

int filasEnCabecera(const Rejilla& t) { return t.titulosUnidos() ? 0 : std::min(t.filasTitulo(), t.filas()); }

ModeloRejilla::ModeloRejilla(Grid& control, QWidget& widget)
    : QAbstractTableModel(&widget), control_(control.vinculo()), widget_(widget) {
  control.tabla.alCambiar([yo = QPointer<ModeloRejilla>(this)](CambioRejilla que) {
    if (yo) yo->anotar(que);
  });
  medir();
}

void ModeloRejilla::medir() {
  const auto control = control_.lock();
  if (!control) return;
  enCabecera_ = filasEnCabecera(control->tabla);
  filas_ = control->tabla.filas() - enCabecera_;
  columnas_ = control->tabla.columnas();
}

void ModeloRejilla::anotar(CambioRejilla que) {
  estructura_ = estructura_ || que == CambioRejilla::estructura;
  celdas_ = celdas_ || que == CambioRejilla::celdas;
  if (!std::exchange(aviso_, true)) QCoreApplication::postEvent(this, new QEvent(tipoAviso()), Qt::HighEventPriority);
}

void ModeloRejilla::ponerseAlDia() {
  if (!std::exchange(aviso_, false)) return;
  QCoreApplication::removePostedEvents(this, tipoAviso());
  const bool celdas = std::exchange(celdas_, false);
  if (std::exchange(estructura_, false)) {
    beginResetModel();
    medir();
    endResetModel();
  } else if (filas_ > 0 && columnas_ > 0) {
    if (celdas) emit dataChanged(index(0, 0), index(filas_ - 1, columnas_ - 1));
    emit headerDataChanged(Qt::Horizontal, 0, columnas_ - 1);  // the widths, which a longer text moves as well
  }
}

bool ModeloRejilla::event(QEvent* evento) {
  if (evento->type() != tipoAviso()) return QAbstractTableModel::event(evento);
  ponerseAlDia();
  return true;
}

QVariant ModeloRejilla::data(const QModelIndex& indice, int papel) const {
  const auto control = control_.lock();
  if (!control) return {};
  const Rejilla& t = control->tabla;
  const int fila = indice.row() + enCabecera_;
  const int columna = indice.column();
  if (!indice.isValid() || fila >= t.filas() || columna >= t.columnas()) return {};
  switch (papel) {
    case Qt::DisplayRole:
      return aQt(t.texto(fila, columna));
    case Qt::TextAlignmentRole:
      return static_cast<int>(alineacionQt(fila < t.filasTitulo() ? Alineacion::centro : t.alineacion(columna)));
    case Qt::BackgroundRole:
      return siHay(colores(t, fila, columna, widget_.palette()).first);
    case Qt::ForegroundRole:
      return siHay(colores(t, fila, columna, widget_.palette()).second);
    case Qt::SizeHintRole:  // a joined heading asks no column of its own for room
      return estaUnida(t, fila, columna) ? QVariant(QSize(0, 0)) : QVariant();
    default:
      return {};
  }
}

QVariant ModeloRejilla::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
  const auto control = control_.lock();
  if (!control || orientacion != Qt::Horizontal || seccion >= control->tabla.columnas()) return {};
  if (papel == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignCenter);
  if (papel != Qt::DisplayRole) return {};
  QStringList lineas;
  for (int f = 0; f < std::min(enCabecera_, control->tabla.filas()); ++f)
    lineas << aQt(control->tabla.texto(f, seccion));
  return lineas.join(u'\n');
}

}  // namespace calvento
