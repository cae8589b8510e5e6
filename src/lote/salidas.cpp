#include "lote/salidas.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <span>
#include <system_error>
#include <vector>

#include "modelo/rutas.h"

namespace calvento::lote {

namespace {

namespace fs = std::filesystem;

/// An option that writes a file for each project.
struct Clase {
  const char* opcion;
  std::string Opciones::*patron;
  std::vector<const char*> extensiones;

  bool admite(const std::string& archivo) const {
    return std::ranges::any_of(extensiones, [&](const char* e) { return tieneExtension(archivo, e); });
  }
};

std::vector<const char*> extensionesDibujo() {
  if constexpr (conQt) return {"svg", "pdf", "png"};
  return {"svg"};
}

std::span<const Clase> clases() {
  static const std::array<Clase, 3> todas = {{{"--dibujo", &Opciones::dibujo, extensionesDibujo()},
                                              {"--dxf", &Opciones::dxf, {"dxf"}},
                                              {"--memoria", &Opciones::memoria, {"pdf", "html", "odt"}}}};
  return todas;
}

/// Who reads or writes a file; a reader has no option.
struct Uso {
  const char* opcion;
  std::string proyecto;
};

/// The files of a command by what they are, not by the names that they go by.
class Archivos {
 public:
  /// Who has the file already, or nobody (nullptr); then it is this one's.
  const Uso* tomar(const std::string& archivo, const Uso& uso) {
    std::error_code ec;
    const fs::path ruta = comoRuta(archivo);
    const auto [mismo, nuevo] = porRuta_.emplace(identidad(ruta), uso);
    if (!nuevo) return &mismo->second;
    if (fs::hard_link_count(ruta, ec) < 2 || ec) return nullptr;
    if (uso.opcion != nullptr)  // two names of an input do no harm
      for (const auto& [otra, suyo] : conVariosNombres_)
        if (fs::equivalent(ruta, otra, ec)) return &suyo;
    conVariosNombres_.emplace_back(ruta, uso);
    return nullptr;
  }

  static fs::path identidad(const fs::path& ruta) {
    try {
      const fs::path destino = destinoDe(ruta);
      std::error_code ec;
      const fs::path carpeta = fs::canonical(destino.has_parent_path() ? destino.parent_path() : fs::path("."), ec);
      return ec ? destino : carpeta / destino.filename();
    } catch (const std::system_error&) {
      return ruta;  // a circle of links: told where it is opened
    }
  }

 private:
  std::map<fs::path, Uso> porRuta_;
  std::vector<std::pair<fs::path, Uso>> conVariosNombres_;
};

void comprobarClase(const Clase& clase, const Opciones& o, Archivos& archivos) {
  const std::string& patron = o.*clase.patron;
  const std::string opcion = clase.opcion;
  if (o.archivos.size() > 1 && patron.find("{}") == std::string::npos)
    throw OpcionErronea(opcion + ": con más de un proyecto, el nombre debe contener {}");
  for (const std::string& proyecto : o.archivos) {
    const std::string archivo = archivoDeSalida(patron, proyecto);
    if (!clase.admite(archivo)) {
      std::string cuales;
      for (const char* e : clase.extensiones) cuales += (cuales.empty() ? "." : ", .") + std::string(e);
      throw OpcionErronea(opcion + " " + archivo + ": el nombre debe terminar en " + cuales);
    }
    const Uso* const otro = archivos.tomar(archivo, {clase.opcion, proyecto});
    if (otro == nullptr) continue;
    if (otro->opcion == nullptr)
      throw OpcionErronea(opcion + " " + archivo + ": escribiría encima del proyecto " + otro->proyecto);
    if (otro->opcion != clase.opcion)
      throw OpcionErronea(std::string(otro->opcion) + " y " + opcion + " darían el mismo archivo, " + archivo);
    // the same project named twice gives the same drawing twice
    if (Archivos::identidad(comoRuta(otro->proyecto)) != Archivos::identidad(comoRuta(proyecto)))
      throw OpcionErronea(opcion + ": " + otro->proyecto + " y " + proyecto + " darían el mismo archivo, " + archivo);
  }
}

}  // namespace

std::string archivoDeSalida(const std::string& patron, const std::string& proyecto) {
  std::string archivo = patron;
  const std::size_t lugar = archivo.find("{}");
  if (lugar != std::string::npos) archivo.replace(lugar, 2, comoTexto(comoRuta(proyecto).stem()));
  return archivo;
}

bool esDeSalida(const std::string& archivo) {
  return std::ranges::any_of(clases(), [&](const Clase& c) { return c.admite(archivo); });
}

void comprobarSalidas(const Opciones& opciones) {
  Archivos archivos;
  for (const Clase& clase : clases()) {
    if ((opciones.*clase.patron).empty()) continue;
    for (const std::string& proyecto : opciones.archivos) archivos.tomar(proyecto, {nullptr, proyecto});
    comprobarClase(clase, opciones, archivos);
  }
}

}  // namespace calvento::lote
