#include "lote/programa.h"

#include <algorithm>
#include <cerrno>
#include <memory>

#include "lote/campos.h"
#include "lote/dibujo.h"
#include "lote/en_orden.h"
#include "lote/json.h"
#include "lote/memoria.h"
#include "lote/opciones.h"
#include "lote/resumen.h"
#include "lote/senales.h"
#include "lote/sesion.h"
#include "lote/tabla_csv.h"
#include "lote/trabajos.h"
#include "modelo/codificacion.h"
#include "modelo/fallo_archivo.h"

namespace calvento::lote {

namespace {

enum Estado { calculados = 0, algunoNo = 1, errores = 2 };

/// What one design gives.
struct Resultado {
  Estado estado = calculados;
  std::string texto;               ///< its lines of the output
  std::string quejas;              ///< what goes to standard error
  std::unique_ptr<Sesion> sesion;  ///< as long as files are to be made of it
};

std::string queja(const std::string& de, const std::string& que) { return visible(de + ": " + que) + '\n'; }

/// The values by which a design differs from its project.
std::string con(const std::vector<Puesto>& puestos) {
  std::string s;
  for (const Puesto& p : puestos) s += (s.empty() ? " (" : ", ") + p.entrada->nombre + "=" + p.texto;
  return s.empty() ? s : s + ")";
}

/// The files asked for beside the text. One that cannot be written is an error of the command, not of the design.
void exportar(Sesion& sesion, const Opciones& opciones, Resultado& r) {
  try {
    if (!opciones.dibujo.empty()) exportarDibujoDe(sesion, opciones);
    if (!opciones.dxf.empty()) exportarDxfDe(sesion, opciones);
    if constexpr (conQt)
      if (!opciones.memoria.empty()) escribirMemoriaDe(sesion, opciones);
  } catch (const std::exception& fallo) {
    r.quejas += queja(sesion.archivo(), fallo.what());
    r.estado = errores;
  }
}

/// How a design is told.
struct Formato {
  const Opciones& opciones;
  TablaCsv tabla{opciones};

  std::string de(const Sesion& sesion) const {
    return opciones.csv ? tabla.linea(sesion) : opciones.json ? comoJson(sesion) + '\n' : comoResumen(sesion);
  }
  std::string de(const std::string& archivo, const std::string& fallo) const {
    return opciones.csv ? tabla.linea(archivo, fallo) : opciones.json ? comoJson(archivo, fallo) + '\n' : std::string();
  }
};

/// May run in several threads at once: what it touches is its own.
Resultado tratar(const Formato& formato, const Trabajo& trabajo) {
  Resultado r;
  try {
    auto sesion = std::make_unique<Sesion>(formato.opciones, trabajo.archivo, trabajo.puestos);
    r.texto = formato.de(*sesion);
    if (sesion->calculado()) {
      if (formato.opciones.escribeArchivos()) r.sesion = std::move(sesion);
      return r;
    }
    r.estado = sesion->accesible() ? algunoNo : errores;
    const std::string cual = trabajo.archivo + con(trabajo.puestos);
    if (sesion->mensajes().empty()) r.quejas += queja(cual, "no se calculó hasta el final");
    for (const Mensaje& m : sesion->mensajes()) r.quejas += visible(cual) + ": " + enUnaLinea(m) + '\n';
  } catch (const std::exception& fallo) {
    // whatever it was, the other projects go on
    r.estado = algunoNo;
    r.texto = formato.de(trabajo.archivo, fallo.what());
    r.quejas = queja(trabajo.archivo, std::string("fallo: ") + fallo.what());
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

Estado tratarTodos(const Opciones& opciones, const Trabajos& trabajos, std::ostream& salida, std::ostream& err) {
  const Formato formato{opciones};
  if (opciones.csv && !entregar(formato.tabla.titulos(), salida, err)) return errores;
  Estado estado = calculados;
  EnOrden<Resultado> cola(trabajos.total(), opciones.hilos,
                          [&](std::size_t i) { return tratar(formato, trabajos[i]); });
  while (cola.quedan()) {
    if (pedidoTerminar()) {
      err << "calvento-lote: interrumpido\n";
      return errores;
    }
    Resultado r = cola.siguiente();
    // what paints does so in the one thread that may
    if (r.sesion != nullptr) exportar(*r.sesion, opciones, r);
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
    return tratarTodos(opciones, Trabajos(opciones), salida, err);
  } catch (const OpcionErronea& fallo) {
    err << queja("calvento-lote", fallo.what()) << "Para ver la ayuda: calvento-lote --ayuda\n";
    return errores;
  }
}

}  // namespace calvento::lote
