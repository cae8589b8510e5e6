#pragma once

#include <string>

#include <QRectF>

#include "memoria/documento.h"

class QPainter;

namespace calvento {

/// Paints a picture of the report into a rectangle, as lines and texts.
void pintarFigura(const Figura& figura, QPainter& pintor, const QRectF& destino);
/// The same as an SVG element without a prolog, for a page of HTML.
std::string svgDeFigura(const Figura& figura);
/// Its size on paper, mm; a sketch takes its own proportions in the width that it is given.
QSizeF tamanoFigura(const Figura& figura);

}  // namespace calvento
