#pragma once

#include <vector>

#include <QLineF>
#include <QPolygonF>
#include <QRectF>

namespace calvento {

/// Painters lose coordinates of millions of pixels, which a drawing has as soon as one zooms into it. So what lies far
/// outside the visible rectangle is cut off beforehand.

/// The part of the line inside the rectangle; an empty line (isNull) where there is none.
QLineF recortar(const QLineF& linea, const QRectF& marco);
/// The part of the closed polygon inside the rectangle.
QPolygonF recortar(const QPolygonF& poligono, const QRectF& marco);

/// The same points with each level or upright edge moved by at most half a pixel, so that a line of so many whole
/// pixels along it covers pixels whole instead of two rows by halves. Slanted edges follow their ends; an edge on the
/// border of the sheet stays on it.
QPolygonF sobrePixeles(QPolygonF puntos, int grosor, bool cerrado, const QRectF& hoja);

/// The strokes of a diagonal cross hatch inside a closed polygon (even-odd rule), so many pixels apart along both axes;
/// strokes of all polygons lie on one common grid that starts at the origin.
std::vector<QLineF> rayadoCruzado(const QPolygonF& poligono, QPointF origen, double paso);

}  // namespace calvento
