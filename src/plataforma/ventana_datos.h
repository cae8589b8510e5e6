#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "plataforma/mensaje.h"
#include "plataforma/ventana.h"

namespace calvento {

/// The data window of a structure, for those who run it without knowing which one it is.
class VentanaDatos : public Ventana {
 public:
  using Ventana::Ventana;
  /// Reads the project file into the fields and calculates. What fails is told in a box and leaves the fields as they
  /// were.
  virtual void abrir(const std::string& ruta) = 0;
  /// The whole calculation with the fields as they stand.
  virtual void Command3_Click() = 0;
  /// Whether the last Command3 ran through to its last step; false before the first.
  virtual bool calculado() const = 0;
  /// How the window opens that result window; empty where it has no such result, or none yet.
  virtual Evento comoMostrar(std::string_view resultado) const = 0;
  /// The boxes of the last Command3, and the answers to its questions.
  virtual const std::vector<Mensaje>& mensajes() const = 0;
};

}  // namespace calvento
