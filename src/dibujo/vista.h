#pragma once

#include "comun/real.h"
#include "modelo/design_state.h"
#include "plataforma/lienzo.h"

// What part of the world a drawing shows. Coordinates in world metres, the vertical axis upward.

namespace calvento {

/// A rectangle of the world; y1 is its lower edge.
struct Vista {
  Real x1, x2, y1, y2;
};

/// The rectangle widened about its centre to the proportions of the box that shows it, so that a metre is as long in X
/// as in Y. Fails for a rectangle without width or a box without size.
Vista sinDeformar(const Vista& vista, Real anchoCaja, Real altoCaja);

/// What the canvas shows, less a quarter of the span on each side: the span halves and the centre stays.
Vista acercada(const Lienzo& lienzo);
/// What the canvas shows and a quarter of the span more on each side.
Vista alejada(const Lienzo& lienzo);

/// The view fields of the record.
Vista vistaDe(const DesignState& estado);
void fijarVista(DesignState& estado, const Vista& vista);

/// Sets the canvas's scale to the view of the record without distortion and reads the true rectangle back into the
/// record. Fails as sinDeformar does; the canvas then keeps its scale.
void Escala(DesignState& estado, Lienzo& lienzo);

}  // namespace calvento
