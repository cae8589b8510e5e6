#pragma once

#include "plataforma/lienzo.h"

namespace calvento {

/// Draws the legend of the drawing windows (water, concrete, lines of the canal) into the upper right corner of the
/// canvas, over the figure. It stands fixed on the sheet, whatever the view, and leaves the canvas's pen as it was.
void dibujarLeyenda(Lienzo& lienzo);

}  // namespace calvento
