#pragma once

#include "plataforma/navegador.h"

namespace calvento {

/// Lets the toolbar of a calculator or report window print the window ("botonimprimir") and copy it ("botoncopiar");
/// other keys do nothing.
void imprimirYCopiarCon(Toolbar& barra, Ventana& ventana, Navegador& navegador);

}  // namespace calvento
