#pragma once

#include "plataforma/control.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana.h"

namespace calvento {

/// The About box, shown at every start.
class frmAbout : public Ventana {
 public:
  explicit frmAbout(Navegador& navegador) : Ventana("frmAbout", "Acerca de Calvento V1.0") {
    cmdOK.Click = [this, &navegador] { navegador.descargar(*this); };
  }
  CommandButton cmdOK{*this, "cmdOK"};
  CommandButton* botonPredeterminado() override { return &cmdOK; }
};

}  // namespace calvento
