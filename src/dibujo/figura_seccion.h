#pragma once

#include "dibujo/secciones.h"
#include "plataforma/lienzo.h"

namespace calvento {

/// Draws a cross-section with its water, lining, critical level (of the discharge Q, m³/s) and dimensions, and both
/// rulers. The section fills the canvas without distortion. Fails for a section without a critical depth; what was
/// drawn until then stays.
void SECCION(Lienzo& P, Lienzo& reglaX, Lienzo& reglaY, const DatosSeccion& seccion, Real Q);

}  // namespace calvento
