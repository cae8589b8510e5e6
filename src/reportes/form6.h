#pragma once

#include "modelo/design_state.h"
#include "plataforma/control.h"
#include "plataforma/navegador.h"
#include "plataforma/rejilla.h"
#include "plataforma/ventana.h"

namespace calvento {

/// Stability of the flow on the chute, computed when the window loads.
class Form6 : public Ventana {
 public:
  Form6(const DesignState& estado, Navegador& navegador);

  Toolbar Toolbar1{*this, "Toolbar1", {"botonimprimir", "botoncopiar"}};
  Grid Grid1{*this, "Grid1"};
  CommandButton Command4{*this, "Command4"};
};

}  // namespace calvento
