#pragma once

#include "plataforma/ventana.h"

namespace calvento {

/// Lets every field of a window select its whole text when it gets the focus. A window that does more on focus sets its
/// own event afterwards and selects first.
void seleccionarAlEnfocar(Ventana& ventana);

/// Marks the fields of a window that a calculation reads and that cannot be what the user meant: empty, outside their
/// domain, or not wholly a number. Whether there is one.
bool senalarDudosos(Ventana& ventana);
/// Takes the marks of a former calculation away.
void quitarSenales(Ventana& ventana);

}  // namespace calvento
