#include "qt/paginacion.h"

#include <algorithm>

#include <QAbstractTextDocumentLayout>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>

namespace calvento {

int paginaDeBloque(const QTextDocument& doc, const QTextBlock& b) {
  const double alto = doc.pageSize().height();
  const QRectF r = doc.documentLayout()->blockBoundingRect(b);
  // the first line, which may have gone to the next page without its block
  const double y = b.layout()->lineCount() > 0 ? r.top() + b.layout()->lineAt(0).y() : r.top();
  // a line sent to the next page may stand a rounded unit above it
  return static_cast<int>((y + 2) / alto);
}

namespace {

bool esTitulo(const QTextBlock& b) { return b.blockFormat().headingLevel() > 0; }

/// What must stand on the page of its heading: the text or picture itself, of a table its first rows, and all of a
/// short one.
QTextBlock loQueAcompana(const QTextDocument& doc, const QTextBlock& texto) {
  const QTextTable* tabla = QTextCursor(texto).currentTable();
  if (tabla == nullptr || tabla->cellAt(0, 0).firstCursorPosition().block() != texto) return texto;
  const auto fila = [&](int f) { return tabla->cellAt(f, 0).firstCursorPosition().block(); };
  const int ultima = tabla->rows() - 1;
  const double alto = doc.documentLayout()->frameBoundingRect(const_cast<QTextTable*>(tabla)).height();
  const bool corta = alto < 0.4 * doc.pageSize().height();
  return fila(corta ? ultima : std::min(ultima, tabla->format().headerRowCount() + 2));
}

/// Sends the first heading that would stand at the foot of a page without what it is the heading of to the next page.
bool pasarTitulo(QTextDocument& doc) {
  for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
    if (!esTitulo(b) || (b.previous().isValid() && esTitulo(b.previous()) &&
                         paginaDeBloque(doc, b.previous()) == paginaDeBloque(doc, b)))
      continue;
    // what it is the heading of, past further headings
    QTextBlock texto = b.next();
    while (texto.isValid() && esTitulo(texto)) texto = texto.next();
    if (!texto.isValid() || paginaDeBloque(doc, loQueAcompana(doc, texto)) == paginaDeBloque(doc, b)) continue;
    QTextBlockFormat formato = b.blockFormat();
    if (formato.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore) continue;
    formato.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(b).setBlockFormat(formato);
    return true;
  }
  return false;
}

/// The same for the first row of a table that would be torn between two pages. Tables have no page break within
/// themselves: the row is pushed down by what is left of the page.
bool pasarFila(QTextDocument& doc, const QTextFrame& marco) {
  for (QTextFrame* hijo : marco.childFrames()) {
    auto* tabla = qobject_cast<QTextTable*>(hijo);
    if (tabla == nullptr) continue;
    for (int f = tabla->format().headerRowCount(); f < tabla->rows(); ++f) {
      const int pagina = paginaDeBloque(doc, tabla->cellAt(f, 0).firstCursorPosition().block());
      double arribaDeFila = 1e9;
      bool rota = false;
      for (int c = 0; c < tabla->columns(); ++c) {
        const QTextBlock ultimo = tabla->cellAt(f, c).lastCursorPosition().block();
        const QRectF r = doc.documentLayout()->blockBoundingRect(ultimo);
        rota = rota || static_cast<int>((r.bottom() - 2) / doc.pageSize().height()) > pagina;
        arribaDeFila = std::min(arribaDeFila, r.top());
      }
      QTextTableCellFormat primera = tabla->cellAt(f, 0).format().toTableCellFormat();
      if (!rota || primera.topPadding() > 0) continue;
      for (int c = 0; c < tabla->columns(); ++c) {
        QTextTableCell celda = tabla->cellAt(f, c);
        QTextTableCellFormat formato = celda.format().toTableCellFormat();
        formato.setTopPadding((pagina + 1) * doc.pageSize().height() - arribaDeFila);
        celda.setFormat(formato);
      }
      return true;
    }
  }
  return false;
}

}  // namespace

void repartirEnPaginas(QTextDocument& doc) {
  constexpr int bastantes = 200;  // each round moves one heading or row for good
  for (int ronda = 0; ronda < bastantes && (pasarTitulo(doc) || pasarFila(doc, *doc.rootFrame())); ++ronda)
    // laid out anew as a whole: a part of it alone loses what stands behind tables
    doc.markContentsDirty(0, doc.characterCount());
}

}  // namespace calvento
