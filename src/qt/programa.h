#pragma once

#include <memory>

#include "activex/conexion_activex.h"
#include "aplicacion/aplicacion.h"
#include "aplicacion/form_manual.h"
#include "qt/cadena.h"
#include "qt/ejemplos.h"
#include "qt/sistema_qt.h"

namespace calvento {

/// The whole desktop program behind a set of boxes.
struct Programa {
  /// `objetos` is the way to other programs; nullptr for none.
  explicit Programa(Dialogos& dialogos, SistemaObjetos* objetos = nullptr)
      : sistema(dialogos),
        cad(objetos == nullptr ? nullptr : std::make_unique<ConexionActiveX>(*objetos)),
        aplicacion(dialogos, sistema, cad.get()) {
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
  std::unique_ptr<ConexionActiveX> cad;
  Aplicacion aplicacion;
};

}  // namespace calvento
