#pragma once

#include "comun/real.h"
#include "plataforma/lienzo.h"

namespace calvento {

/// Draws the section of a canal of bottom width b and side slope z with the water levels yA (red) and yB (green) and a
/// berm on each side; the banks rise a fifth above the higher level.
void SECANAL(Lienzo& lienzo, Real yA, Real yB, Real b, Real z);

}  // namespace calvento
