#include "qt/figura_memoria.h"

#include <QBuffer>
#include <QFont>
#include <QPainter>
#include <QSvgGenerator>

#include "qt/cadena.h"
#include "qt/pintor.h"
#include "qt/trazos_qt.h"

namespace calvento {

namespace {

TrazosQt trazosDe(const BocetoRotulado& boceto) {
  return TrazosQt(QStringLiteral(":/bocetos/") + aQt(boceto.nombre) + QStringLiteral(".pic"));
}

Qt::Alignment alineacionDe(Alineacion a) {
  const Qt::Alignment h = a == Alineacion::derecha  ? Qt::AlignRight
                          : a == Alineacion::centro ? Qt::AlignHCenter
                                                    : Qt::AlignLeft;
  return h | Qt::AlignVCenter;
}

void pintarBoceto(const BocetoRotulado& boceto, QPainter& pintor, const QRectF& destino) {
  const TrazosQt dibujo = trazosDe(boceto);
  if (!dibujo.valido()) return;
  pintor.save();
  const QRectF lugar = dibujo.lugarEn(destino);
  dibujo.pintar(pintor, lugar);
  if (boceto.ancho > 0) {
    // the labels as the window has them, a little larger: a sheet is smaller than a window
    pintor.translate(lugar.topLeft());
    pintor.scale(lugar.width() / boceto.ancho, lugar.height() / boceto.alto);
    QFont letra(QStringLiteral("Liberation Sans"));
    letra.setPixelSize(16);
    letra.setBold(true);
    letra.setHintingPreference(QFont::PreferNoHinting);
    pintor.setFont(letra);
    pintor.setPen(QColor(0x0b, 0x3d, 0x66));
    for (const BocetoRotulado::Rotulo& r : boceto.rotulos)
      pintor.drawText(QRectF(r.x, r.y - 3, r.ancho, r.alto + 6),
                      static_cast<int>(alineacionDe(r.alineacion)) | Qt::TextDontClip, aQt(r.texto));
  }
  pintor.restore();
}

}  // namespace

void pintarFigura(const Figura& figura, QPainter& pintor, const QRectF& destino) {
  if (const auto* lienzo = std::get_if<Lienzo>(&figura.dibujo))
    pintar(*lienzo, pintor, encuadre(*lienzo, destino));
  else
    pintarBoceto(std::get<BocetoRotulado>(figura.dibujo), pintor, destino);
}

QSizeF tamanoFigura(const Figura& figura) {
  const auto* boceto = std::get_if<BocetoRotulado>(&figura.dibujo);
  if (boceto == nullptr) return {figura.anchoMm, figura.altoMm};
  const QSizeF propio = trazosDe(*boceto).caja();
  return propio.isEmpty() ? QSizeF(figura.anchoMm, figura.altoMm)
                          : propio.scaled(QSizeF(figura.anchoMm, 1e6), Qt::KeepAspectRatio);
}

QByteArray svgDeFigura(const Figura& figura) {
  constexpr double pixelesPorMm = 96 / 25.4;
  const QSizeF tamano = tamanoFigura(figura) * pixelesPorMm;
  const QRectF hoja(QPointF(0, 0), tamano);
  QByteArray datos;
  QBuffer memoria(&datos);
  memoria.open(QIODevice::WriteOnly);
  {
    QSvgGenerator generador;
    generador.setOutputDevice(&memoria);
    generador.setResolution(96);
    generador.setSize(tamano.toSize());
    generador.setViewBox(hoja);
    generador.setTitle(aQt(figura.titulo));
    QPainter pintor(&generador);
    pintarFigura(figura, pintor, hoja);
  }
  return datos.mid(std::max<qsizetype>(0, datos.indexOf("<svg")));
}

}  // namespace calvento
