#pragma once

#include "aplicacion/aplicacion.h"
#include "aplicacion/form_manual.h"
#include "qt/cadena.h"
#include "qt/ejemplos.h"
#include "qt/sistema_qt.h"

namespace calvento {

/// The whole desktop program behind a set of boxes.
struct Programa {
  explicit Programa(Dialogos& dialogos) : sistema(dialogos), aplicacion(dialogos, sistema) {
    sistema.responder(aplicacion);
    sistema.alPedirAyuda = [this](std::string_view ventana) {
      aplicacion.ayuda(ventana).alPedirEjemplo = [this](const std::string& nombre) {
        if (const QString archivo = rutaEjemplo(aQt(nombre)); !archivo.isEmpty())
          aplicacion.abrirProyecto(deQt(archivo), true);
      };
    };
  }
  ~Programa() { sistema.cerrarTodo(); }
  Programa(const Programa&) = delete;
  Programa& operator=(const Programa&) = delete;

  SistemaQt sistema;
  Aplicacion aplicacion;
};

}  // namespace calvento
