#pragma once

#include <functional>
#include <string>
#include <vector>

#include "modelo/archivo_proyecto.h"
#include "modelo/design_state.h"
#include "plataforma/dialogos.h"
#include "plataforma/ventana.h"

namespace calvento {

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
  /// Writes the file that this structure last opened or saved, in its own folder, wherever a file dialog has been
  /// since. A new project, and one whose name in the record is another structure's by now, asks for a name.
  void Guardar_Archivo();
  /// Asks for a name, and whether to replace the file that has it; the project's extension belongs to it.
  void Guardarcomo_Archivo();
  /// A project without a file has begun.
  void olvidarArchivo() { propio_.clear(); }

 private:
  std::string textoDeLinea(std::string_view linea) const;
  void ponerLinea(std::string_view linea, const std::string& texto);
  TextBox* campo(std::string_view linea) const;
  void escribir(const std::string& ruta);
  void adoptar(const std::string& ruta);
  OpcionesArchivo opciones(std::string titulo) const;

  const FormatoProyecto& formato_;
  DesignState& estado_;
  Ventana& ventana_;
  Ventana& parametros_;
  Dialogos& dialogos_;
  std::string propio_;  ///< full path of the file that this structure last opened or saved
};

/// Lets relative names resolve against the folder of that file, as after a file dialog.
void usarCarpetaDe(const std::string& ruta);

}  // namespace calvento
