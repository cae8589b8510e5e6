#include "lote/trabajos.h"

#include <algorithm>

#include "lote/resumen.h"

namespace calvento::lote {

namespace {

constexpr std::size_t maximoTrabajos = 1'000'000'000;

Variacion resolver(const VariacionPedida& v, const Estructura& estructura) {
  const std::string opcion = "--variar " + v.nombre + ": ";
  const Entrada* const entrada = entradaDe(estructura.ficha(), v.nombre);
  if (entrada == nullptr)
    throw OpcionErronea(opcion + std::string(estructura.formato->titulo) +
                        " no tiene ese campo (los nombres se ven con --campos)");
  try {
    Variacion r{entrada, valores(*entrada, v.serie)};
    for (const std::string& texto : r.valores)
      if (!entrada->admite(texto)) throw FalloEstudio("no puede ser " + texto);
    return r;
  } catch (const FalloEstudio& fallo) {
    throw OpcionErronea(opcion + fallo.what());
  }
}

}  // namespace

Trabajos::Trabajos(const Opciones& opciones) : opciones_(opciones) {
  for (const std::string& archivo : opciones.archivos) {
    const Estructura* const e = estructuraDe(archivo);
    if (e != nullptr && !variaciones_.contains(e))
      for (const VariacionPedida& v : opciones.variaciones) variaciones_[e].push_back(resolver(v, *e));
    std::size_t cuantos = 1;
    for (const Variacion& v : variaciones_[e]) {
      if (cuantos > maximoTrabajos / v.valores.size()) throw OpcionErronea("--variar: son demasiados diseños");
      cuantos *= v.valores.size();
    }
    hasta_.push_back(total_ += cuantos);
  }
}

Trabajo Trabajos::operator[](std::size_t i) const {
  const auto it = std::ranges::upper_bound(hasta_, i);
  const std::string& archivo = opciones_.archivos[static_cast<std::size_t>(it - hasta_.begin())];
  const std::size_t antes = it == hasta_.begin() ? 0 : *(it - 1);
  return {archivo, combinacion(variaciones_.at(estructuraDe(archivo)), i - antes)};
}

std::string listaDeCampos() {
  std::string s;
  for (const Estructura& e : estructuras()) {
    s += (s.empty() ? "" : "\n") + std::string(e.formato->titulo) + " (." + std::string(e.formato->extension) + ")\n";
    for (const Entrada& x : entradas(e.ficha())) {
      std::string rotulo = x.rotulo + (x.unidad.empty() ? "" : ", " + x.unidad);
      for (const Opcion& o : x.opciones) rotulo += (&o == &x.opciones.front() ? ": " : ", ") + o.valor + " " + o.nombre;
      s += "  " + alineado(x.nombre, 18) + alineado(x.ventana + "." + x.control, 16) + rotulo + "\n";
    }
  }
  return s;
}

}  // namespace calvento::lote
