#include "reportes/form11.h"

#include "plataforma/barra_informe.h"
#include "reportes/perfil_hidraulico.h"

namespace calvento {

Form11::Form11(const DesignState& estado, Navegador& navegador) : Ventana("Form11", "Perfil Hidráulico de la Rápida") {
  imprimirYCopiarCon(Toolbar1, *this, navegador);
  Command4.Click = [this, &navegador] { navegador.descargar(*this); };
  tablaPerfil(Grid1.tabla, estado);
}

}  // namespace calvento
