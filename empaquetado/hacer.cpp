// What is made when the program is built: icons in the sizes of desktops, the manual as PDF and as HTML.
//
//   calvento_hacer iconos CARPETA DIBUJO.pic DESTINO     CARPETA/<n>x<n>/DESTINO.png for each size n
//   calvento_hacer manual MANUAL.md DESTINO.pdf DESTINO.html VERSION

#include <exception>
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

#include "qt/texto_manual.h"
#include "qt/trazos_qt.h"

using namespace calvento;

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

const QString letra = FormaManual().letra;
const QColor gris(0x60, 0x60, 0x60);

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
  linea(290, 30, true, azulManual, "CALVENTO");
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
    hojas_.pintor().setPen(azulManual);
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
    p.setPen(QPen(rayaManual, 0.8 * pt, Qt::DotLine));
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
  documento.setDocumentMargin(0);
  escribirManual(documento, cuerpo, QUrl::fromLocalFile(carpeta + "/"),
                 {letra, 10, hojas.texto().width() / hojas.punto() * puntoManual});
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
  documento.setDocumentMargin(0);
  escribirManual(documento, markdown, QUrl::fromLocalFile(carpeta + "/"), {letra, 10.5, 720});
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
    try {
      hacerPdf(markdown, carpeta, a[3], a[5]);
      hacerHtml(markdown, carpeta, a[4]);
    } catch (const std::exception& fallo) {
      terminar(QString::fromUtf8(fallo.what()));
    }
  } else {
    terminar("argumentos erróneos");
  }
  return 0;
}
