#pragma once

#include "modelo/design_state.h"
#include "plataforma/control.h"
#include "plataforma/navegador.h"
#include "plataforma/rejilla.h"
#include "plataforma/ventana.h"

namespace calvento {

/// Report of the chute's water surface, computed when the window loads.
class Form11 : public Ventana {
 public:
  Form11(const DesignState& estado, Navegador& navegador);

  Toolbar Toolbar1{*this, "Toolbar1", {"botonimprimir", "botoncopiar"}};
  Grid Grid1{*this, "Grid1"};
  CommandButton Command4{*this, "Command4"};
};

}  // namespace calvento
