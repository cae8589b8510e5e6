// What is made when the program is built: icons in the sizes of desktops, the manual as PDF and as HTML.
//
//   calvento_hacer iconos CARPETA DIBUJO.pic DESTINO     CARPETA/<n>x<n>/DESTINO.png for each size n
//   calvento_hacer manual MANUAL.md DESTINO.pdf DESTINO.html VERSION

#include <algorithm>
#include <functional>
#include <vector>

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

#include "qt/trazos_qt.h"

namespace {

[[noreturn]] void terminar(const QString& motivo) {
  qCritical("calvento_hacer: %s", qPrintable(motivo));
  std::exit(1);
}

void hacerIconos(const QString& carpeta, const QString& dibujo, const QString& destino) {
  const calvento::TrazosQt trazos(dibujo);
  if (!trazos.valido()) terminar("no es un dibujo: " + dibujo);
  for (const int lado : {16, 22, 24, 32, 48, 64, 128, 256}) {
    QImage imagen(lado, lado, QImage::Format_ARGB32_Premultiplied);
    imagen.fill(Qt::transparent);
    QPainter pintor(&imagen);
    trazos.pintar(pintor, QRectF(imagen.rect()));
    pintor.end();
    const QString archivo = QString("%1/%2x%2/%3.png").arg(carpeta).arg(lado).arg(destino);
    if (!QDir().mkpath(QFileInfo(archivo).path()) || !imagen.save(archivo)) terminar("no se pudo escribir " + archivo);
  }
}

// ---------------------------------------------------------------------------------------------------------------------

const QString letra = QStringLiteral("Liberation Sans");
const QString letraFija = QStringLiteral("DejaVu Sans Mono");
const QColor azul(0x1f, 0x4e, 0x79);
const QColor gris(0x60, 0x60, 0x60);
const QColor fondo(0xf1, 0xf4, 0xf7);
const QColor raya(0xb8, 0xc4, 0xd0);

/// The name that links to a heading use: lower case, signs dropped, blanks as hyphens.
QString ancla(const QString& titulo) {
  static const QRegularExpression signos("[^\\w -]", QRegularExpression::UseUnicodePropertiesOption);
  return titulo.toLower().remove(signos).replace(' ', '-');
}

/// Every block of the document that is a heading of this level or a higher one.
void conTitulos(QTextDocument& documento, int nivel, const std::function<void(QTextCursor&, int)>& hacer) {
  for (QTextBlock b = documento.begin(); b.isValid(); b = b.next()) {
    const int suyo = b.blockFormat().headingLevel();
    if (suyo == 0 || suyo > nivel) continue;
    QTextCursor c(b);
    c.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    hacer(c, suyo);
  }
}

/// Lengths of formats are pixels of 96 to the inch, whatever the device of the document is.
constexpr double punto = 96.0 / 72;

/// The looks that a Markdown text lacks; pictures are no wider than `ancho`.
void vestir(QTextDocument& documento, double ancho) {
  static constexpr double tamanos[] = {0, 20, 15, 12, 10.5};
  conTitulos(documento, 4, [&](QTextCursor& c, int nivel) {
    QTextCharFormat f;
    f.setFontFamilies({letra});
    f.setFontPointSize(tamanos[nivel]);
    f.setFontWeight(QFont::Bold);
    f.setForeground(azul);
    c.mergeCharFormat(f);
    QTextBlockFormat b;
    b.setTopMargin((nivel <= 2 ? 18 : 12) * punto);
    b.setBottomMargin(5 * punto);
    c.mergeBlockFormat(b);
    c.setPosition(c.anchor());
    c.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    QTextCharFormat nombre;
    nombre.setAnchor(true);
    nombre.setAnchorNames({ancla(c.block().text())});
    c.mergeCharFormat(nombre);
  });
  for (QTextBlock b = documento.begin(); b.isValid(); b = b.next()) {
    QTextCursor c(b);
    c.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    const bool codigo = b.blockFormat().hasProperty(QTextFormat::BlockCodeFence) ||
                        b.blockFormat().hasProperty(QTextFormat::BlockCodeLanguage) ||
                        (b.blockFormat().nonBreakableLines() && !c.currentTable());
    QTextBlockFormat bloque;
    if (codigo || b.blockFormat().intProperty(QTextFormat::BlockQuoteLevel) > 0) bloque.setBackground(fondo);
    if (!c.currentTable() && b.blockFormat().headingLevel() == 0)
      bloque.setLineHeight(118, QTextBlockFormat::ProportionalHeight);
    c.mergeBlockFormat(bloque);
    for (auto it = b.begin(); !it.atEnd(); ++it) {
      const QTextFragment trozo = it.fragment();
      QTextCharFormat f = trozo.charFormat();
      QTextCursor t(&documento);
      t.setPosition(trozo.position());
      t.setPosition(trozo.position() + trozo.length(), QTextCursor::KeepAnchor);
      if (f.isImageFormat()) {
        QTextImageFormat imagen = f.toImageFormat();
        const QImage pixeles(documento.baseUrl().resolved(QUrl(imagen.name())).toLocalFile());
        if (pixeles.isNull()) terminar("falta la imagen " + imagen.name());
        imagen.setWidth(std::min(ancho, pixeles.width() * 0.6 * punto));
        imagen.setHeight(imagen.width() * pixeles.height() / pixeles.width());
        t.setCharFormat(imagen);
        QTextBlockFormat centro;
        centro.setAlignment(Qt::AlignHCenter);
        centro.setLineHeight(100, QTextBlockFormat::ProportionalHeight);
        t.mergeBlockFormat(centro);
        continue;
      }
      if (f.fontFixedPitch() || codigo) {
        f.setFontFamilies({letraFija});
        f.setFontPointSize(documento.defaultFont().pointSizeF() * 0.86);
      }
      if (f.isAnchor() && !f.anchorHref().isEmpty()) {
        f.setForeground(azul);
        f.setFontUnderline(false);
      }
      t.setCharFormat(f);
    }
  }
  for (QTextFrame* marco : documento.rootFrame()->childFrames()) {
    auto* tabla = qobject_cast<QTextTable*>(marco);
    if (tabla == nullptr) continue;
    QTextTableFormat f = tabla->format();
    f.setBorder(0);
    f.setBorderCollapse(true);
    f.setCellSpacing(0);
    f.setCellPadding(3.5 * punto);
    f.setHeaderRowCount(1);
    f.setTopMargin(4 * punto);
    f.setBottomMargin(8 * punto);
    f.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    tabla->setFormat(f);
    for (int celdas = tabla->rows() * tabla->columns(), i = 0; i < celdas; ++i) {
      QTextTableCell celda = tabla->cellAt(i / tabla->columns(), i % tabla->columns());
      QTextTableCellFormat suya = celda.format().toTableCellFormat();
      suya.setBottomBorder(1);
      suya.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
      suya.setBottomBorderBrush(raya);
      if (celda.row() == 0) suya.setBackground(fondo);
      celda.setFormat(suya);
    }
  }
}

/// The pages of a document on a painter, from page `desde` of it on.
class Hojas {
 public:
  Hojas(QPdfWriter& pdf, QString version) : pdf_(pdf), version_(std::move(version)), pintor_(&pdf) {
    punto_ = pdf.resolution() / 72.0;
    hoja_ = QRectF(0, 0, pdf.width(), pdf.height());
  }
  double punto() const { return punto_; }
  QSizeF texto() const { return {hoja_.width(), hoja_.height() - 30 * punto_}; }
  QPainter& pintor() { return pintor_; }
  const QRectF& hoja() const { return hoja_; }
  int numero() const { return numero_; }

  void pasar() {
    pdf_.newPage();
    ++numero_;
    pintor_.setFont(QFont(letra, 8));
    pintor_.setPen(gris);
    pintor_.drawText(hoja_, Qt::AlignBottom | Qt::AlignHCenter, QString::number(numero_));
    pintor_.drawText(hoja_, Qt::AlignBottom | Qt::AlignLeft, "Manual del usuario");
    pintor_.drawText(hoja_, Qt::AlignBottom | Qt::AlignRight, "Calvento " + version_);
  }
  void pintar(QTextDocument& documento) {
    for (int i = 0; i < documento.pageCount(); ++i) {
      pasar();
      pintor_.save();
      pintor_.translate(0, -i * texto().height());
      QAbstractTextDocumentLayout::PaintContext contexto;
      contexto.clip = QRectF(0, i * texto().height(), texto().width(), texto().height());
      contexto.palette.setColor(QPalette::Text, Qt::black);
      pintor_.setClipRect(contexto.clip);
      documento.documentLayout()->draw(&pintor_, contexto);
      pintor_.restore();
    }
  }

 private:
  QPdfWriter& pdf_;
  QString version_;
  QPainter pintor_;
  QRectF hoja_;
  double punto_ = 1;
  int numero_ = 1;
};

void preparar(QTextDocument& documento, const QString& markdown, const QString& carpeta, double tamano) {
  QFont f(letra);
  f.setPointSizeF(tamano);
  documento.setDefaultFont(f);
  documento.setDocumentMargin(0);
  documento.setBaseUrl(QUrl::fromLocalFile(carpeta + "/"));
  documento.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
}

/// No heading stands alone at the foot of a page.
void cuidarPies(QTextDocument& documento, double minimo, double alto) {
  const auto* orden = documento.documentLayout();
  orden->documentSize();
  conTitulos(documento, 4, [&](QTextCursor& c, int) {
    const QRectF r = orden->blockBoundingRect(c.block());
    const double fin = alto * (1 + std::floor(r.top() / alto));
    // what follows may begin on this page and have its first line, a picture, on the next one
    const QTextBlock b = c.block().next();
    const double primera = b.layout()->lineCount() > 0 ? b.layout()->lineAt(0).rect().bottom() : 0;
    const double sigue = orden->blockBoundingRect(b).top() + primera;
    if (r.bottom() + minimo < fin && sigue < fin) return;
    QTextBlockFormat salto;
    salto.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    c.mergeBlockFormat(salto);
    orden->documentSize();  // the rest is laid out anew
  });
}

void portada(Hojas& hojas, const QString& titulo, const QString& version) {
  QPainter& p = hojas.pintor();
  const double pt = hojas.punto();
  const calvento::TrazosQt emblema(QStringLiteral(CALVENTO_EMBLEMA));
  const double lado = 130 * pt;
  emblema.pintar(p, QRectF((hojas.hoja().width() - lado) / 2, 130 * pt, lado, lado));
  const auto linea = [&](double y, double tamano, bool negrita, const QColor& color, const QString& texto) {
    QFont f(letra);
    f.setPointSizeF(tamano);
    f.setBold(negrita);
    p.setFont(f);
    p.setPen(color);
    p.drawText(QRectF(0, y * pt, hojas.hoja().width(), 60 * pt), Qt::AlignHCenter | Qt::AlignTop, texto);
  };
  linea(290, 30, true, azul, "CALVENTO");
  linea(336, 16, false, Qt::black, titulo);
  linea(380, 11, false, gris, "Diseño Hidráulico de Estructuras\nde Disipación de Energía en Canales");
  linea(430, 11, false, gris, "Versión " + version);
}

struct Entrada {
  QString titulo;
  int nivel, pagina;  ///< counted from the first page of the text
};

/// The list of chapters, each with its page; how many pages the list takes is known before it is written.
class Contenido {
 public:
  Contenido(Hojas& hojas, std::vector<Entrada> entradas) : hojas_(hojas), entradas_(std::move(entradas)) {}

  void escribir() {
    const int antes = hojas_.numero() + recorrer(0, false);
    recorrer(antes, true);
  }

 private:
  /// Goes through the list, and writes it or only counts; returns the number of its pages.
  int recorrer(int paginasAntes, bool escribe) {
    const double pt = hojas_.punto();
    int paginas = 0;
    double y = hojas_.texto().height();
    for (const Entrada& e : entradas_) {
      if (y + 24 * pt > hojas_.texto().height()) {
        ++paginas;
        y = 36 * pt;
        if (escribe) cabeza();
      }
      if (e.nivel == 2) y += 5 * pt;
      if (escribe) renglon(e, y, e.pagina + paginasAntes);
      y += 15 * pt;
    }
    return paginas;
  }

  void cabeza() {
    hojas_.pasar();
    QFont f(letra, 15);
    f.setBold(true);
    hojas_.pintor().setFont(f);
    hojas_.pintor().setPen(azul);
    hojas_.pintor().drawText(QRectF(0, 0, hojas_.hoja().width(), 30 * hojas_.punto()), Qt::AlignLeft, "Contenido");
  }

  void renglon(const Entrada& e, double y, int pagina) {
    const double pt = hojas_.punto();
    QPainter& p = hojas_.pintor();
    QFont f(letra);
    f.setPointSizeF(e.nivel == 2 ? 10.5 : 9.5);
    f.setBold(e.nivel == 2);
    p.setFont(f);
    p.setPen(Qt::black);
    const double sangria = (e.nivel - 2) * 16 * pt;
    const QRectF linea(sangria, y, hojas_.hoja().width() - sangria, 15 * pt);
    const QString numero = QString::number(pagina);
    p.drawText(linea, Qt::AlignLeft | Qt::AlignVCenter, e.titulo);
    p.drawText(linea, Qt::AlignRight | Qt::AlignVCenter, numero);
    const QFontMetricsF medidas(f, p.device());
    const double base = linea.bottom() - 4 * pt;
    p.setPen(QPen(raya, 0.8 * pt, Qt::DotLine));
    p.drawLine(QPointF(linea.left() + medidas.horizontalAdvance(e.titulo) + 6 * pt, base),
               QPointF(linea.right() - medidas.horizontalAdvance(numero) - 6 * pt, base));
  }

  Hojas& hojas_;
  std::vector<Entrada> entradas_;
};

void hacerPdf(const QString& markdown, const QString& carpeta, const QString& archivo, const QString& version) {
  // the title goes to the cover, and the list of chapters becomes one with page numbers
  static const QRegularExpression titulo("^# +(.+)\n", QRegularExpression::MultilineOption);
  static const QRegularExpression lista("^\\d+\\. \\[[^\\n]+\\]\\(#[^\\n]+\\)\n", QRegularExpression::MultilineOption);
  const QString nombre = titulo.match(markdown).captured(1);
  QString cuerpo = markdown;
  cuerpo.remove(titulo).remove(lista);

  QPdfWriter pdf(archivo);
  pdf.setResolution(1200);
  pdf.setPageSize(QPageSize(QPageSize::A4));
  pdf.setPageMargins({24, 20, 24, 14}, QPageLayout::Millimeter);
  pdf.setTitle(nombre);
  pdf.setCreator("Calvento " + version);
  Hojas hojas(pdf, version);
  QTextDocument documento;
  documento.documentLayout()->setPaintDevice(&pdf);
  preparar(documento, cuerpo, carpeta, 10);
  vestir(documento, hojas.texto().width() / hojas.punto() * punto);
  documento.setPageSize(hojas.texto());
  cuidarPies(documento, 60 * hojas.punto(), hojas.texto().height());

  std::vector<Entrada> entradas;
  conTitulos(documento, 3, [&](QTextCursor& c, int nivel) {
    const double y = documento.documentLayout()->blockBoundingRect(c.block()).top();
    entradas.push_back({c.block().text(), nivel, 1 + static_cast<int>(y / hojas.texto().height())});
  });
  portada(hojas, nombre, version);
  Contenido(hojas, std::move(entradas)).escribir();
  hojas.pintar(documento);
}

void hacerHtml(const QString& markdown, const QString& carpeta, const QString& archivo) {
  QTextDocument documento;
  preparar(documento, markdown, carpeta, 10.5);
  vestir(documento, 720);
  QString html = documento.toHtml();
  html.replace("<head>",
               "<head><meta charset=\"utf-8\" /><title>Manual del usuario de Calvento</title>"
               "<style>body{max-width:50em;margin:2em auto;padding:0 1em}img{max-width:100%;height:auto}</style>");
  QFile salida(archivo);
  if (!salida.open(QIODevice::WriteOnly) || salida.write(html.toUtf8()) < 0) terminar("no se pudo escribir " + archivo);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication aplicacion(argc, argv);
  const QStringList a = QGuiApplication::arguments();
  if (a.size() == 5 && a[1] == "iconos") {
    hacerIconos(a[2], a[3], a[4]);
  } else if (a.size() == 6 && a[1] == "manual") {
    QFile entrada(a[2]);
    if (!entrada.open(QIODevice::ReadOnly)) terminar("no se pudo leer " + a[2]);
    const QString markdown = QString::fromUtf8(entrada.readAll());
    const QString carpeta = QFileInfo(a[2]).absolutePath();
    hacerPdf(markdown, carpeta, a[3], a[5]);
    hacerHtml(markdown, carpeta, a[4]);
  } else {
    terminar("argumentos erróneos");
  }
  return 0;
}
