#pragma once

#include <memory>

#include "memoria/fichas.h"
#include "memoria/mesa.h"
#include "plataforma/ventana_datos.h"

namespace calvento {

/// The windows of a structure on a record of their own, which nobody sees: what happens in them reaches neither the
/// user's record, fields and files nor a box.
class VentanasPropias {
 public:
  /// `respuesta`: to every question, true for yes.
  explicit VentanasPropias(const Ficha& ficha, bool respuesta = true);

  VentanaDatos& datos() { return *datos_; }
  Ventana& parametros() { return *parametros_; }
  DesignState estado;

 private:
  NavegadorNulo navegador_;
  DialogosNulos dialogos_;
  std::unique_ptr<Ventana> parametros_;  // before the data window, which holds a reference to it
  std::unique_ptr<VentanaDatos> datos_;
};

}  // namespace calvento
