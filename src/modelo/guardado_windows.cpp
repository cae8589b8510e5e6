#ifdef _WIN32

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>
#include <system_error>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include "modelo/fallo_archivo.h"
#include "modelo/guardado.h"
#include "modelo/rutas.h"

namespace calvento {

namespace {

namespace fs = std::filesystem;

std::system_error fallo() { return std::system_error(static_cast<int>(::GetLastError()), std::system_category()); }

class Manija {
 public:
  explicit Manija(HANDLE h) : h_(h) {}
  Manija(const Manija&) = delete;
  Manija& operator=(const Manija&) = delete;
  ~Manija() { cerrar(); }
  operator HANDLE() const { return h_; }
  bool falta() const { return h_ == INVALID_HANDLE_VALUE; }
  void cerrar() {
    if (!falta()) ::CloseHandle(h_);
    h_ = INVALID_HANDLE_VALUE;
  }

 private:
  HANDLE h_;
};

Manija abrir(const fs::path& archivo, DWORD como) {
  return Manija(::CreateFileW(archivo.c_str(), GENERIC_WRITE, 0, nullptr, como, FILE_ATTRIBUTE_NORMAL, nullptr));
}

void escribir(HANDLE archivo, std::string_view bytes) {
  constexpr std::size_t trozo = 1U << 24U;
  while (!bytes.empty()) {
    DWORD n = 0;
    if (::WriteFile(archivo, bytes.data(), static_cast<DWORD>(std::min(bytes.size(), trozo)), &n, nullptr) == 0)
      throw fallo();
    bytes.remove_prefix(n);
  }
  if (::FlushFileBuffers(archivo) == 0) throw fallo();
}

/// Virus scanners and indexers hold a new file for moments.
template <class Llamada>
bool insistiendo(Llamada llamada) {
  constexpr int intentos = 20;
  for (int i = 0; i < intentos; ++i) {
    if (llamada() != 0) return true;
    const DWORD motivo = ::GetLastError();
    if (motivo != ERROR_SHARING_VIOLATION && motivo != ERROR_ACCESS_DENIED && motivo != ERROR_LOCK_VIOLATION &&
        motivo != ERROR_UNABLE_TO_REMOVE_REPLACED)
      return false;
    ::Sleep(25);
  }
  return false;
}

void guardar(const fs::path& destino, std::string_view contenido, bool existe) {
  std::random_device azar;
  char nombre[40];
  std::snprintf(nombre, sizeof nombre, ".calvento-%08x%04x.tmp~", azar(), azar() & 0xFFFFU);
  const fs::path temporal = destino.parent_path() / nombre;
  Manija nuevo = abrir(temporal, CREATE_NEW);
  if (nuevo.falta()) {
    const std::system_error motivo = fallo();
    // a folder that refuses new files may hold one that can be written
    Manija anterior = abrir(destino, OPEN_EXISTING);
    if (!existe || anterior.falta()) throw motivo;
    escribir(anterior, contenido);
    if (::SetEndOfFile(anterior) == 0 || ::FlushFileBuffers(anterior) == 0) throw fallo();
    return;
  }
  try {
    escribir(nuevo, contenido);
    nuevo.cerrar();
    // which keeps access lists, attributes and streams of the former file
    const bool listo = insistiendo([&] {
      return existe
                 ? ::ReplaceFileW(destino.c_str(), temporal.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                                  nullptr)
                 : ::MoveFileExW(temporal.c_str(), destino.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    });
    if (!listo) throw fallo();
  } catch (const std::system_error&) {
    nuevo.cerrar();
    ::DeleteFileW(temporal.c_str());
    throw;
  }
}

}  // namespace

void guardarEntero(const fs::path& archivo, std::string_view contenido) {
  try {
    const fs::path destino = fs::absolute(destinoDe(archivo));  // not every ReplaceFileW takes a relative one
    std::error_code ec;
    const fs::file_status antes = fs::status(destino, ec);
    if (fs::is_directory(antes)) fallarEscritura(archivo, "es una carpeta");
    if (fs::exists(antes) && !fs::is_regular_file(antes)) fallarEscritura(archivo, "es una tubería o un dispositivo");
    const DWORD atributos = ::GetFileAttributesW(destino.c_str());
    if (atributos != INVALID_FILE_ATTRIBUTES && (atributos & FILE_ATTRIBUTE_READONLY) != 0)
      fallarEscritura(archivo, "el archivo es de solo lectura");
    guardar(destino, contenido, fs::exists(antes));
  } catch (const std::system_error& fallo) {
    fallarEscritura(archivo, razon(fallo.code()));
  }
}

void contarLimiteComoFallo() {}

}  // namespace calvento

#endif
