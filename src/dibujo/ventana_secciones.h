#pragma once

#include <vector>

#include "dibujo/secciones.h"
#include "plataforma/control.h"
#include "plataforma/lienzo.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana.h"

namespace calvento {

/// The cross-sections of a structure, one at a time. Opens on the first one; where that cannot be drawn the canvas
/// stays empty.
class VentanaSecciones : public Ventana {
 public:
  ComboBox Combo1{*this, "Combo1"};
  CommandButton Command1{*this, "Command1"};  ///< next
  CommandButton Command2{*this, "Command2"};  ///< previous
  PictureBox P{*this, "P", 451, 275};
  PictureBox Picture1{*this, "Picture1", 515, 41};  ///< horizontal ruler
  PictureBox Picture2{*this, "Picture2", 65, 275};  ///< vertical ruler
  Toolbar Toolbar1{*this, "Toolbar1", {"botonimprimir", "botoncopiar"}};

  void DIBUJASECCION();

 protected:
  VentanaSecciones(std::string_view nombre, const DesignState& estado, Navegador& navegador,
                   std::vector<SeccionNombrada> secciones);

 private:
  /// Steps through the list, from either end to the other.
  void pasar(int paso);

  const DesignState& estado_;
  std::vector<SeccionNombrada> secciones_;
};

/// Chute.
class Form19 : public VentanaSecciones {
 public:
  Form19(const DesignState& estado, Navegador& navegador);
};

/// Inclined drop.
class Form20 : public VentanaSecciones {
 public:
  Form20(const DesignState& estado, Navegador& navegador);
};

/// Vertical drop.
class Form24 : public VentanaSecciones {
 public:
  Form24(const DesignState& estado, Navegador& navegador);
};

}  // namespace calvento
