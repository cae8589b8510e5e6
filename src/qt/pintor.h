#pragma once

#include <QRectF>

#include "plataforma/lienzo.h"

class QPainter;

namespace calvento {

/// Replays a picture into a rectangle of whatever the painter paints on: screen, image, page, vector file. The whole
/// rectangle becomes white paper and nothing is painted outside it. The picture's scale is stretched over the
/// rectangle. Texts grow with the rectangle beyond the picture's reference height; line widths, dashes and hatches are
/// those of the picture at its own size, so that they look alike on screen and in a file of any resolution.
void pintar(const Lienzo& lienzo, QPainter& pintor, const QRectF& destino);

/// The largest rectangle of the picture's proportions inside a page, centred.
QRectF encuadre(const Lienzo& lienzo, const QRectF& pagina);

}  // namespace calvento
