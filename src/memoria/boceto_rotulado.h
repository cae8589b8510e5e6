#pragma once

#include <vector>

#include "memoria/documento.h"
#include "plataforma/trazos.h"

namespace calvento {

/// The labels of a sketch as texts in its own coordinates, in letters a little larger than the window's: a sheet is
/// smaller than a window.
std::vector<RotuloTrazo> rotulosSobre(const BocetoRotulado& boceto, const EscalaLienzo& caja);

}  // namespace calvento
