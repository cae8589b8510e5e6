#pragma once

#include "aplicacion/aplicacion.h"
#include "qt/sistema_qt.h"

namespace calvento {

/// The whole desktop program behind a set of boxes.
struct Programa {
  explicit Programa(Dialogos& dialogos) : sistema(dialogos), aplicacion(dialogos, sistema) {
    sistema.responder(aplicacion);
  }
  ~Programa() { sistema.cerrarTodo(); }
  Programa(const Programa&) = delete;
  Programa& operator=(const Programa&) = delete;

  SistemaQt sistema;
  Aplicacion aplicacion;
};

}  // namespace calvento
