#include "dibujo/vista.h"

namespace calvento {

namespace {

/// The rectangle that the canvas shows, larger or smaller by a part of the span on each side.
Vista conMargen(const Lienzo& l, double parte) {
  const Real izquierda = l.ScaleLeft();
  const Real ancho = l.ScaleWidth();
  const Real arriba = l.ScaleTop();
  const Real alto = l.ScaleHeight();  // negative
  return {izquierda - ancho * parte, izquierda + ancho + ancho * parte, arriba + alto + alto * parte,
          arriba - alto * parte};
}

}  // namespace

Vista sinDeformar(const Vista& v, Real anchoCaja, Real altoCaja) {
  const Real proporcionVista = (v.y2 - v.y1) / (v.x2 - v.x1);
  const Real proporcionCaja = altoCaja / anchoCaja;
  if (proporcionCaja < proporcionVista) {
    const Real medio = (v.x1 + v.x2) * 0.5;
    const Real mitad = ((v.y2 - v.y1) * 0.5) * anchoCaja / altoCaja;
    return {medio - mitad, medio + mitad, v.y1, v.y2};
  }
  const Real medio = (v.y1 + v.y2) * 0.5;
  const Real mitad = ((v.x2 - v.x1) * 0.5) * altoCaja / anchoCaja;
  return {v.x1, v.x2, medio - mitad, medio + mitad};
}

Vista acercada(const Lienzo& lienzo) { return conMargen(lienzo, -0.25); }
Vista alejada(const Lienzo& lienzo) { return conMargen(lienzo, 0.25); }

Vista vistaDe(const DesignState& e) { return {e.vistaX1, e.vistaX2, e.vistaY1, e.vistaY2}; }

void fijarVista(DesignState& e, const Vista& v) {
  e.vistaX1 = v.x1;
  e.vistaX2 = v.x2;
  e.vistaY1 = v.y1;
  e.vistaY2 = v.y2;
}

void Escala(DesignState& estado, Lienzo& lienzo) {
  const Vista v = sinDeformar(vistaDe(estado), lienzo.anchoPixeles(), lienzo.altoPixeles());
  lienzo.Scale(v.x1.valor(), v.y2.valor(), v.x2.valor(), v.y1.valor());
  fijarVista(estado, v);
}

}  // namespace calvento
