#pragma once

#include <string>
#include <utility>
#include <vector>

#include "comun/unidades.h"
#include "memoria/documento.h"
#include "memoria/lista.h"
#include "memoria/mesa.h"

// What the files of the report's chapters share.

namespace calvento::redaccion {

using lista::d;
using lista::n;

/// "0.611 m".
inline std::string con(double x, std::string_view unidad, int decimales = 3) {
  return conUnidad(n(x, decimales), unidad);
}
inline std::string con(Single x, std::string_view unidad, int decimales = 3) { return con(d(x), unidad, decimales); }

/// Writes a document from its first chapter to its last. What a chapter cannot compute is left out of it and said.
class Redaccion {
 public:
  Redaccion(Documento& documento, const Diseno& diseno, const Comprobaciones& comprobadas,
            const TablasInforme& informes)
      : x(diseno), e(diseno.e), comprobaciones(comprobadas), tablas(informes), mesa(diseno), doc_(documento) {}

  void capitulo(std::string titulo) { doc_.capitulos.push_back({std::move(titulo), {{}}}); }
  void apartado(std::string titulo) { doc_.capitulos.back().apartados.push_back({std::move(titulo), {}}); }
  void bloque(Bloque b) { doc_.capitulos.back().apartados.back().bloques.push_back(std::move(b)); }
  void parrafo(std::string texto) { bloque(Parrafo{std::move(texto)}); }
  void nota(std::string texto) { bloque(Parrafo{std::move(texto), true}); }
  void formula(std::string expresion, std::string cifras, std::string resultado) {
    bloque(Formula{std::move(expresion), std::move(cifras), std::move(resultado)});
  }
  /// A table of a window, its heading rows apart. Empty rows are left out.
  void tabla(std::string titulo, const Rejilla& r);
  void tabla(std::string titulo, std::vector<std::string> titulos, std::vector<std::vector<std::string>> filas,
             std::vector<Alineacion> columnas);
  /// Runs what may not be computable; says so in its place.
  template <class Accion>
  void intentar(Accion&& accion) {
    if (!pasandoFallos(accion)) nota("Con estos datos no se puede calcular.");
  }

  const Diseno& x;
  const DesignState& e;
  const Comprobaciones& comprobaciones;
  const TablasInforme& tablas;
  MesaInforme mesa;

 private:
  Documento& doc_;
};

void datos(Redaccion& r);
void canales(Redaccion& r);
void control(Redaccion& r);
void perfil(Redaccion& r);
void trayectoria(Redaccion& r);
void resalto(Redaccion& r);
void bloques(Redaccion& r);
void revestimientos(Redaccion& r);
void verificacion(Redaccion& r);
void comprobaciones(Redaccion& r);
void planos(Redaccion& r);
void mensajes(Redaccion& r);
void referencias(Redaccion& r);

}  // namespace calvento::redaccion
