#include "qt/vista_rejilla.h"

#include <algorithm>
#include <set>
#include <utility>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>

#include "qt/cadena.h"
#include "qt/modelo_rejilla.h"

namespace calvento {

namespace {

constexpr int twipsPorPixel = 15;
constexpr int margenFila = 6;  ///< pixels a row is higher than its text

/// Cells in their colours alone: where a click picks a row its colour is the mark, and nothing tints it. The cell that
/// the keyboard is on has a dotted line around it.
class CeldaLisa : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* pintor, const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override {
    QStyleOptionViewItem lisa = opcion;
    lisa.state &= ~(QStyle::State_Selected | QStyle::State_MouseOver | QStyle::State_HasFocus);
    QStyledItemDelegate::paint(pintor, lisa, indice);
    if (!opcion.state.testFlag(QStyle::State_HasFocus) || !opcion.state.testFlag(QStyle::State_KeyboardFocusChange))
      return;
    initStyleOption(&lisa, indice);
    pintor->setPen(QPen(lisa.palette.color(QPalette::Text), 1, Qt::DotLine));
    pintor->drawRect(opcion.rect.adjusted(0, 0, -1, -1));
  }
};

/// The rows without those at the end that have no text.
int filasConTexto(const Rejilla& t) {
  const auto vacia = [&](int f) {
    for (int c = 0; c < t.columnas(); ++c)
      if (!t.texto(f, c).empty()) return false;
    return true;
  };
  int fin = t.filas();
  while (fin > t.filasTitulo() && vacia(fin - 1)) --fin;
  return fin;
}

}  // namespace

VistaRejilla::VistaRejilla(QWidget* padre) : QTableView(padre) {
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->viewport()->installEventFilter(this);
  setContextMenuPolicy(Qt::CustomContextMenu);
  connect(this, &QTableView::clicked, this, [this](const QModelIndex& i) { pulsar(i.row(), false); });
  connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& i) { pulsar(i.row(), true); });
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this] { pulsarCabecera(false); });
  connect(horizontalHeader(), &QHeaderView::sectionDoubleClicked, this, [this] { pulsarCabecera(true); });
  connect(this, &QWidget::customContextMenuRequested, this, &VistaRejilla::abrirMenu);
}

void VistaRejilla::mostrar(Grid& control, Atender atender) {
  control_ = control.vinculo();
  atender_ = std::move(atender);
  setSelectionMode(sePulsa() ? QAbstractItemView::NoSelection : QAbstractItemView::ContiguousSelection);
  if (sePulsa()) {
    setSelectionBehavior(QAbstractItemView::SelectRows);  // else a click on the header makes a cell the current one
    setItemDelegate(new CeldaLisa(this));
  }
  delete modelo_;
  modelo_ = new ModeloRejilla(control, *this);
  setModel(modelo_);
  connect(modelo_, &QAbstractItemModel::modelReset, this, &VistaRejilla::acomodar);
  connect(modelo_, &QAbstractItemModel::headerDataChanged, this, &VistaRejilla::ajustarAnchos);
  acomodar();
}

bool VistaRejilla::sePulsa() const {
  const auto control = control_.lock();
  return control && control->Click;
}

void VistaRejilla::acomodar() {
  const auto control = control_.lock();
  if (!control) return;
  horizontalHeader()->setVisible(filasEnCabecera(control->tabla) > 0);
  unirTitulos();
  ajustarAnchos();
  if (!control->Click) return;
  // a table to choose from shows all of its rows
  const QHeaderView& titulos = *horizontalHeader();
  setMinimumHeight((titulos.isHidden() ? 0 : titulos.sizeHint().height()) + verticalHeader()->length() +
                   2 * frameWidth());
}

void VistaRejilla::unirTitulos() {
  clearSpans();
  const Rejilla& t = control_.lock()->tabla;
  for (int c = 0; t.titulosUnidos() && c < t.columnas();) {
    int fin = c + 1;
    while (fin < t.columnas() && t.texto(0, fin) == t.texto(0, c)) ++fin;
    if (fin - c > 1) setSpan(0, c, 1, fin - c);
    c = fin;
  }
}

/// The width that the table asks for, but never less than its texts need.
void VistaRejilla::ajustarAnchos() {
  const auto control = control_.lock();
  if (!control) return;
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + margenFila);
  for (int c = 0; c < std::min(modelo_->columnCount(), control->tabla.columnas()); ++c) {
    const int ancho = std::max({control->tabla.anchoTwips(c) / twipsPorPixel, sizeHintForColumn(c),
                                horizontalHeader()->isHidden() ? 0 : horizontalHeader()->sectionSizeHint(c)});
    if (columnWidth(c) != ancho) setColumnWidth(c, ancho);
  }
}

void VistaRejilla::pulsar(int fila, bool doble) {
  const auto control = control_.lock();
  if (!control) return;
  const int enTabla = fila + filasEnCabecera(control->tabla);
  atender_([&] { doble ? control->pulsarDoble(enTabla) : control->pulsar(enTabla); });
}

/// The header is row 0. It takes the mark of the keyboard away too, so that Space does not bring back what was chosen.
void VistaRejilla::pulsarCabecera(bool doble) {
  const auto control = control_.lock();
  if (!control) return;
  if (sePulsa()) selectionModel()->clearCurrentIndex();
  atender_([&] { doble ? control->pulsarDoble(0) : control->pulsar(0); });
}

std::unique_ptr<QMimeData> VistaRejilla::copia() const {
  auto datos = std::make_unique<QMimeData>();
  const auto control = control_.lock();
  if (!control) return datos;
  const Rejilla& t = control->tabla;
  const int cabecera = filasEnCabecera(t);
  const auto esTitulo = [&](int f) { return f < t.filasTitulo(); };
  std::set<int> filas, columnas;
  int enCuerpo = 0;
  for (const QModelIndex& i : selectionModel()->selectedIndexes()) {
    filas.insert(i.row() + cabecera);
    columnas.insert(i.column());
    if (!esTitulo(i.row() + cabecera)) ++enCuerpo;
  }
  const bool entera = filas.empty() || enCuerpo == (t.filas() - t.filasTitulo()) * t.columnas();
  if (entera) {
    filas.clear();
    for (int f = 0; f < filasConTexto(t); ++f) filas.insert(f);
    for (int c = 0; c < t.columnas(); ++c) columnas.insert(c);
  }
  QString texto, html = QStringLiteral("<meta charset=\"utf-8\"><table>");
  for (const int f : filas) {
    if (f != *filas.begin()) texto += u'\n';
    html += QStringLiteral("<tr>");
    const QString marca = esTitulo(f) ? QStringLiteral("th") : QStringLiteral("td");
    for (const int c : columnas) {
      const bool va = entera || selectionModel()->isSelected(modelo_->index(f - cabecera, c));
      const QString celda = va ? aQt(t.texto(f, c)) : QString();
      if (c != *columnas.begin()) texto += u'\t';
      texto += celda;
      html += u'<' + marca + u'>' + celda.toHtmlEscaped() + QStringLiteral("</") + marca + u'>';
    }
    html += QStringLiteral("</tr>");
  }
  datos->setText(texto);
  datos->setHtml(html + QStringLiteral("</table>"));
  return datos;
}

void VistaRejilla::copiarAlPortapapeles() const { QGuiApplication::clipboard()->setMimeData(copia().release()); }

bool VistaRejilla::event(QEvent* evento) {
  // before a menu of the window takes the key
  if (evento->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Copy)) {
    evento->accept();
    return true;
  }
  return QTableView::event(evento);
}

void VistaRejilla::keyPressEvent(QKeyEvent* evento) {
  if (evento->matches(QKeySequence::Copy))
    copiarAlPortapapeles();
  else if (evento->key() == Qt::Key_Space && sePulsa()) {  // a click for those without a mouse
    if (currentIndex().isValid()) pulsar(currentIndex().row(), false);
  } else
    QTableView::keyPressEvent(evento);
}

/// Who comes by the tab key finds the first cell marked; a click on the header or a box that goes away marks none.
void VistaRejilla::focusInEvent(QFocusEvent* evento) {
  const bool marcada = currentIndex().isValid();
  QTableView::focusInEvent(evento);
  const bool porTeclado = evento->reason() == Qt::TabFocusReason || evento->reason() == Qt::BacktabFocusReason;
  if (sePulsa() && !marcada && !porTeclado) selectionModel()->clearCurrentIndex();
}

void VistaRejilla::changeEvent(QEvent* evento) {
  QTableView::changeEvent(evento);
  if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange) acomodar();
}

// A picture of the window, on paper or for the clipboard, shows a change that was made in the same event.
void VistaRejilla::paintEvent(QPaintEvent* evento) {
  if (modelo_ != nullptr) modelo_->ponerseAlDia();
  QTableView::paintEvent(evento);
}

bool VistaRejilla::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::Paint && objeto == horizontalHeader()->viewport() && modelo_ != nullptr)
    modelo_->ponerseAlDia();
  return QTableView::eventFilter(objeto, evento);
}

void VistaRejilla::abrirMenu(const QPoint& donde) {
  QMenu menu(this);
  const QAction* copiar = menu.addAction(QStringLiteral("Copiar"));
  if (!sePulsa()) menu.addAction(QStringLiteral("Seleccionar todo"));
  const QAction* elegida = menu.exec(viewport()->mapToGlobal(donde));
  if (elegida == nullptr) return;
  elegida == copiar ? copiarAlPortapapeles() : selectAll();
}

}  // namespace calvento
