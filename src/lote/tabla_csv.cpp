#include "lote/tabla_csv.h"

#include <algorithm>
#include <cmath>

#include "estudio/columnas.h"
#include "estudio/csv.h"
#include "lote/resumen.h"

namespace calvento::lote {

namespace {

TextoCsv nueva() { return TextoCsv(false, "\n"); }

/// Of those results that this design has: the name of the record and the number.
std::vector<std::pair<std::string_view, double>> resultadosDe(const Sesion& s) {
  std::vector<std::pair<std::string_view, double>> todos;
  if (!s.calculado()) return todos;
  for (const Linea<Valor>& l : s.estructura()->ficha().resultados)
    for (const Valor& v : l.piezas) {
      const double x = (s.estado().*v.campo).valor();
      if (!v.siHay || x != 0) todos.emplace_back(nombreDelRegistro(v.campo), x);
    }
  return todos;
}

std::string noCumplidas(const Sesion& s) {
  std::string nombres;
  for (const Comprobacion& c : s.comprobaciones())
    if (c.estado == Comprobacion::Estado::noCumple) nombres += (nombres.empty() ? "" : "; ") + std::string(c.nombre);
  return nombres;
}

std::string mensajesDe(const Sesion& s) {
  std::string todos;
  for (const Mensaje& m : s.mensajes()) todos += (todos.empty() ? "" : "; ") + enUnaLinea(m);
  return todos;
}

}  // namespace

void TablaCsv::anadir(std::vector<Titulo>& titulos, std::string nombre, std::string_view unidad) {
  if (std::ranges::find(titulos, nombre, &Titulo::nombre) == titulos.end())
    titulos.push_back({std::move(nombre), std::string(unidad)});
}

TablaCsv::TablaCsv(const Opciones& o) {
  for (const std::string& archivo : o.archivos) {
    const Estructura* const e = estructuraDe(archivo);
    if (e == nullptr) continue;
    const auto anadirPuesto = [&](const std::string& nombre) {
      if (const Entrada* const entrada = entradaDe(e->ficha(), nombre)) anadir(puestos_, nombre, entrada->unidad);
    };
    for (const Asignacion& a : o.campos) anadirPuesto(a.nombre());
    for (const VariacionPedida& v : o.variaciones)
      if (const Entrada* const x = entradaDe(e->ficha(), v.nombre)) anadir(puestos_, x->nombre, x->unidad);
    for (const Linea<Valor>& l : e->ficha().resultados)
      for (const Valor& v : l.piezas) anadir(resultados_, std::string(nombreDelRegistro(v.campo)), v.unidad);
  }
  // of a control without a number there is no unit
  for (const Asignacion& a : o.campos) anadir(puestos_, a.nombre(), "");
}

std::string TablaCsv::titulos() const {
  TextoCsv csv = nueva();
  csv.texto("archivo");
  const auto titular = [&](const Titulo& t) { csv.texto(tituloConUnidad(t.nombre, t.unidad)); };
  std::ranges::for_each(puestos_, titular);
  csv.texto("calculado");
  std::ranges::for_each(resultados_, titular);
  csv.texto("verificacion").texto("noCumplidas").texto("mensajes").finDeLinea();
  return csv.contenido();
}

std::string TablaCsv::linea(const Sesion& s) const {
  TextoCsv csv = nueva();
  csv.texto(s.archivo());
  for (const Titulo& t : puestos_) {
    std::string puesto;  // the last one, which was in force
    for (const ValorPuesto& p : s.puestos())
      if (p.nombre == t.nombre) puesto = p.texto;
    csv.valor(puesto);
  }
  csv.texto(s.calculado() ? "sí" : "no");
  const auto suyos = resultadosDe(s);
  for (const Titulo& t : resultados_) {
    const auto it = std::ranges::find(suyos, t.nombre, &std::pair<std::string_view, double>::first);
    csv.numero(it == suyos.end() ? std::nan("") : it->second);
  }
  csv.texto(s.calculado() ? veredictoPoza(s) : "").texto(noCumplidas(s)).texto(mensajesDe(s)).finDeLinea();
  return csv.contenido();
}

std::string TablaCsv::linea(const std::string& archivo, const std::string& fallo) const {
  TextoCsv csv = nueva();
  csv.texto(archivo);
  for (std::size_t i = 0; i < puestos_.size(); ++i) csv.texto("");
  csv.texto("no");
  for (std::size_t i = 0; i < resultados_.size() + 2; ++i) csv.texto("");
  csv.texto(fallo).finDeLinea();
  return csv.contenido();
}

}  // namespace calvento::lote
