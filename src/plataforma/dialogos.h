#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace calvento {

/// What a file dialog needs to know.
struct OpcionesArchivo {
  std::string titulo;
  std::string extension;  ///< default extension, without the point
  std::string filtro;     ///< "Description(*.EXT)|*.ext"
  std::string sugerido;   ///< name shown at the start
};

/// Message boxes, questions and file dialogs: the only door by which the program speaks to the user in boxes.
class Dialogos {
 public:
  virtual ~Dialogos() = default;
  /// A message with an OK button.
  virtual void aviso(const std::string& texto) = 0;
  /// A message of an error handler, with an OK button.
  virtual void fallo(const std::string& texto) = 0;
  /// A question with Yes and No and an exclamation mark; true for Yes.
  virtual bool pregunta(const std::string& texto) = 0;
  /// The full path chosen to open, or nothing.
  virtual std::optional<std::string> abrirArchivo(const OpcionesArchivo& opciones) = 0;
  /// The full path chosen to save to, or nothing. Does not ask about overwriting.
  virtual std::optional<std::string> guardarArchivo(const OpcionesArchivo& opciones) = 0;
};

}  // namespace calvento
