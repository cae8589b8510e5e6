#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "plataforma/control.h"
#include "plataforma/ventana.h"

namespace calvento {

/// The heading of the manual under which that window is explained, as it stands there; the first one for a name that
/// no window has.
std::string_view capituloDe(std::string_view ventana);

/// The control that shows the manual.
class VisorManual : public Control, public Vinculable<VisorManual> {
 public:
  using Control::Control;
  /// Goes to the chapter of that heading.
  void abrirEn(std::string_view titulo) {
    capitulo = titulo;
    disparar(alCambiar);
  }
  std::string capitulo;  ///< where it is asked to go; whoever shows it takes it away
  /// A link to one of the installed examples, by its file name.
  std::function<void(const std::string& archivo)> alPedirEjemplo;
};

/// The user's manual.
class FormManual : public Ventana {
 public:
  FormManual() : Ventana("FormManual", "Manual del Usuario") {}
  VisorManual Visor1{*this, "Visor1"};
};

}  // namespace calvento
