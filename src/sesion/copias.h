#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "modelo/archivo_proyecto.h"
#include "modelo/proyecto.h"

namespace calvento {

/// What a data window held and no project has: kept until it is old, or pushed out by later ones.
struct Copia {
  std::string id;
  std::string nombre;     ///< of the project; empty: it never had one
  std::string caudal;     ///< as it was typed
  std::string elevacion;  ///< the first one of the structure, as it was typed
  std::chrono::system_clock::time_point hora;
  bool abierta = false;  ///< the program ended before its window was left in an orderly way
};

/// The safety copies of the data windows, in one folder for all programs of the user: each a project file with a small
/// text beside it that holds the rest. Each running program writes its own.
class Copias {
 public:
  using Hora = std::chrono::system_clock::time_point;
  struct Entorno {
    std::filesystem::path carpeta;
    std::string programa;  ///< names this run, unlike all others; letters, digits and hyphens
    std::function<Hora()> ahora;
    std::function<bool(const std::string& programa)> corre;  ///< whether that run has not ended
  };
  explicit Copias(Entorno entorno) : entorno_(std::move(entorno)) {}

  /// Makes the folder, for this user alone.
  void hacerCarpeta() const;
  /// Keeps what stands in the window, in the place of what was kept of it since it was last left. Fails with
  /// FalloArchivo; the former copy is then as it was.
  void guardar(const FormatoProyecto& formato, const Trabajo& trabajo);
  /// The user leaves the contents unsaved: the copy stays. One with the same contents goes, and what is too old or too
  /// many.
  void dejar(const FormatoProyecto& formato);
  /// The contents stand in their project, or are none: their copy goes, and others that are the same.
  void soltar(const FormatoProyecto& formato, const Contenido& contenido);

  /// What can be brought back, the newest first: not what stands in a window of a running program.
  std::vector<Copia> lista(const FormatoProyecto& formato) const;
  /// The newest copy of a program that ended before it left its window. Each is told once: then it is one as the
  /// others.
  std::optional<Copia> sinDejar(const FormatoProyecto& formato);
  /// Fails with FalloArchivo where the copy is gone or damaged.
  Trabajo leer(const FormatoProyecto& formato, const std::string& id) const;

  static constexpr std::size_t cuantas = 10;  ///< of each structure
  static constexpr std::chrono::days duracion{90};

 private:
  struct Ficha;
  struct Abierta {
    std::string id;
    std::string escrita;  ///< the small text but for its time
    Hora hora;
  };
  std::filesystem::path proyecto(const FormatoProyecto& formato, const std::string& id) const;
  std::filesystem::path texto(const FormatoProyecto& formato, const std::string& id) const;
  void escribirFicha(const FormatoProyecto& formato, Abierta& abierta, const std::string& ficha);
  Ficha leerFicha(const FormatoProyecto& formato, const std::string& id) const;
  std::vector<Copia> todas(const FormatoProyecto& formato) const;
  void borrar(const FormatoProyecto& formato, const std::string& id) const;
  void borrarIguales(const FormatoProyecto& formato, const Contenido& contenido, const std::string& menos) const;
  void ordenar(const FormatoProyecto& formato) const;

  Entorno entorno_;
  std::map<std::string, Abierta, std::less<>> abiertas_;  ///< by the name of the data window
  int escritas_ = 0;
};

}  // namespace calvento
