#ifndef _WIN32

#include "modelo/atributos_posix.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#ifdef __linux__
#include <sys/xattr.h>
#elif defined(__APPLE__)
#include <copyfile.h>
#endif

namespace calvento {

#ifdef __linux__

namespace {

/// What a call of the kind "tell the size, then fill the buffer" gives; nothing where it fails.
template <class Llamada>
std::optional<std::string> llenar(Llamada llamada) {
  const auto largo = llamada(nullptr, std::size_t{0});
  if (largo < 0) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(largo), '\0');
  const auto n = llamada(bytes.data(), bytes.size());
  if (n < 0) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(n));
  return bytes;
}

std::optional<std::string> valor(int fd, const std::string& nombre) {
  return llenar([&](char* bufer, std::size_t n) { return ::fgetxattr(fd, nombre.c_str(), bufer, n); });
}

std::optional<std::vector<std::string>> nombres(int fd) {
  // seals of the content and rights of programs: the system's own, and no longer true of another content
  static constexpr std::array<std::string_view, 3> sellos = {"security.capability", "security.evm", "security.ima"};
  const auto juntos = llenar([fd](char* bufer, std::size_t n) { return ::flistxattr(fd, bufer, n); });
  if (!juntos) return errno == ENOTSUP ? std::optional(std::vector<std::string>{}) : std::nullopt;
  std::vector<std::string> lista;
  for (std::size_t i = 0; i < juntos->size(); i += lista.back().size() + 1) lista.emplace_back(juntos->c_str() + i);
  std::erase_if(lista, [](const std::string& n) { return std::ranges::find(sellos, n) != sellos.end(); });
  return lista;
}

}  // namespace

bool copiarAtributos(int de, int a) {
  const auto queridos = nombres(de), propios = nombres(a);
  if (!queridos || !propios) return false;
  for (const std::string& n : *propios)  // a folder hands lists of its own to what is made in it
    if (std::ranges::find(*queridos, n) == queridos->end() && ::fremovexattr(a, n.c_str()) == -1) return false;
  return std::ranges::all_of(*queridos, [&](const std::string& n) {
    const auto v = valor(de, n);
    return v && (valor(a, n) == v || ::fsetxattr(a, n.c_str(), v->data(), v->size(), 0) == 0);
  });
}

#elif defined(__APPLE__)

bool copiarAtributos(int de, int a) { return ::fcopyfile(de, a, nullptr, COPYFILE_ACL | COPYFILE_XATTR) == 0; }

#else

bool copiarAtributos(int, int) { return true; }

#endif

}  // namespace calvento

#endif
