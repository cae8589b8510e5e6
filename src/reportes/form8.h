#pragma once

#include "modelo/design_state.h"
#include "plataforma/control.h"
#include "plataforma/lienzo.h"
#include "plataforma/navegador.h"
#include "plataforma/rejilla.h"
#include "plataforma/ventana.h"
#include "reportes/trayectoria.h"

namespace calvento {

/// The trajectory between the chute's end and the ramp into the basin: coordinates and a plot between two axes,
/// computed when the window loads.
class Form8 : public Ventana {
 public:
  Form8(const DesignState& estado, Navegador& navegador);

  Toolbar Toolbar1{*this, "Toolbar1", {"botonimprimir", "botoncopiar"}};
  PictureBox P{*this, "P", 341, 277};
  PictureBox Picture1{*this, "Picture1", 389, 41};  ///< axis of distances
  PictureBox Picture2{*this, "Picture2", 75, 277};  ///< axis of elevations
  Grid Grid1{*this, "Grid1"};
  CommandButton Command1{*this, "Command1"};

 private:
  void ejes();

  Single cotaFin_;
  LimitesTrayectoria limites_;
};

}  // namespace calvento
