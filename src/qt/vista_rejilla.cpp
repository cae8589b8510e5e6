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
#include <QTableWidget>

#include "qt/cadena.h"
#include "qt/colores.h"

namespace calvento {

namespace {

constexpr int twipsPorPixel = 15;
constexpr int margenCelda = 10;  ///< pixels a text needs beside itself

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

}  // namespace

VistaRejilla::VistaRejilla(Grid& control, QTableWidget& widget, Atender atender)
    : QObject(&widget), control_(control), widget_(widget), atender_(std::move(atender)) {
  widget.setEditTriggers(QAbstractItemView::NoEditTriggers);
  // where a click picks a row, its colour is the mark: a selection would lie over it
  widget.setSelectionMode(control.Click ? QAbstractItemView::NoSelection : QAbstractItemView::ContiguousSelection);
  widget.setTabKeyNavigation(false);
  widget.setWordWrap(false);
  widget.setCornerButtonEnabled(false);
  widget.verticalHeader()->hide();
  widget.verticalHeader()->setMinimumSectionSize(1);
  widget.verticalHeader()->setDefaultSectionSize(widget.fontMetrics().height() + 6);
  widget.horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  widget.horizontalHeader()->setHighlightSections(false);
  widget.horizontalHeader()->setSectionsClickable(true);
  widget.setContextMenuPolicy(Qt::CustomContextMenu);
  widget.installEventFilter(this);
  connect(&widget, &QTableWidget::cellClicked, this, [this](int fila, int) { pulsar(fila, false); });
  connect(&widget, &QTableWidget::cellDoubleClicked, this, [this](int fila, int) { pulsar(fila, true); });
  connect(widget.horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int) { pulsar(-1, false); });
  connect(widget.horizontalHeader(), &QHeaderView::sectionDoubleClicked, this, [this](int) { pulsar(-1, true); });
  connect(&widget, &QWidget::customContextMenuRequested, this, &VistaRejilla::abrirMenu);
}

int VistaRejilla::filasEnCabecera() const {
  const Rejilla& t = control_.tabla;
  return t.unirTitulos ? 0 : std::min(t.filasTitulo, t.filas());
}

void VistaRejilla::pulsar(int filaWidget, bool doble) {
  const int fila = filaWidget + filasEnCabecera();
  atender_([&] { doble ? control_.pulsarDoble(std::max(fila, 0)) : control_.pulsar(std::max(fila, 0)); });
}

void VistaRejilla::refrescar() {
  const Rejilla& t = control_.tabla;
  const int cabecera = filasEnCabecera();
  widget_.horizontalHeader()->setVisible(cabecera > 0);
  widget_.setColumnCount(t.columnas());
  widget_.setRowCount(std::max(t.filas() - cabecera, 0));
  for (int f = 0; f < t.filas(); ++f)
    for (int c = 0; c < t.columnas(); ++c) escribirCelda(f, c);
  if (t.unirTitulos) unirTitulos();
  ajustarAnchos();
}

void VistaRejilla::escribirCelda(int fila, int columna) {
  const Rejilla& t = control_.tabla;
  const int cabecera = filasEnCabecera();
  const int f = fila - cabecera;
  QTableWidgetItem* celda = f < 0 ? widget_.horizontalHeaderItem(columna) : widget_.item(f, columna);
  if (celda == nullptr) {
    celda = new QTableWidgetItem;
    f < 0 ? widget_.setHorizontalHeaderItem(columna, celda) : widget_.setItem(f, columna, celda);
  }
  const QString texto = f < 0 ? textoCabecera(columna) : aQt(t.texto(fila, columna));
  if (celda->text() != texto) celda->setText(texto);
  const auto alineacion = alineacionQt(esTitulo(fila) ? Alineacion::centro : t.alineacion(columna));
  if (celda->textAlignment() != static_cast<int>(alineacion)) celda->setTextAlignment(alineacion);
  if (f >= 0) pintarCelda(*celda, fila, columna);
}

/// Several heading rows are as many lines of the header.
QString VistaRejilla::textoCabecera(int columna) const {
  QStringList lineas;
  for (int f = 0; f < filasEnCabecera(); ++f) lineas << aQt(control_.tabla.texto(f, columna));
  return lineas.join(u'\n');
}

/// A coloured cell brings its own text colour; the others are left to the desktop.
void VistaRejilla::pintarCelda(QTableWidgetItem& celda, int fila, int columna) const {
  const QPalette& paleta = widget_.palette();
  const Color fondo = control_.tabla.fondo(fila, columna);
  QBrush suelo, letra;
  if (!fondo.esDelSistema()) {
    suelo = aQt(fondo, paleta);
    letra = textoPara(suelo.color());
  } else if (esTitulo(fila) || fondo == color::caraBoton) {
    suelo = paleta.button();
    letra = paleta.buttonText();
  }
  if (celda.background() != suelo) celda.setBackground(suelo);
  if (celda.foreground() != letra) celda.setForeground(letra);
}

void VistaRejilla::unirTitulos() {
  const Rejilla& t = control_.tabla;
  widget_.clearSpans();
  for (int c = 0; c < t.columnas();) {
    int fin = c + 1;
    while (fin < t.columnas() && t.texto(0, fin) == t.texto(0, c)) ++fin;
    if (fin - c > 1) widget_.setSpan(0, c, 1, fin - c);
    c = fin;
  }
}

/// The width that the table asks for, but never less than its texts need.
void VistaRejilla::ajustarAnchos() {
  const Rejilla& t = control_.tabla;
  const QFontMetrics letra = widget_.fontMetrics();
  const QFontMetrics letraCabecera = widget_.horizontalHeader()->fontMetrics();
  for (int c = 0; c < t.columnas(); ++c) {
    int ancho = t.anchoTwips(c) / twipsPorPixel;
    for (int f = 0; f < t.filas(); ++f) {
      if (f < widget_.rowCount() && widget_.columnSpan(f, c) > 1 && filasEnCabecera() == 0) continue;
      const QFontMetrics& m = f < filasEnCabecera() ? letraCabecera : letra;
      ancho = std::max(ancho, m.horizontalAdvance(aQt(t.texto(f, c))) + margenCelda);
    }
    if (widget_.columnWidth(c) != ancho) widget_.setColumnWidth(c, ancho);
  }
}

std::unique_ptr<QMimeData> VistaRejilla::copia() const {
  const Rejilla& t = control_.tabla;
  const int cabecera = filasEnCabecera();
  std::set<int> filas, columnas;
  std::set<std::pair<int, int>> elegidas;
  int enCuerpo = 0;
  for (const QModelIndex& i : widget_.selectionModel()->selectedIndexes()) {
    const int f = i.row() + cabecera;
    filas.insert(f);
    columnas.insert(i.column());
    elegidas.emplace(f, i.column());
    if (!esTitulo(f)) ++enCuerpo;
  }
  const bool entera = elegidas.empty() || enCuerpo == (t.filas() - t.filasTitulo) * t.columnas();
  if (entera) {
    int fin = t.filas();
    const auto vacia = [&](int f) {
      for (int c = 0; c < t.columnas(); ++c)
        if (!t.texto(f, c).empty()) return false;
      return true;
    };
    while (fin > t.filasTitulo && vacia(fin - 1)) --fin;
    filas.clear();
    for (int f = 0; f < fin; ++f) filas.insert(f);
    for (int c = 0; c < t.columnas(); ++c) columnas.insert(c);
  }
  QString texto, html = QStringLiteral("<meta charset=\"utf-8\"><table>");
  for (const int f : filas) {
    if (f != *filas.begin()) texto += u'\n';
    html += QStringLiteral("<tr>");
    const QString marca = esTitulo(f) ? QStringLiteral("th") : QStringLiteral("td");
    for (const int c : columnas) {
      const QString celda = entera || elegidas.contains({f, c}) ? aQt(t.texto(f, c)) : QString();
      if (c != *columnas.begin()) texto += u'\t';
      texto += celda;
      html += u'<' + marca + u'>' + celda.toHtmlEscaped() + QStringLiteral("</") + marca + u'>';
    }
    html += QStringLiteral("</tr>");
  }
  auto datos = std::make_unique<QMimeData>();
  datos->setText(texto);
  datos->setHtml(html + QStringLiteral("</table>"));
  return datos;
}

void VistaRejilla::copiarAlPortapapeles() const { QGuiApplication::clipboard()->setMimeData(copia().release()); }

bool VistaRejilla::eventFilter(QObject*, QEvent* evento) {
  const bool aviso = evento->type() == QEvent::ShortcutOverride;  // before a menu of the window takes the key
  if (!aviso && evento->type() != QEvent::KeyPress) return false;
  auto* tecla = static_cast<QKeyEvent*>(evento);
  if (tecla->matches(QKeySequence::Copy)) {
    if (!aviso) copiarAlPortapapeles();
    evento->accept();
    return true;
  }
  if (!aviso && tecla->key() == Qt::Key_Space && widget_.currentRow() >= 0) {  // a click for those without a mouse
    pulsar(widget_.currentRow(), false);
    return true;
  }
  return false;
}

void VistaRejilla::abrirMenu(const QPoint& donde) {
  QMenu menu(&widget_);
  const QAction* copiar = menu.addAction(QStringLiteral("Copiar"));
  if (widget_.selectionMode() != QAbstractItemView::NoSelection) menu.addAction(QStringLiteral("Seleccionar todo"));
  const QAction* elegida = menu.exec(widget_.viewport()->mapToGlobal(donde));
  if (elegida == nullptr) return;
  elegida == copiar ? copiarAlPortapapeles() : widget_.selectAll();
}

}  // namespace calvento
