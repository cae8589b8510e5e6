#pragma once

#include "plataforma/ventana.h"

namespace calvento {

/// Lets every field of a window select its whole text when it gets the focus. A window that does more on focus sets its
/// own event afterwards and selects first.
void seleccionarAlEnfocar(Ventana& ventana);

}  // namespace calvento
