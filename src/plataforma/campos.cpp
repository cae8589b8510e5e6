#include "plataforma/campos.h"

namespace calvento {

void seleccionarAlEnfocar(Ventana& ventana) {
  for (Control* c : ventana.controles())
    if (auto* campo = dynamic_cast<TextBox*>(c)) campo->GotFocus = [campo] { campo->seleccionarTodo(); };
}

bool senalarDudosos(Ventana& ventana) {
  bool hay = false;
  for (Control* c : ventana.controles()) {
    auto* campo = dynamic_cast<TextBox*>(c);
    if (campo == nullptr || !campo->numerico || !campo->Enabled || !campo->magnitud.loLeeElCalculo) continue;
    campo->Senal = campo->falta();
    hay = hay || !campo->reparo().empty();
  }
  return hay;
}

void quitarSenales(Ventana& ventana) {
  for (Control* c : ventana.controles())
    if (auto* campo = dynamic_cast<TextBox*>(c)) campo->Senal = std::string();
}

}  // namespace calvento
