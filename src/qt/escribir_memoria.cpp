#include "qt/escribir_memoria.h"

#include <stdexcept>

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QTextDocument>
#include <QTextDocumentWriter>
#include <QUrl>

#include "memoria/html.h"
#include "modelo/guardado.h"
#include "modelo/rutas.h"
#include "qt/cadena.h"
#include "qt/exportar_dibujo.h"
#include "qt/figura_memoria.h"
#include "qt/maqueta_memoria.h"

namespace calvento {

namespace {

constexpr int puntosPorPulgada = 220;
constexpr double pixelesPorMm = 96 / 25.4;
constexpr QSizeF textoA4{170, 245};  ///< mm

QString extension(const std::string& archivo) { return QFileInfo(aQt(archivo)).suffix().toLower(); }

QByteArray comoPaginaHtml(const Documento& d) {
  FormaHtml forma;
  forma.navegador = true;
  forma.figura = [](const Figura& f) { return svgDeFigura(f); };
  const std::string html = comoHtml(d, forma);
  return {html.data(), static_cast<qsizetype>(html.size())};
}

/// A picture for a text editor: one that lies is turned, so that it keeps its size on a standing page.
QImage imagenDe(const Figura& f, QSizeF& mm) {
  const QSizeF propio = tamanoFigura(f);
  QImage imagen((propio * puntosPorPulgada / 25.4).toSize(), QImage::Format_RGB32);
  imagen.fill(Qt::white);
  {
    QPainter pintor(&imagen);
    pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    pintarFigura(f, pintor, QRectF(imagen.rect()));
  }
  mm = propio;
  if (f.lamina && f.apaisada) {
    imagen = imagen.transformed(QTransform().rotate(-90));
    mm.transpose();
  }
  mm = mm.boundedTo(mm.scaled(textoA4, Qt::KeepAspectRatio));
  return imagen;
}

QByteArray comoOdt(const Documento& d) {
  QTextDocument doc;
  int n = 0;
  FormaHtml forma;
  forma.figura = [&](const Figura& f) {
    QSizeF mm;
    const QString nombre = QStringLiteral("figura%1.png").arg(++n);
    doc.addResource(QTextDocument::ImageResource, QUrl(nombre), imagenDe(f, mm));
    return "<img src=\"" + deQt(nombre) + "\" width=\"" + std::to_string(std::lround(mm.width() * pixelesPorMm)) +
           "\" height=\"" + std::to_string(std::lround(mm.height() * pixelesPorMm)) + "\"/>";
  };
  const std::string html = comoHtml(d, forma);
  doc.setHtml(aQt(html));
  QByteArray datos;
  QBuffer memoria(&datos);
  QTextDocumentWriter escritor(&memoria, "odf");
  return escritor.write(&doc) ? datos : QByteArray();
}

QByteArray comoPdf(const Documento& d) {
  QByteArray datos;
  QBuffer memoria(&datos);
  memoria.open(QIODevice::WriteOnly);
  return MaquetaMemoria(d).escribirPdf(memoria) ? datos : QByteArray();
}

}  // namespace

bool esArchivoDeMemoria(const std::string& archivo) {
  const QString e = extension(archivo);
  return e == "pdf" || e == "html" || e == "odt";
}

void escribirMemoria(const Documento& documento, const std::string& archivo) {
  if (!esArchivoDeMemoria(archivo))
    throw std::runtime_error("La memoria se escribe como .pdf, .html o .odt: " + archivo);
  asegurarAplicacionGrafica();
  const QString e = extension(archivo);
  const QByteArray datos = e == "pdf"    ? comoPdf(documento)
                           : e == "html" ? comoPaginaHtml(documento)
                                         : comoOdt(documento);
  if (datos.isEmpty()) throw std::runtime_error("No se pudo hacer la memoria " + archivo);
  guardarEntero(comoRuta(archivo), {datos.constData(), static_cast<std::size_t>(datos.size())});
}

}  // namespace calvento
