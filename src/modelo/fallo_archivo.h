#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace calvento {

/// A file that cannot be read or written; what() is a short Spanish text with the system's reason.
class FalloArchivo : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The system's reason in the user's words: systems tell it in the language of the machine.
std::string razon(const std::error_code& ec);

/// What the last failed call of the C library has left in errno.
std::error_code ultimoFallo();

/// Throws FalloArchivo: "No se puede leer el archivo …: razón", named without its folder.
[[noreturn]] void fallarLectura(const std::filesystem::path& archivo, const std::string& razon);
[[noreturn]] void fallarEscritura(const std::filesystem::path& archivo, const std::string& razon);

}  // namespace calvento
