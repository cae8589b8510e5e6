#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/control.h"
#include "plataforma/propiedad.h"

namespace calvento {

/// A window without a window system: a name, a caption and its controls, which register themselves on construction.
class Ventana : public Notificable {
 public:
  explicit Ventana(std::string_view nombre, std::string titulo = {})
      : Caption(*this, std::move(titulo)), nombre_(nombre) {}
  Ventana(const Ventana&) = delete;
  Ventana& operator=(const Ventana&) = delete;
  virtual ~Ventana() = default;

  const std::string& nombre() const { return nombre_; }
  Propiedad<std::string> Caption;

  const std::vector<Control*>& controles() const { return controles_; }
  /// The control of that name, or nullptr.
  Control* buscar(std::string_view nombre) const;
  /// The control of that name and kind, or nullptr.
  template <class C>
  C* buscar(std::string_view nombre) const {
    return dynamic_cast<C*>(buscar(nombre));
  }

  /// A window that keeps its texts when it is closed: closing only hides it.
  virtual bool seOculta() const { return false; }
  /// The button that the return key presses; nullptr where there is none.
  virtual CommandButton* botonPredeterminado() { return nullptr; }

  /// Set by the one that shows the window: brings the focus to the first field that is marked.
  Evento alPedirCorreccion;

  /// Set by the one that shows the window; called when its caption changes.
  Evento alCambiar;
  void alCambiarPropiedad(const void*) override { disparar(alCambiar); }

 private:
  friend class Control;
  void inscribir(Control& control) { controles_.push_back(&control); }

  std::string nombre_;
  std::vector<Control*> controles_;
};

}  // namespace calvento
