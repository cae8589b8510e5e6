#include "plataforma/campos.h"

namespace calvento {

void seleccionarAlEnfocar(Ventana& ventana) {
  for (Control* c : ventana.controles())
    if (auto* campo = dynamic_cast<TextBox*>(c)) campo->GotFocus = [campo] { campo->seleccionarTodo(); };
}

}  // namespace calvento
