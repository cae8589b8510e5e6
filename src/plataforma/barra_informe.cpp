#include "plataforma/barra_informe.h"

namespace calvento {

void imprimirYCopiarCon(Toolbar& barra, Ventana& ventana, Navegador& navegador) {
  barra.ButtonClick = [&ventana, &navegador](const std::string& clave) {
    if (clave == "botonimprimir")
      navegador.imprimir(ventana);
    else if (clave == "botoncopiar")
      navegador.copiar(ventana);
  };
}

}  // namespace calvento
