#include "qt/pintor.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include <QFont>
#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

#include "dibujo/repeticion.h"
#include "plataforma/medidas.h"
#include "qt/cadena.h"

namespace calvento {

namespace {

/// Every font is made at this size in pixels and stretched to the one wanted: font machines round the advance of small
/// letters to whole pixels and refuse huge ones, and a text must be equally wide on screen and on paper.
constexpr double letraHecha = 64;

/// Desktop colours have no place on paper: whatever the desktop's theme, such ink is black.
QColor tinta(Color c) { return c.esDelSistema() ? QColor(Qt::black) : QColor(c.rojo(), c.verde(), c.azul()); }

QPointF enQt(Punto p) { return {p.x, p.y}; }
QPolygonF enQt(const Puntos& puntos) {
  QPolygonF r;
  r.reserve(static_cast<qsizetype>(puntos.size()));
  for (const Punto& p : puntos) r << enQt(p);
  return r;
}
Marco deQt(const QRectF& r) { return {r.left(), r.top(), r.right(), r.bottom()}; }

class PapelQt : public Papel {
 public:
  PapelQt(QPainter& pintor, const QRectF& destino) : pintor_(pintor) {
    const QTransform& dispositivo = pintor.deviceTransform();
    if (pintor.paintEngine()->type() != QPaintEngine::Raster || dispositivo.type() > QTransform::TxScale) return;
    aPuntos_ = dispositivo;
    hoja_ = deQt(dispositivo.mapRect(destino));
  }

  /// On a screen or an image a line has whole points.
  double ancho(double pedido) const override { return aPuntos_ ? puntosDeAncho(pedido) / aPuntos_->m22() : pedido; }

  /// A course on the points of the screen or image; on paper and in vector files it stays as it is.
  Puntos ajustados(Puntos puntos, double ancho, bool cerrado) const override {
    if (!aPuntos_) return puntos;
    const double sx = aPuntos_->m11(), sy = aPuntos_->m22(), dx = aPuntos_->dx(), dy = aPuntos_->dy();
    for (Punto& p : puntos) p = {p.x * sx + dx, p.y * sy + dy};
    puntos = sobrePixeles(std::move(puntos), puntosDeAncho(ancho), cerrado, hoja_);
    for (Punto& p : puntos) p = {(p.x - dx) / sx, (p.y - dy) / sy};
    return puntos;
  }

  void polilinea(const Puntos& puntos, const TrazoHoja& trazo) override {
    usar(trazo);
    pintor_.setBrush(Qt::NoBrush);
    if (puntos.size() == 2)
      pintor_.drawLine(enQt(puntos[0]), enQt(puntos[1]));
    else
      pintor_.drawPolyline(enQt(puntos));
  }

  void rayas(const std::vector<Raya>& rayas, const TrazoHoja& trazo) override {
    QList<QLineF> lineas;
    lineas.reserve(static_cast<qsizetype>(rayas.size()));
    for (const Raya& r : rayas) lineas << QLineF(enQt(r.a), enQt(r.b));
    usar(trazo);
    pintor_.drawLines(lineas);
  }

  void area(const Puntos& puntos, const TrazoHoja& trazo, std::optional<Color> relleno) override {
    pintor_.setBrush(relleno ? QBrush(tinta(*relleno)) : QBrush(Qt::NoBrush));
    usar(trazo);
    pintor_.drawPolygon(enQt(puntos), Qt::OddEvenFill);
  }

  void texto(const TextoHoja& t) override {
    usar(t.texto.letra);
    pintor_.setPen(tinta(t.texto.color));
    pintor_.save();
    pintor_.translate(enQt(t.en));
    if (t.texto.letra.angulo != 0) pintor_.rotate(-t.texto.letra.angulo);
    pintor_.scale(t.tamano / letraHecha, t.tamano / letraHecha);
    pintor_.drawText(QPointF(0, ascensoLetra * letraHecha), aQt(t.texto.texto));
    pintor_.restore();
  }

 private:
  int puntosDeAncho(double ancho) const { return std::max(1, static_cast<int>(std::lround(ancho * aPuntos_->m22()))); }

  void usar(const TrazoHoja& trazo) {
    QPen p(tinta(trazo.color), trazo.ancho, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (!trazo.guiones.empty()) {
      QList<qreal> guiones;
      for (const double largo : trazo.guiones) guiones << largo / trazo.ancho;
      p.setDashPattern(guiones);
    }
    pintor_.setPen(p);
  }

  void usar(const Letra& letra) {
    if (letraEnUso_ && letraEnUso_->familia == letra.familia && letraEnUso_->negrita == letra.negrita &&
        letraEnUso_->subrayada == letra.subrayada)
      return;
    QFont f;
    f.setFamilies({aQt(letra.familia), "Liberation Sans", "Helvetica", "Nimbus Sans", "DejaVu Sans"});
    f.setStyleHint(QFont::SansSerif);
    f.setBold(letra.negrita);
    f.setUnderline(letra.subrayada);
    f.setHintingPreference(QFont::PreferNoHinting);
    f.setPixelSize(static_cast<int>(letraHecha));
    pintor_.setFont(f);
    letraEnUso_ = letra;
  }

  QPainter& pintor_;
  std::optional<QTransform> aPuntos_;  ///< to the points of the screen or image; none where lines have no points
  Marco hoja_;                         ///< in those points
  std::optional<Letra> letraEnUso_;
};

}  // namespace

void pintar(const Lienzo& lienzo, QPainter& pintor, const QRectF& destino) {
  pintor.save();
  pintor.setClipRect(destino, Qt::IntersectClip);
  pintor.fillRect(destino, Qt::white);
  pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  pintor.setLayoutDirection(Qt::LeftToRight);
  PapelQt papel(pintor, destino);
  repetir(lienzo, deQt(destino), papel);
  pintor.restore();
}

QRectF encuadre(const Lienzo& lienzo, const QRectF& pagina) {
  if (lienzo.anchoPixeles() <= 0 || lienzo.altoPixeles() <= 0) return pagina;
  const QSizeF t = QSizeF(lienzo.anchoPixeles(), lienzo.altoPixeles()).scaled(pagina.size(), Qt::KeepAspectRatio);
  return {pagina.left() + (pagina.width() - t.width()) / 2, pagina.top() + (pagina.height() - t.height()) / 2,
          t.width(), t.height()};
}

}  // namespace calvento
