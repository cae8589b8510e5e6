#pragma once

#include <vector>

#include <QByteArray>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include "plataforma/trazos.h"

class QPainter;

namespace calvento {

/// An icon or a sketch of the program (":/bocetos/rapida.pic"), painted at any size: on screen, image and paper.
class TrazosQt {
 public:
  explicit TrazosQt(const QString& archivo = {});

  bool valido() const { return trazos_.valido(); }
  /// The size that it was drawn for, and the one of its coordinates; what is asked for a size keeps the second's shape.
  QSizeF tamano() const { return {trazos_.ancho(), trazos_.alto()}; }
  QSizeF caja() const { return {trazos_.caja().ancho, trazos_.caja().alto}; }
  /// The largest rectangle of the picture's proportions inside another one, centred; empty without a picture.
  QRectF lugarEn(const QRectF& marco) const;
  /// Paints the whole picture into the rectangle, smoothed, and texts upon it.
  void pintar(QPainter& pintor, const QRectF& lugar, const std::vector<RotuloTrazo>& encima = {}) const;
  const Trazos& trazos() const { return trazos_; }

 private:
  QByteArray datos_;
  Trazos trazos_;
};

}  // namespace calvento
