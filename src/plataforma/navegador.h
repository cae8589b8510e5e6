#pragma once

#include <string_view>

#include "plataforma/ventana.h"

namespace calvento {

/// What a window asks for beyond itself: other windows by their name, the printer and the clipboard.
class Navegador {
 public:
  virtual ~Navegador() = default;
  /// Loads the window if it is not loaded, shows it and brings it forward.
  virtual void mostrar(std::string_view ventana) = 0;
  /// Hides a window; its texts stay.
  virtual void ocultar(Ventana& ventana) = 0;
  /// Unloads a window: it comes back with its defaults. The object lives until the running event has ended.
  virtual void descargar(Ventana& ventana) = 0;
  /// The window's image to the default printer, and to the clipboard.
  virtual void imprimir(Ventana& ventana) = 0;
  virtual void copiar(Ventana& ventana) = 0;
  /// Ends the program at once, without a question.
  virtual void terminar() = 0;
};

/// What shows windows. The desktop program has a real one; batches and tests have one that shows nothing.
class SistemaVentanas {
 public:
  virtual ~SistemaVentanas() = default;
  virtual void presentar(Ventana& ventana) = 0;  ///< show, or bring forward
  virtual void ocultar(Ventana& ventana) = 0;
  virtual void cerrar(Ventana& ventana) = 0;  ///< forget: the window object is about to go
  virtual void imprimir(Ventana& ventana) = 0;
  virtual void copiar(Ventana& ventana) = 0;
  virtual void terminar() = 0;
  /// Runs an action when the running event has ended.
  virtual void despues(std::function<void()> accion) = 0;
};

}  // namespace calvento
