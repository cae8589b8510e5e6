#include "modelo/archivo_proyecto.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <memory>
#include <system_error>
#include <utility>

#include "modelo/codificacion.h"

namespace calvento {

namespace {

namespace fs = std::filesystem;

/// As many bytes as the longest text that a field takes; a longer line is no project.
constexpr std::size_t lineaMaxima = 4 * 32767;

/// The system tells its reasons in the language of the machine: the usual ones are told here in the user's.
std::string razon(const std::error_code& ec) {
  static constexpr std::array<std::pair<std::errc, const char*>, 9> conocidas = {{
      {std::errc::no_such_file_or_directory, "no existe el archivo o la carpeta"},
      {std::errc::not_a_directory, "no existe la carpeta"},
      {std::errc::permission_denied, "no hay permiso"},
      {std::errc::operation_not_permitted, "no hay permiso"},
      {std::errc::read_only_file_system, "el disco es de solo lectura"},
      {std::errc::no_space_on_device, "no queda espacio en el disco"},
      {std::errc::file_too_large, "no queda espacio en el disco"},
      {std::errc::filename_too_long, "el nombre es demasiado largo"},
      {std::errc::io_error, "el disco no responde"},
  }};
  for (const auto& [motivo, texto] : conocidas)
    if (ec == motivo) return texto;
  return "fallo " + std::to_string(ec.value()) + " del sistema";
}

std::string razonDelSistema() {
  return errno != 0 ? razon(std::error_code(errno, std::generic_category())) : std::string("motivo desconocido");
}

std::string nombre(const fs::path& archivo) {
  const std::u8string s = archivo.filename().u8string();
  return std::string(s.begin(), s.end());
}

[[noreturn]] void fallarLectura(const fs::path& archivo, const std::string& razon) {
  throw FalloArchivo("No se puede leer el archivo " + nombre(archivo) + ": " + razon);
}

[[noreturn]] void fallarEscritura(const fs::path& archivo, const std::string& razon) {
  throw FalloArchivo("No se puede guardar el archivo " + nombre(archivo) + ": " + razon);
}

/// Reads the start of the file, as much as so many lines can take.
std::string leerInicio(const fs::path& archivo, std::size_t maximo) {
  std::error_code ec;
  const fs::file_status estado = fs::status(archivo, ec);
  if (!ec && fs::is_directory(estado)) fallarLectura(archivo, "es una carpeta");
  if (!ec && fs::exists(estado) && !fs::is_regular_file(estado)) fallarLectura(archivo, "no es un archivo de texto");
  errno = 0;
  std::ifstream f(archivo, std::ios::binary);
  if (!f) fallarLectura(archivo, razonDelSistema());
  std::string contenido;
  std::array<char, 16384> trozo{};
  while (f && contenido.size() < maximo) {
    f.read(trozo.data(), trozo.size());
    contenido.append(trozo.data(), static_cast<std::size_t>(f.gcount()));
  }
  if (f.bad()) fallarLectura(archivo, razonDelSistema());
  return contenido;
}

constexpr fs::perms deEscritura = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

/// A control character, which no line of a project holds.
bool esMando(char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\t'; }

using Archivo = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

void escribirTodo(const fs::path& temporal, std::string_view contenido) {
  errno = 0;
#ifdef _WIN32
  Archivo f(_wfopen(temporal.c_str(), L"wb"), &std::fclose);
#else
  Archivo f(std::fopen(temporal.c_str(), "wb"), &std::fclose);
#endif
  if (!f) fallarEscritura(temporal, razonDelSistema());
  if (std::fwrite(contenido.data(), 1, contenido.size(), f.get()) != contenido.size())
    fallarEscritura(temporal, razonDelSistema());
  // what does not fit the disk is often told only when the last bytes leave
  if (std::fclose(f.release()) != 0) fallarEscritura(temporal, razonDelSistema());
}

}  // namespace

bool tieneExtension(std::string_view archivo, std::string_view extension) {
  const std::size_t punto = archivo.rfind('.');
  if (punto == std::string_view::npos || archivo.size() - punto - 1 != extension.size()) return false;
  return std::equal(extension.begin(), extension.end(), archivo.begin() + static_cast<std::ptrdiff_t>(punto) + 1,
                    [](char minuscula, char c) { return minuscula == (c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c); });
}

std::vector<std::string> leerLineas(const fs::path& archivo, std::size_t cuantas) {
  std::string contenido = leerInicio(archivo, (cuantas + 1) * lineaMaxima);
  std::string_view resto = contenido;
  constexpr std::string_view marcaOrden = "\xEF\xBB\xBF";
  if (resto.substr(0, marcaOrden.size()) == marcaOrden) resto.remove_prefix(marcaOrden.size());

  std::vector<std::string> lineas;
  while (lineas.size() < cuantas && !resto.empty()) {
    const std::size_t fin = resto.find('\n');
    std::string_view linea = resto.substr(0, fin);
    if (!linea.empty() && linea.back() == '\r') linea.remove_suffix(1);
    const bool binaria = std::any_of(linea.begin(), linea.end(), esMando);
    if (binaria || linea.size() > lineaMaxima) fallarLectura(archivo, "no es un archivo de proyecto");
    lineas.push_back(aUtf8(linea));
    if (fin == std::string_view::npos) break;
    resto.remove_prefix(fin + 1);
  }
  return lineas;
}

void escribirLineas(const fs::path& archivo, const std::vector<std::string>& lineas) {
  std::string contenido;
  for (std::string linea : lineas) {
    // a line break pasted into a field would shift all lines behind it
    std::replace_if(linea.begin(), linea.end(), esMando, ' ');
    // a text that the code page cannot hold goes as UTF-8, which is understood on reading: nothing typed is lost
    const std::string codificada = aWindows1252(linea);
    contenido += (aUtf8(codificada) == linea ? codificada : linea) + "\r\n";
  }
  escribirAtomico(archivo, contenido);
}

void escribirAtomico(const fs::path& archivo, std::string_view contenido) {
  std::error_code ec;
  const fs::file_status anterior = fs::status(archivo, ec);
  if (fs::is_directory(anterior)) fallarEscritura(archivo, "es una carpeta");
  if (fs::exists(anterior) && !fs::is_regular_file(anterior)) fallarEscritura(archivo, "no es un archivo de texto");
  // through a link, so that the link stays and its target is replaced
  fs::path destino = fs::is_symlink(archivo, ec) ? fs::canonical(archivo, ec) : archivo;
  if (ec || destino.empty()) destino = archivo;
  // a rename would replace a file that its owner has closed to writing
  if (fs::exists(anterior) && (anterior.permissions() & deEscritura) == fs::perms::none)
    fallarEscritura(archivo, "el archivo es de solo lectura");
  fs::path temporal = destino;
  temporal += ".tmp~";
  const auto limpiar = [&temporal] {
    std::error_code ignorado;
    fs::remove(temporal, ignorado);
  };
  try {
    escribirTodo(temporal, contenido);
  } catch (const FalloArchivo& fallo) {
    const std::string texto = fallo.what();
    limpiar();
    fallarEscritura(archivo, texto.substr(texto.rfind(": ") + 2));
  }
  if (fs::exists(anterior)) fs::permissions(temporal, anterior.permissions(), ec);
  fs::rename(temporal, destino, ec);
  if (ec) {
    limpiar();
    fallarEscritura(archivo, razon(ec));
  }
}

}  // namespace calvento
