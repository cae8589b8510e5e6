#pragma once

#include <string>

#include "comun/real.h"
#include "plataforma/lienzo.h"

// The rulers beside a drawing: a horizontal strip under it and a vertical one on its left.

namespace calvento {

/// In what the rulers of one kind of window differ from those of another. Across a strip the world runs from 0 to 2,
/// upward in the horizontal one and to the right in the vertical one.
struct EstiloRegla {
  struct Marca {
    double borde;  ///< the end of a tick at the drawing
    double punta;  ///< its other end
  };
  Marca larga;
  Marca corta;
  std::string (*rotulo)(Single valor);
  double margen = 0;  ///< horizontal: twips of the strip on the left of the drawing's edge
};

extern const EstiloRegla reglaProgresivas;  ///< drawing windows: stations as 0+125.00
extern const EstiloRegla reglaElevaciones;  ///< drawing windows: elevations in plain digits
extern const EstiloRegla reglaXTrayectoria, reglaYTrayectoria;
extern const EstiloRegla reglaXSeccion, reglaYSeccion;

/// The step of the series 1, 2, 5 that comes nearest to a fourth, fifth … eighth of the span.
Single pasoDeRegla(Real tramo);

/// Draws the horizontal ruler for the drawing's edges Pc (left) and P10 (right). Fails when the span holds more ticks
/// than can be drawn.
void EJEX(Single Pc, Single P10, Lienzo& franja, const EstiloRegla& estilo);
/// Draws the vertical ruler for the drawing's edges Pc (bottom) and P10 (top).
void EJEY(Single Pc, Single P10, Lienzo& franja, const EstiloRegla& estilo);

}  // namespace calvento
