#include "poza/form25.h"

#include "plataforma/campos.h"

namespace calvento {

Form25::Form25(DesignState& estado, Navegador& navegador)
    : Ventana("Form25", "Bordo Libre - Transición - Poza - Ventilación"), estado_(estado) {
  seleccionarAlEnfocar(*this);
  // both buttons only hide the window: there is no undo, what was typed stays in force
  Command1.Click = Command2.Click = [this, &navegador] { navegador.ocultar(*this); };
  Option3.Click = [this] { Option3_Click(); };
  Option4.Click = [this] { Option4_Click(); };
}

void Form25::activarTubos(bool activos) {
  Combo1.Enabled = activos;
  Combo2.Enabled = activos;
  Text10.Enabled = activos;
  for (Label* rotulo : {&Label27, &Label50, &Label52, &Label53}) rotulo->Enabled = activos;
}

void Form25::Option3_Click() {
  Label4.Enabled = true;
  Text2.Enabled = true;
  activarTubos(false);
  estado_.tipoTransVert = 0;
}

void Form25::Option4_Click() {
  Label4.Enabled = false;
  Text2.Enabled = false;
  activarTubos(true);
  estado_.tipoTransVert = 1;
}

void Form25::prepararVentilacion() {
  activarTubos(false);
  estado_.tipoTransVert = 0;
}

}  // namespace calvento
