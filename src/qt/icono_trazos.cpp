#include "qt/icono_trazos.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>

#include "qt/trazos_qt.h"

namespace calvento {

namespace {

class MotorTrazos : public QIconEngine {
 public:
  explicit MotorTrazos(const QString& archivo) : archivo_(archivo) {}

  void paint(QPainter* pintor, const QRect& lugar, QIcon::Mode modo, QIcon::State estado) override {
    const qreal densidad = pintor->device() != nullptr ? pintor->device()->devicePixelRatio() : 1;
    pintor->drawPixmap(lugar, pixmap((QSizeF(lugar.size()) * densidad).toSize(), modo, estado));
  }

  QPixmap pixmap(const QSize& tamano, QIcon::Mode modo, QIcon::State) override {
    const QString clave = QStringLiteral("calvento%1 %2 %3 %4 %5")
                              .arg(archivo_)
                              .arg(tamano.width())
                              .arg(tamano.height())
                              .arg(modo)
                              .arg(modo == QIcon::Normal ? 0 : QGuiApplication::palette().cacheKey());
    QPixmap imagen;
    if (QPixmapCache::find(clave, &imagen)) return imagen;
    const TrazosQt trazos(archivo_);
    imagen = QPixmap(trazos.lugarEn(QRectF(QPointF(0, 0), tamano)).size().toSize());
    if (imagen.isNull()) return imagen;
    imagen.fill(Qt::transparent);
    {
      QPainter p(&imagen);
      trazos.pintar(p, QRectF(imagen.rect()));
    }
    if (modo != QIcon::Normal) {
      QStyleOption opcion;
      opcion.palette = QGuiApplication::palette();
      imagen = QApplication::style()->generatedIconPixmap(modo, imagen, &opcion);
    }
    QPixmapCache::insert(clave, imagen);
    return imagen;
  }

  QString key() const override { return QStringLiteral("pic"); }
  QIconEngine* clone() const override { return new MotorTrazos(*this); }
  void addFile(const QString& archivo, const QSize&, QIcon::Mode, QIcon::State) override { archivo_ = archivo; }
  bool isNull() override { return !TrazosQt(archivo_).valido(); }

 private:
  QString archivo_;
};

}  // namespace

}  // namespace calvento

QIconEngine* IconoTrazos::create(const QString& archivo) { return new calvento::MotorTrazos(archivo); }
