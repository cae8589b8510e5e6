#pragma once

#include <functional>

#include "modelo/design_state.h"
#include "plataforma/control.h"
#include "plataforma/dialogos.h"
#include "plataforma/navegador.h"
#include "plataforma/rejilla.h"
#include "plataforma/ventana.h"
#include "poza/form2.h"
#include "reportes/verificacion.h"

namespace calvento {

/// Verification of the basin for ten discharges: the table and the verdict on the design, computed when the window
/// loads.
class VentanaVerificacion : public Ventana {
 public:
  Toolbar Toolbar1{*this, "Toolbar1", {"botonimprimir", "botoncopiar"}};
  Grid Grid1{*this, "Grid1"};
  TextBox Text1{*this, "Text1"};
  CommandButton Command1{*this, "Command1"};

 protected:
  VentanaVerificacion(std::string_view nombre, Navegador& navegador, const EstiloVerificacion& estilo,
                      const std::function<void(Rejilla&)>& verificar);
};

/// Chute. It opens whatever its data: what cannot be computed is passed over.
class Form13 : public VentanaVerificacion {
 public:
  Form13(const DesignState& estado, const Form2& parametros, Dialogos& dialogos, Navegador& navegador);
};

/// Inclined drop.
class Form7 : public VentanaVerificacion {
 public:
  Form7(const DesignState& estado, const Form2& parametros, Dialogos& dialogos, Navegador& navegador);
};

/// Vertical drop.
class Form26 : public VentanaVerificacion {
 public:
  Form26(const DesignState& estado, Navegador& navegador);
};

}  // namespace calvento
