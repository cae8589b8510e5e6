#include "qt/exportar_dibujo.h"

#include <cstdio>
#include <stdexcept>

#include <QBuffer>
#include <QByteArray>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include "comun/version.h"
#include "modelo/guardado.h"
#include "modelo/rutas.h"
#include "qt/cadena.h"
#include "qt/carpeta_sesion.h"
#include "qt/letras.h"
#include "qt/pintor.h"

namespace calvento {

namespace {

constexpr int pixelesPorPulgada = 96;
constexpr int resolucionPdf = 1200;
constexpr int finuraPng = 3;  ///< pixels for each of the screen's: the small texts can be read

/// Keeps quiet about a missing directory for run-time files, which batch machines often lack and drawings do not need.
void callarCarpetas(QtMsgType tipo, const QMessageLogContext& contexto, const QString& texto) {
  if (texto.startsWith("QStandardPaths:")) return;
  std::fputs(qPrintable(qFormatLogMessage(tipo, contexto, texto) + '\n'), stderr);
}

void comoPdf(const Lienzo& lienzo, QIODevice& salida) {
  const QSizeF puntos = QSizeF(lienzo.anchoPixeles(), lienzo.altoPixeles()) * 72.0 / pixelesPorPulgada;
  QPdfWriter escritor(&salida);
  escritor.setCreator(aQt("Calvento " + version()));
  escritor.setResolution(resolucionPdf);
  escritor.setPageSize(QPageSize(puntos, QPageSize::Point, {}, QPageSize::ExactMatch));
  escritor.setPageMargins(QMarginsF());
  QPainter pintor(&escritor);
  pintar(lienzo, pintor, QRectF(QPointF(0, 0), puntos * resolucionPdf / 72.0));
}

bool comoPng(const Lienzo& lienzo, QIODevice& salida) {
  QImage imagen(lienzo.anchoPixeles() * finuraPng, lienzo.altoPixeles() * finuraPng, QImage::Format_RGB32);
  const int puntosPorMetro = static_cast<int>(pixelesPorPulgada * finuraPng / 0.0254);
  imagen.setDotsPerMeterX(puntosPorMetro);
  imagen.setDotsPerMeterY(puntosPorMetro);
  {
    QPainter pintor(&imagen);
    pintar(lienzo, pintor, QRectF(imagen.rect()));
  }
  return imagen.save(&salida, "PNG");
}

}  // namespace

void asegurarAplicacionGrafica() {
  if (QCoreApplication::instance() != nullptr) return;
  static char nombre[] = "calvento";
  static char opcion[] = "-platform";
  static char valor[] = "offscreen";
  static char* argumentos[] = {nombre, opcion, valor, nullptr};
  static int cuantos = 3;
  static const CarpetaSesion carpeta;
  anunciarLetras();
  const QtMessageHandler antes = qInstallMessageHandler(callarCarpetas);
  static QGuiApplication aplicacion(cuantos, argumentos);
  cargarLetras();
  qInstallMessageHandler(antes);
}

void exportarDibujo(const Lienzo& lienzo, const std::string& archivo, const HojaSvg& hoja) {
  const QString nombre = aQt(archivo);
  const QString extension = QFileInfo(nombre).suffix().toLower();
  if (extension != "svg" && extension != "pdf" && extension != "png")
    throw std::runtime_error("El dibujo se escribe como .svg, .pdf o .png: " + archivo);
  if (lienzo.anchoPixeles() <= 0 || lienzo.altoPixeles() <= 0) throw std::runtime_error("El dibujo no tiene tamaño");
  if (extension == "svg") return guardarSvg(lienzo, hoja, archivo);
  asegurarAplicacionGrafica();

  QByteArray datos;
  QBuffer memoria(&datos);
  memoria.open(QIODevice::WriteOnly);
  bool listo = true;
  if (extension == "pdf")
    comoPdf(lienzo, memoria);
  else
    listo = comoPng(lienzo, memoria);
  if (!listo || datos.isEmpty()) throw std::runtime_error("No se pudo hacer el dibujo " + archivo);

  guardarEntero(comoRuta(archivo), {datos.constData(), static_cast<std::size_t>(datos.size())});
}

}  // namespace calvento
