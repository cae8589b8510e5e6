#include "lote/programa.h"

#include <algorithm>
#include <cerrno>

#include "lote/campos.h"
#include "lote/dibujo.h"
#include "lote/json.h"
#include "lote/memoria.h"
#include "lote/opciones.h"
#include "lote/resumen.h"
#include "lote/senales.h"
#include "lote/sesion.h"
#include "modelo/codificacion.h"
#include "modelo/fallo_archivo.h"

namespace calvento::lote {

namespace {

enum Estado { calculados = 0, algunoNo = 1, errores = 2 };

/// What one project gives.
struct Resultado {
  Estado estado = calculados;
  std::string texto;   ///< its lines of the output
  std::string quejas;  ///< what goes to standard error
};

std::string queja(const std::string& de, const std::string& que) { return visible(de + ": " + que) + '\n'; }

/// The files asked for beside the text. One that cannot be written is an error of the command, not of the design.
void exportar(Sesion& sesion, const Opciones& opciones, Resultado& r) {
  try {
    if constexpr (conQt)
      if (!opciones.dibujo.empty()) exportarDibujoDe(sesion, opciones);
    if (!opciones.dxf.empty()) exportarDxfDe(sesion, opciones);
    if constexpr (conQt)
      if (!opciones.memoria.empty()) escribirMemoriaDe(sesion, opciones);
  } catch (const std::exception& fallo) {
    r.quejas += queja(sesion.archivo(), fallo.what());
    r.estado = errores;
  }
}

Resultado tratar(const Opciones& opciones, const std::string& archivo) {
  Resultado r;
  try {
    Sesion sesion(opciones, archivo);
    r.texto = opciones.json ? comoJson(sesion) + '\n' : comoResumen(sesion);
    if (sesion.calculado()) {
      exportar(sesion, opciones, r);
      return r;
    }
    r.estado = sesion.accesible() ? algunoNo : errores;
    if (sesion.mensajes().empty()) r.quejas += queja(archivo, "no se calculó hasta el final");
    for (const Mensaje& m : sesion.mensajes()) r.quejas += visible(archivo) + ": " + enUnaLinea(m) + '\n';
  } catch (const std::exception& fallo) {
    // whatever it was, the other projects go on
    r.estado = algunoNo;
    r.texto = opciones.json ? comoJson(archivo, fallo.what()) + '\n' : std::string();
    r.quejas = queja(archivo, std::string("fallo: ") + fallo.what());
  }
  return r;
}

/// Lets the text out, whole lines at once. Where it goes to may have gone: then nothing that follows would be seen.
bool entregar(const std::string& texto, std::ostream& salida, std::ostream& err) {
  errno = 0;
  if ((salida << texto).flush()) return true;
  err << "calvento-lote: no se pudo escribir la salida: " << razon(ultimoFallo()) << '\n';
  return false;
}

Estado tratarTodos(const Opciones& opciones, std::ostream& salida, std::ostream& err) {
  Estado estado = calculados;
  for (const std::string& archivo : opciones.archivos) {
    if (pedidoTerminar()) {
      err << "calvento-lote: interrumpido\n";
      return errores;
    }
    const Resultado r = tratar(opciones, archivo);
    if (!entregar(r.texto, salida, err)) return errores;
    err << r.quejas;
    estado = std::max(estado, r.estado);
  }
  return estado;
}

}  // namespace

int ejecutar(int argc, const char* const* argv, std::ostream& salida, std::ostream& err) {
  try {
    const auto peticion = leerOpciones(argc, argv);
    if (const auto* informacion = std::get_if<Informacion>(&peticion))
      return entregar(informacion->texto, salida, err) ? calculados : errores;
    const auto& opciones = std::get<Opciones>(peticion);
    comprobar(opciones);
    return tratarTodos(opciones, salida, err);
  } catch (const OpcionErronea& fallo) {
    err << queja("calvento-lote", fallo.what()) << "Para ver la ayuda: calvento-lote --ayuda\n";
    return errores;
  }
}

}  // namespace calvento::lote
