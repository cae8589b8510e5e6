#include "qt/trazos_qt.h"

#include <utility>

#include <QFile>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "qt/cadena.h"

namespace calvento {

namespace {

/// Texts are made at this size in pixels and shrunk: font machines round what small letters measure.
constexpr double letraHecha = 100;

QPointF aQt(Punto p) { return {p.x, p.y}; }
QColor aQt(Color c) { return {c.rojo(), c.verde(), c.azul()}; }

QBrush aQt(const Brocha& b) {
  if (b.clase == Brocha::Clase::nada) return Qt::NoBrush;
  if (b.clase == Brocha::Clase::color) return aQt(b.color);
  QLinearGradient mezcla(aQt(b.desde), aQt(b.hasta));
  for (const Brocha::Parada& p : b.paradas) mezcla.setColorAt(p.lugar, aQt(p.color));
  return mezcla;
}

QPen aQt(const PlumaTrazo& p) {
  if (p.brocha.clase == Brocha::Clase::nada) return Qt::NoPen;
  constexpr Qt::PenCapStyle puntas[] = {Qt::FlatCap, Qt::RoundCap, Qt::SquareCap};
  constexpr Qt::PenJoinStyle juntas[] = {Qt::SvgMiterJoin, Qt::RoundJoin, Qt::BevelJoin};
  QPen pluma(aQt(p.brocha), p.ancho, Qt::SolidLine, puntas[static_cast<int>(p.punta) % 3],
             juntas[static_cast<int>(p.juntas) % 3]);
  pluma.setMiterLimit(4);
  QList<qreal> guiones;
  for (const double g : p.guiones) guiones << g / p.ancho;
  if (!guiones.isEmpty()) pluma.setDashPattern(guiones);
  return pluma;
}

class Repeticion : public PintorTrazos {
 public:
  explicit Repeticion(QPainter& pintor) : pintor_(pintor) {}

  void camino(const std::vector<Paso>& pasos, const Brocha& relleno, const PlumaTrazo& pluma) override {
    QPainterPath c;
    c.setFillRule(Qt::WindingFill);
    for (const Paso& p : pasos) switch (p.orden) {
        case 'M':
          c.moveTo(aQt(p.puntos[0]));
          break;
        case 'L':
          c.lineTo(aQt(p.puntos[0]));
          break;
        case 'C':
          c.cubicTo(aQt(p.puntos[0]), aQt(p.puntos[1]), aQt(p.puntos[2]));
          break;
        default:
          c.closeSubpath();
      }
    pintor_.setPen(aQt(pluma));
    pintor_.setBrush(aQt(relleno));
    pintor_.drawPath(c);
  }

  void rotulo(const RotuloTrazo& r) override {
    const QString texto = calvento::aQt(r.texto);
    QFont letra;
    QStringList familias;
    for (const QString& f : calvento::aQt(r.familias).split(u',')) familias << f.trimmed();
    letra.setFamilies(familias);
    letra.setStyleHint(QFont::SansSerif);
    letra.setPixelSize(static_cast<int>(letraHecha));
    letra.setBold(r.negrita);
    letra.setItalic(r.cursiva);
    letra.setHintingPreference(QFont::PreferNoHinting);
    const double ancho =
        r.ancla == RotuloTrazo::Ancla::inicio ? 0 : QFontMetricsF(letra, pintor_.device()).horizontalAdvance(texto);
    pintor_.save();
    pintor_.setFont(letra);
    pintor_.setPen(QPen(aQt(r.brocha), 1));
    pintor_.translate(aQt(r.en));
    if (r.giro != 0) pintor_.rotate(r.giro);
    pintor_.scale(r.tamano / letraHecha, r.tamano / letraHecha);
    pintor_.drawText(QPointF(r.ancla == RotuloTrazo::Ancla::medio ? -ancho / 2 : -ancho, 0), texto);
    pintor_.restore();
  }

 private:
  QPainter& pintor_;
};

}  // namespace

TrazosQt::TrazosQt(const QString& archivo) {
  QFile entrada(archivo);
  if (archivo.isEmpty() || !entrada.open(QIODevice::ReadOnly)) return;
  datos_ = entrada.readAll();
  trazos_ = Trazos({datos_.constData(), static_cast<std::size_t>(datos_.size())});
}

QRectF TrazosQt::lugarEn(const QRectF& marco) const {
  if (!valido()) return {};
  const QSizeF t = caja().scaled(marco.size(), Qt::KeepAspectRatio);
  return {marco.center() - QPointF(t.width() / 2, t.height() / 2), t};
}

void TrazosQt::pintar(QPainter& pintor, const QRectF& lugar, const std::vector<RotuloTrazo>& encima) const {
  if (!valido() || lugar.isEmpty()) return;
  const EscalaLienzo c = trazos_.caja();
  pintor.save();
  pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  pintor.translate(lugar.topLeft());
  pintor.scale(lugar.width() / c.ancho, lugar.height() / c.alto);
  pintor.translate(-c.izquierda, -c.arriba);
  Repeticion repeticion(pintor);
  trazos_.repetir(repeticion);
  for (const RotuloTrazo& r : encima) repeticion.rotulo(r);
  pintor.restore();
}

}  // namespace calvento
