#pragma once

#include <QColor>
#include <QPalette>

#include "plataforma/color.h"

class QWidget;

namespace calvento {

/// A fixed colour as Qt's; colours of the desktop are looked up in the palette.
QColor aQt(Color color, const QPalette& paleta);

/// The colour itself where it can be read on that background, else the same hue made lighter or darker until it can.
QColor legibleSobre(const QColor& texto, const QColor& fondo);

/// Contrast of two colours, 1 (none) to 21 (black on white), after the luminance rule of WCAG 2.
double contraste(const QColor& a, const QColor& b);

/// Black or white, whichever reads better on that background.
QColor textoPara(const QColor& fondo);

/// Writes the colours of a control into its widget. Default colours leave the desktop's palette alone; a fixed
/// background always brings its own text colour, so that a dark desktop stays readable. A marked field is tinted in the
/// colour of faults.
void aplicarColores(QWidget& widget, Color fondo, Color texto, bool marcado);

}  // namespace calvento
