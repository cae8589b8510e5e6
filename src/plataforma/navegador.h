#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "plataforma/ventana_datos.h"

namespace calvento {

/// Which calculation the design values come from. It counts when it begins: one that stops half way has written too.
struct Calculo {
  std::uint64_t numero = 0;  ///< how many have begun
  std::string ventana;       ///< the data window that ran it
  std::string nombre;        ///< what the user knows it by: "Rápida canal-norte.cvr"
};

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
  /// A data window has ended a calculation, or changed what one left; to its end or not.
  virtual void calculoTerminado(VentanaDatos& /*ventana*/) {}
  /// Ends the program at once, without a question.
  virtual void terminar() = 0;
  /// A data window has begun a calculation, which the record tells.
  virtual void calculado() {}
  /// How a result window is opened with the last calculation; empty where that has no such result.
  virtual Evento comoMostrar(std::string_view /*ventana*/) const { return {}; }
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
  virtual void calculado(const Calculo& /*ultimo*/) {}
  /// Whether somebody looks: what is only shown need not be computed elsewhere.
  virtual bool conPantalla() const { return true; }
  /// Runs an action when the running event has ended.
  virtual void despues(std::function<void()> accion) = 0;
};

}  // namespace calvento
