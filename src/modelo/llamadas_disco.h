#pragma once

#ifndef _WIN32

#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <string_view>
#include <sys/types.h>
#include <unistd.h>

namespace calvento {

/// The calls of the system on which the safety of a file hangs, so that a test can watch their order and let them fail.
struct LlamadasDisco {
  std::function<int(int carpeta, const char* nombre, int modo, mode_t permisos)> openat =
      [](int carpeta, const char* nombre, int modo, mode_t permisos) {
        return ::openat(carpeta, nombre, modo, permisos);
      };
  std::function<ssize_t(int, const void*, std::size_t)> write = ::write;
  std::function<int(int)> fsync = ::fsync;
  std::function<int(int, uid_t, gid_t)> fchown = ::fchown;
  std::function<int(int, const char*, int, const char*)> renameat = ::renameat;
};

/// guardarEntero by these calls.
void guardarEntero(const std::filesystem::path& archivo, std::string_view contenido, const LlamadasDisco& sistema);

}  // namespace calvento

#endif
