#pragma once

#include "comun/version.h"
#include "plataforma/control.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana.h"

namespace calvento {

/// The About box, shown at every start.
class frmAbout : public Ventana {
 public:
  explicit frmAbout(Navegador& navegador) : Ventana("frmAbout", "Acerca de Calvento V1.0") {
    lblVersion.ToolTipText = "Calvento " + version();
    cmdOK.Click = [this, &navegador] { navegador.descargar(*this); };
  }
  /// The line of the emblem stays; the version to the last number is its tooltip.
  Label lblVersion{*this, "lblVersion", "Versión 1.0"};
  CommandButton cmdOK{*this, "cmdOK"};
  CommandButton* botonPredeterminado() override { return &cmdOK; }
};

}  // namespace calvento
