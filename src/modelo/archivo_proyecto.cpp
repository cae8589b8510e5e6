#include "modelo/archivo_proyecto.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <string_view>

#include "modelo/codificacion.h"
#include "modelo/guardado.h"

namespace calvento {

namespace {

namespace fs = std::filesystem;

/// As many bytes as the longest text that a field takes; a longer line is no project.
constexpr std::size_t lineaMaxima = 4 * 32767;

/// Reads the start of the file, as much as so many lines can take.
std::string leerInicio(const fs::path& archivo, std::size_t maximo) {
  std::error_code ec;
  const fs::file_status estado = fs::status(archivo, ec);
  if (!ec && fs::is_directory(estado)) fallarLectura(archivo, "es una carpeta");
  if (!ec && fs::exists(estado) && !fs::is_regular_file(estado)) fallarLectura(archivo, "no es un archivo de texto");
  errno = 0;
  std::ifstream f(archivo, std::ios::binary);
  if (!f) fallarLectura(archivo, razon(ultimoFallo()));
  std::string contenido;
  std::array<char, 16384> trozo{};
  while (f && contenido.size() < maximo) {
    f.read(trozo.data(), trozo.size());
    contenido.append(trozo.data(), static_cast<std::size_t>(f.gcount()));
  }
  if (f.bad()) fallarLectura(archivo, razon(ultimoFallo()));
  return contenido;
}

/// A control character, which no line of a project holds.
bool esMando(char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\t'; }

}  // namespace

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
  guardarEntero(archivo, contenido);
}

}  // namespace calvento
