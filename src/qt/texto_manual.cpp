#include "qt/texto_manual.h"

#include <algorithm>
#include <stdexcept>

#include <QImage>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

namespace calvento {

namespace {

const QColor fondo(0xf1, 0xf4, 0xf7);

void vestirTitulos(QTextDocument& documento, const FormaManual& forma) {
  static constexpr double tamanos[] = {0, 2, 1.5, 1.2, 1.05};  // beside the text's
  const double punto = puntoManual * forma.tamano / 10;
  conTitulos(documento, 4, [&](QTextCursor& c, int nivel) {
    QTextCharFormat f;
    f.setFontFamilies({forma.letra});
    f.setFontPointSize(forma.tamano * tamanos[nivel]);
    f.setFontWeight(QFont::Bold);
    f.setForeground(azulManual);
    c.mergeCharFormat(f);
    QTextBlockFormat b;
    b.setTopMargin((nivel <= 2 ? 18 : 12) * punto);
    b.setBottomMargin(5 * punto);
    c.mergeBlockFormat(b);
    c.setPosition(c.anchor());
    c.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    QTextCharFormat nombre;
    nombre.setAnchor(true);
    nombre.setAnchorNames({anclaManual(c.block().text())});
    c.mergeCharFormat(nombre);
  });
}

QImage imagenDe(const QUrl& direccion) {
  return QImage(direccion.scheme() == QLatin1String("qrc") ? u':' + direccion.path() : direccion.toLocalFile());
}

void vestirImagen(QTextCursor& t, const FormaManual& forma) {
  QTextImageFormat imagen = t.charFormat().toImageFormat();
  const QImage pixeles = imagenDe(t.document()->baseUrl().resolved(QUrl(imagen.name())));
  if (pixeles.isNull()) throw std::runtime_error("falta la imagen " + imagen.name().toStdString());
  imagen.setWidth(std::min(forma.ancho, pixeles.width() * 0.06 * forma.tamano * puntoManual));
  imagen.setHeight(imagen.width() * pixeles.height() / pixeles.width());
  t.setCharFormat(imagen);
  QTextBlockFormat centro;
  centro.setAlignment(Qt::AlignHCenter);
  centro.setLineHeight(100, QTextBlockFormat::ProportionalHeight);
  t.mergeBlockFormat(centro);
}

void vestirBloque(const QTextBlock& b, QTextDocument& documento, const FormaManual& forma) {
  QTextCursor c(b);
  c.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  const QTextBlockFormat antes = b.blockFormat();
  const bool codigo = antes.hasProperty(QTextFormat::BlockCodeFence) ||
                      antes.hasProperty(QTextFormat::BlockCodeLanguage) ||
                      (antes.nonBreakableLines() && !c.currentTable());
  QTextBlockFormat bloque;
  if (codigo || antes.intProperty(QTextFormat::BlockQuoteLevel) > 0) bloque.setBackground(fondo);
  if (!c.currentTable() && antes.headingLevel() == 0) bloque.setLineHeight(118, QTextBlockFormat::ProportionalHeight);
  c.mergeBlockFormat(bloque);
  for (auto it = b.begin(); !it.atEnd(); ++it) {
    const QTextFragment trozo = it.fragment();
    QTextCharFormat f = trozo.charFormat();
    QTextCursor t(&documento);
    t.setPosition(trozo.position());
    t.setPosition(trozo.position() + trozo.length(), QTextCursor::KeepAnchor);
    if (f.isImageFormat()) {
      vestirImagen(t, forma);
      continue;
    }
    if (f.fontFixedPitch() || codigo) {
      f.setFontFamilies({QStringLiteral("DejaVu Sans Mono")});
      f.setFontPointSize(forma.tamano * 0.86);
    }
    if (!f.anchorHref().isEmpty()) {
      f.setForeground(azulManual);
      f.setFontUnderline(false);
    }
    t.setCharFormat(f);
  }
}

void vestirTabla(QTextTable& tabla, const FormaManual& forma) {
  const double punto = puntoManual * forma.tamano / 10;
  QTextTableFormat f = tabla.format();
  f.setBorder(0);
  f.setBorderCollapse(true);
  f.setCellSpacing(0);
  f.setCellPadding(3.5 * punto);
  f.setHeaderRowCount(1);
  f.setTopMargin(4 * punto);
  f.setBottomMargin(8 * punto);
  // the whole width would be passed by the rounding of its columns, and the window would scroll sideways
  f.setWidth(QTextLength(QTextLength::PercentageLength, 99.5));
  tabla.setFormat(f);
  for (int celdas = tabla.rows() * tabla.columns(), i = 0; i < celdas; ++i) {
    QTextTableCell celda = tabla.cellAt(i / tabla.columns(), i % tabla.columns());
    QTextTableCellFormat suya = celda.format().toTableCellFormat();
    suya.setBottomBorder(1);
    suya.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    suya.setBottomBorderBrush(rayaManual);
    if (celda.row() == 0) suya.setBackground(fondo);
    celda.setFormat(suya);
  }
}

}  // namespace

QString anclaManual(const QString& titulo) {
  static const QRegularExpression signos(QStringLiteral("[^\\w -]"), QRegularExpression::UseUnicodePropertiesOption);
  return titulo.toLower().remove(signos).replace(u' ', u'-');
}

void conTitulos(QTextDocument& documento, int nivel, const std::function<void(QTextCursor&, int)>& hacer) {
  for (QTextBlock b = documento.begin(); b.isValid(); b = b.next()) {
    const int suyo = b.blockFormat().headingLevel();
    if (suyo == 0 || suyo > nivel) continue;
    QTextCursor c(b);
    c.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    hacer(c, suyo);
  }
}

void escribirManual(QTextDocument& documento, const QString& markdown, const QUrl& base, const FormaManual& forma) {
  QFont letra(forma.letra);
  letra.setPointSizeF(forma.tamano);
  documento.setDefaultFont(letra);
  documento.setBaseUrl(base);
  documento.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
  QTextCursor todo(&documento);
  todo.beginEditBlock();  // a text that is shown is laid out once, not at each change
  for (QTextBlock b = documento.begin(); b.isValid(); b = b.next()) vestirBloque(b, documento, forma);
  vestirTitulos(documento, forma);  // last: a title stays one letter and size where it names a program
  for (QTextFrame* marco : documento.rootFrame()->childFrames())
    if (auto* tabla = qobject_cast<QTextTable*>(marco)) vestirTabla(*tabla, forma);
  todo.endEditBlock();
}

}  // namespace calvento
