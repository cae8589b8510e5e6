#include "modelo/rutas.h"

#include <algorithm>
#include <system_error>

namespace calvento {

namespace fs = std::filesystem;

#ifdef _WIN32
namespace {

/// \\?\C:\… and \\?\UNC\server\… as they are written otherwise. The C library sees a wildcard in the prefix, which only
/// longer paths need.
std::string sinPrefijoLargo(std::string_view ruta) {
  constexpr std::string_view prefijo = R"(\\?\)", red = R"(\\?\UNC\)";
  constexpr std::size_t larga = 260;
  if (ruta.size() >= larga || !ruta.starts_with(prefijo)) return std::string(ruta);
  if (ruta.starts_with(red)) return R"(\\)" + std::string(ruta.substr(red.size()));
  const bool conUnidad = ruta.size() > prefijo.size() + 1 && ruta[prefijo.size() + 1] == ':';
  return std::string(conUnidad ? ruta.substr(prefijo.size()) : ruta);
}

}  // namespace
#endif

fs::path comoRuta(std::string_view texto) {
#ifdef _WIN32
  const std::string propia = sinPrefijoLargo(texto);
  texto = propia;
#endif
  return fs::path(std::u8string(texto.begin(), texto.end()));
}

std::string comoTexto(const fs::path& ruta) {
  const std::u8string s = ruta.u8string();
  return std::string(s.begin(), s.end());
}

std::string tituloDeArchivo(const std::string& ruta) { return comoTexto(comoRuta(ruta).filename()); }

bool FileExists(const std::string& ruta) {
  std::error_code ec;
  return fs::exists(comoRuta(ruta), ec);
}

bool tieneExtension(std::string_view archivo, std::string_view extension) {
  const std::size_t punto = archivo.rfind('.');
  if (punto == std::string_view::npos || archivo.size() - punto - 1 != extension.size()) return false;
  return std::equal(extension.begin(), extension.end(), archivo.begin() + static_cast<std::ptrdiff_t>(punto) + 1,
                    [](char minuscula, char c) { return minuscula == (c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c); });
}

std::string conExtension(std::string ruta, std::string_view extension) {
  if (extension.empty() || tieneExtension(ruta, extension)) return ruta;
  if (!ruta.ends_with('.')) ruta += '.';
  return ruta.append(extension);
}

fs::path destinoDe(fs::path archivo) {
  constexpr int enlacesMaximos = 40;  // as many as systems follow themselves
  for (int i = 0; i <= enlacesMaximos; ++i) {
    std::error_code ec;
    if (!fs::is_symlink(fs::symlink_status(archivo, ec))) return archivo;
    const fs::path hacia = fs::read_symlink(archivo, ec);
    if (ec) throw std::system_error(ec);
    archivo = hacia.is_absolute() ? hacia : archivo.parent_path() / hacia;
  }
  throw std::system_error(std::make_error_code(std::errc::too_many_symbolic_link_levels));
}

}  // namespace calvento
