#pragma once

#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "estudio/serie.h"

namespace calvento::lote {

/// Whether this program paints: one that was built without Qt does not know the options for it.
#ifdef CALVENTO_SIN_QT
inline constexpr bool conQt = false;
#else
inline constexpr bool conQt = true;
#endif

/// VENTANA.CONTROL=TEXTO, or NOMBRE=TEXTO with a name of the record.
struct Asignacion {
  std::string ventana;  ///< empty: `control` is the name
  std::string control;
  std::string texto;

  bool conNombre() const { return ventana.empty(); }
  std::string nombre() const { return conNombre() ? control : ventana + "." + control; }
};

/// NOMBRE=DESDE:HASTA:PASO
struct VariacionPedida {
  std::string nombre;
  Serie serie;
};

struct Opciones {
  std::vector<std::string> archivos;
  bool json = false;
  bool csv = false;
  std::vector<Asignacion> campos;
  std::vector<VariacionPedida> variaciones;
  int hilos = 1;          ///< designs that are calculated side by side
  int veces = 0;          ///< presses of Command3 beyond the necessary ones
  bool responder = true;  ///< the answer to every question, true for yes
  std::string dibujo;     ///< file of the drawing; "{}" stands for the project's name; empty for none
  std::string vista = "vistaTodo";
  std::string memoria;  ///< file of the design report, named as that of the drawing
  std::string dxf;      ///< file of the CAD export, named as that of the drawing
  bool escribeArchivos() const { return !dibujo.empty() || !memoria.empty() || !dxf.empty(); }
};

/// A command line that cannot be carried out; what() is a Spanish text for the user.
class OpcionErronea : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A text that was asked for instead of work: the help or the version.
struct Informacion {
  std::string texto;
};

/// Reads the command line. Fails with OpcionErronea.
std::variant<Opciones, Informacion> leerOpciones(int argc, const char* const* argv);

}  // namespace calvento::lote
