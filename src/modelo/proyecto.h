#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "modelo/archivo_proyecto.h"
#include "modelo/design_state.h"
#include "plataforma/dialogos.h"
#include "plataforma/ventana.h"

namespace calvento {

/// What the user has put into a data window and its parameter window.
struct Contenido {
  std::vector<std::string> lineas;  ///< those of the project file
  /// Fields and choices that the file does not keep, by the names that its lines would have: "Form2.Text9".
  std::map<std::string, std::string> otros;
  bool operator==(const Contenido&) const = default;
};

/// Contents with what belongs to them.
struct Trabajo {
  Contenido contenido;
  std::string nombre;      ///< of the project, as the caption tells it; empty: it never had one
  std::string archivo;     ///< full path of its file; empty: Guardar asks for one
  bool calculado = false;  ///< its results stood in the window
};

/// Opening and saving of one data window: the same operations for the three structures, which differ in their format
/// and in what they do once the lines are read.
class Proyecto {
 public:
  /// `parametros` is the parameter window whose fields the file keeps too.
  Proyecto(const FormatoProyecto& formato, DesignState& estado, Ventana& ventana, Ventana& parametros,
           Dialogos& dialogos);

  /// Asks for a file and opens it.
  void Abrir_Archivo(const std::function<void()>& trasLeer);
  /// Reads the file into the fields and the record, then runs `trasLeer`. A file that ends early leaves what was read
  /// in the fields, says so, and nothing follows.
  void abrir(const std::string& ruta, const std::function<void()>& trasLeer);
  /// The same for a file that is never to be written again: Guardar asks for a name, and proposes another one.
  void abrirCopia(const std::string& ruta, const std::function<void()>& trasLeer);
  /// Writes the file that this structure last opened or saved, in its own folder, wherever a file dialog has been
  /// since. A new project, and one whose name in the record is another structure's by now, asks for a name.
  void Guardar_Archivo();
  /// Asks for a name, and whether to replace the file that has it; the project's extension belongs to it.
  void Guardarcomo_Archivo();
  /// A project without a file has begun.
  void olvidarArchivo();

  /// What stands in both windows, with its name and file.
  Trabajo trabajo() const;
  /// Writes it into both windows, which a new project has emptied, then runs `trasLeer`. Menus with a mark are pressed
  /// after it.
  void reponer(const Trabajo& trabajo, const std::function<void()>& trasLeer);
  const std::string& archivo() const { return propio_; }

  /// For the one who keeps the user's work: other contents are about to take the place of those that stand; they are
  /// now those of the file.
  std::function<void()> alSustituir, alCoincidir;

 private:
  std::string textoDeLinea(std::string_view linea) const;
  void ponerLinea(std::string_view linea, const std::string& texto);
  TextBox* campo(std::string_view linea) const;
  void escribir(const std::string& ruta);
  void leer(const std::string& ruta);
  void alLeer(const std::string& ruta, const std::function<void()>& adoptar, const std::function<void()>& trasLeer);
  void adoptar(const std::string& ruta);
  void nombrar(const std::string& nombre);
  OpcionesArchivo opciones(std::string titulo) const;

  const FormatoProyecto& formato_;
  DesignState& estado_;
  Ventana& ventana_;
  Ventana& parametros_;
  Dialogos& dialogos_;
  std::string propio_;    ///< full path of the file that this structure last opened or saved
  std::string sugerido_;  ///< a name for the first saving of contents that came from elsewhere
};

/// Lets relative names resolve against the folder of that file, as after a file dialog.
void usarCarpetaDe(const std::string& ruta);

}  // namespace calvento
