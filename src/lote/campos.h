#pragma once

#include "aplicacion/aplicacion.h"
#include "lote/opciones.h"

namespace calvento::lote {

/// Whether the window is one of the parameter windows, whose fields are put in before a project is opened.
bool esDeParametros(std::string_view ventana);

/// Puts the text in the control as a user would: types in a field, ticks a box, chooses an entry, clicks a row.
/// Fails with OpcionErronea for an unknown control, one that takes no value, or a value that it cannot take.
void poner(Ventana& ventana, const Asignacion& asignacion);

/// Tries every assignment on windows of its own, so that a wrong one is told before any project is opened. One for a
/// data window that none of the projects uses is wrong too: it would do nothing.
void comprobar(const Opciones& opciones);

}  // namespace calvento::lote
