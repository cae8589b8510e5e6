#pragma once

#include "plataforma/control.h"
#include "plataforma/dialogos.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana.h"

namespace calvento {

/// The multiple-document frame: its menu and toolbar open the working windows.
class frmMain : public Ventana {
 public:
  frmMain(Navegador& navegador, Dialogos& dialogos);

  Menu mnrapida{*this, "mnrapida"};
  Menu mncaidainclinada{*this, "mncaidainclinada"};
  Menu mncaidavertical{*this, "mncaidavertical"};
  Menu mnnormal{*this, "mnnormal"};
  Menu mnconjugados{*this, "mnconjugados"};
  Menu mnsalir{*this, "mnsalir"};
  Menu mndocumento{*this, "mndocumento"};
  Menu mnacerca{*this, "mnacerca"};
  Toolbar Toolbar1{*this, "Toolbar1", {"rapida", "caidainclinada", "caidavertical", "canal"}};
};

}  // namespace calvento
