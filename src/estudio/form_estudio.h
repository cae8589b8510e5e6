#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>

#include "estudio/entradas.h"
#include "plataforma/control.h"
#include "plataforma/ventana.h"

namespace calvento {

/// The control in which alternatives to the design of a data window are chosen, calculated and looked at.
class VisorEstudio : public Control, public Vinculable<VisorEstudio> {
 public:
  using Control::Control;
  const Ficha* ficha = nullptr;
  /// The design as its windows stand now; nothing where they are closed.
  std::function<std::optional<Diseno>()> base;
  /// Writes the values into the data window and presses its OK.
  std::function<void(std::span<const Puesto>)> usar;
};

/// The study of alternatives, one window for each kind of structure. Neither the record nor a field changes before the
/// user takes one of them.
class FormEstudio : public Ventana {
 public:
  FormEstudio(std::string_view nombre, const Ficha& ficha) : Ventana(nombre, "Estudio de Alternativas") {
    Visor1.ficha = &ficha;
  }
  VisorEstudio Visor1{*this, "Visor1"};
};

}  // namespace calvento
