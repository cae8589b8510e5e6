#include "lote/programa.h"

#include <algorithm>

#include "lote/campos.h"
#include "lote/dibujo.h"
#include "lote/json.h"
#include "lote/opciones.h"
#include "lote/resumen.h"
#include "lote/sesion.h"

namespace calvento::lote {

namespace {

enum Estado { calculados = 0, algunoNo = 1, errores = 2 };

/// The files asked for beside the text. One that cannot be written is an error of the command, not of the design.
Estado exportar(Sesion& sesion, const Opciones& opciones, std::ostream& err) {
  try {
    if constexpr (conQt)
      if (!opciones.dibujo.empty()) exportarDibujoDe(sesion, opciones);
    if (!opciones.dxf.empty()) exportarDxfDe(sesion, opciones);
    return calculados;
  } catch (const std::exception& fallo) {
    err << sesion.archivo() << ": " << fallo.what() << '\n';
    return errores;
  }
}

Estado tratar(const Opciones& opciones, const std::string& archivo, std::ostream& salida, std::ostream& err) {
  try {
    Sesion sesion(opciones, archivo);
    if (opciones.json)
      salida << comoJson(sesion) << '\n';
    else
      salida << comoResumen(sesion);
    if (sesion.calculado()) return exportar(sesion, opciones, err);
    if (sesion.mensajes().empty()) err << archivo << ": no se calculó hasta el final\n";
    for (const Mensaje& m : sesion.mensajes()) err << archivo << ": " << enUnaLinea(m) << '\n';
    return sesion.accesible() ? algunoNo : errores;
  } catch (const std::exception& fallo) {
    // whatever it was, the other projects go on
    if (opciones.json) salida << comoJson(archivo, fallo.what()) << '\n';
    err << archivo << ": fallo: " << fallo.what() << '\n';
    return algunoNo;
  }
}

}  // namespace

int ejecutar(int argc, const char* const* argv, std::ostream& salida, std::ostream& err) {
  try {
    const auto peticion = leerOpciones(argc, argv);
    if (const auto* informacion = std::get_if<Informacion>(&peticion)) {
      salida << informacion->texto;
      return calculados;
    }
    const auto& opciones = std::get<Opciones>(peticion);
    comprobar(opciones);
    Estado estado = calculados;
    for (const std::string& archivo : opciones.archivos)
      estado = std::max(estado, tratar(opciones, archivo, salida, err));
    if (!salida.flush()) {
      err << "calvento-lote: no se pudo escribir la salida\n";
      return errores;
    }
    return estado;
  } catch (const OpcionErronea& fallo) {
    err << "calvento-lote: " << fallo.what() << "\nPara ver la ayuda: calvento-lote --ayuda\n";
    return errores;
  }
}

}  // namespace calvento::lote
