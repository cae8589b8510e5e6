#include "modelo/archivo_proyecto.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <memory>
#include <system_error>

#include "modelo/codificacion.h"

namespace calvento {

namespace {

namespace fs = std::filesystem;

/// Far beyond any field; a longer line is no project.
constexpr std::size_t lineaMaxima = 4096;

std::string razonDelSistema() {
  return errno != 0 ? std::generic_category().message(errno) : std::string("motivo desconocido");
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
  std::string contenido(maximo, '\0');
  f.read(contenido.data(), static_cast<std::streamsize>(maximo));
  if (f.bad()) fallarLectura(archivo, razonDelSistema());
  contenido.resize(static_cast<std::size_t>(f.gcount()));
  return contenido;
}

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
    const bool binaria = std::any_of(linea.begin(), linea.end(),
                                     [](char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\t'; });
    if (binaria || linea.size() > lineaMaxima) fallarLectura(archivo, "no es un archivo de proyecto");
    lineas.push_back(aUtf8(linea));
    if (fin == std::string_view::npos) break;
    resto.remove_prefix(fin + 1);
  }
  return lineas;
}

void escribirLineas(const fs::path& archivo, const std::vector<std::string>& lineas) {
  std::string contenido;
  for (const std::string& linea : lineas) {
    // a text that the code page cannot hold goes as UTF-8, which is understood on reading: nothing typed is lost
    const std::string codificada = aWindows1252(linea);
    contenido += (aUtf8(codificada) == linea ? codificada : linea) + "\r\n";
  }
  escribirAtomico(archivo, contenido);
}

void escribirAtomico(const fs::path& archivo, std::string_view contenido) {
  std::error_code ec;
  if (fs::is_directory(archivo, ec)) fallarEscritura(archivo, "es una carpeta");
  // through a link, so that the link stays and its target is replaced
  fs::path destino = fs::is_symlink(archivo, ec) ? fs::canonical(archivo, ec) : archivo;
  if (ec || destino.empty()) destino = archivo;
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
  const fs::file_status anterior = fs::status(destino, ec);
  if (!ec && fs::exists(anterior)) fs::permissions(temporal, anterior.permissions(), ec);
  fs::rename(temporal, destino, ec);
  if (ec) {
    limpiar();
    fallarEscritura(archivo, ec.message());
  }
}

}  // namespace calvento
