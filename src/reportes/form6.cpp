#include "reportes/form6.h"

#include "plataforma/barra_informe.h"
#include "reportes/estabilidad.h"

namespace calvento {

Form6::Form6(const DesignState& estado, Navegador& navegador)
    : Ventana("Form6", "Estabilidad del flujo en el canal de la Rápida") {
  imprimirYCopiarCon(Toolbar1, *this, navegador);
  Command4.Click = [this, &navegador] { navegador.descargar(*this); };
  tablaEstabilidad(Grid1.tabla, estado);
}

}  // namespace calvento
