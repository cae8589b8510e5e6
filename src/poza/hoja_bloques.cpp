#include "poza/hoja_bloques.h"

#include "plataforma/barra_informe.h"

namespace calvento {

HojaBloques::HojaBloques(const char* nombre, const char* titulo, Navegador& navegador) : Ventana(nombre, titulo) {
  imprimirYCopiarCon(Toolbar1, *this, navegador);
}

DatosBloques HojaBloques::datos(const DesignState& estado, const Form2& parametros) {
  return {estado, estado.bPozaCaida, minimoBloques(parametros.Check1, parametros.Text11)};
}

}  // namespace calvento
