#pragma once

namespace calvento {

/// Before the application object: where Qt looks for letters that has none of the system (without a screen, on
/// Windows).
void anunciarLetras();

/// After it: takes the letters that are installed beside the program, in its folder "letras", and gives the windows
/// letters that are there where the desktop names some that are not.
void cargarLetras();

}  // namespace calvento
