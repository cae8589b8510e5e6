// Checks, drawings, messages and references.
#include <algorithm>
#include <array>

#include "memoria/laminas.h"
#include "memoria/redaccion.h"

namespace calvento::redaccion {

namespace {

using enum Alineacion;

/// The sources of the checks, each once, in the order of the checks.
std::vector<std::string_view> fuentes(const Comprobaciones& todas) {
  std::vector<std::string_view> f;
  for (const Comprobacion& c : todas)
    if (!c.fuente.empty() && std::ranges::find(f, c.fuente) == f.end()) f.push_back(c.fuente);
  return f;
}

}  // namespace

void comprobaciones(Redaccion& r) {
  r.capitulo(std::string(capituloComprobaciones));
  const CuentaComprobaciones cuenta = contar(r.comprobaciones);
  r.parrafo("Se cumplen " + std::to_string(cuenta.cumplen) + " de " + std::to_string(cuenta.total) + " comprobaciones" +
            (cuenta.observaciones == 0 ? std::string(".")
                                       : "; observaciones: " + std::to_string(cuenta.observaciones) + ".") +
            " Son ecuaciones y límites calculados aparte, que no cambian ninguna cifra del diseño.");
  const auto refs = fuentes(r.comprobaciones);
  Tabla t{"Lista de comprobaciones",
          {{"Comprobación", "Valor", "Límite", "Estado", "Qué significa"}},
          {},
          {izquierda, derecha, derecha, izquierda, izquierda},
          {},
          {22, 11, 11, 12, 44}};
  for (const Comprobacion& c : r.comprobaciones) {
    const auto cifra = [&](double v) { return std::isfinite(v) ? con(v, c.unidad, decimalesDe(c)) : std::string("–"); };
    const auto fuente = std::ranges::find(refs, c.fuente);
    t.filas.push_back(
        {std::string(c.nombre), cifra(c.valor), cifra(c.limite), std::string(nombreEstado(c.estado)),
         c.detalle + (fuente == refs.end() ? "" : " [" + std::to_string(fuente - refs.begin() + 1) + "]")});
    using Estado = Comprobacion::Estado;
    t.marcas.push_back(c.estado == Estado::noCumple      ? Tabla::Marca::mal
                       : c.estado == Estado::observacion ? Tabla::Marca::aviso
                                                         : Tabla::Marca::ninguna);
  }
  r.bloque(std::move(t));
}

void planos(Redaccion& r) {
  r.capitulo("Planos");
  r.intentar([&] {
    for (Figura& f : laminas(r.x, r.mesa)) r.bloque(std::move(f));
  });
}

void mensajes(Redaccion& r) {
  r.capitulo("Mensajes del cálculo");
  if (r.x.mensajes.empty()) return r.parrafo("El cálculo no dio ningún mensaje.");
  std::vector<std::vector<std::string>> filas;
  static constexpr std::array<const char*, 3> tipos = {"Aviso", "Pregunta", "Fallo"};
  for (const Mensaje& m : r.x.mensajes)
    filas.push_back({tipos.at(static_cast<std::size_t>(m.tipo)), m.texto,
                     m.tipo != Mensaje::Tipo::pregunta ? "–"
                     : m.respuesta                     ? "Sí"
                                                       : "No"});
  r.tabla("Mensajes y respuestas", {"Tipo", "Mensaje", "Respuesta"}, std::move(filas), {izquierda, izquierda, centro});
}

void referencias(Redaccion& r) {
  r.capitulo("Referencias");
  int i = 0;
  for (const std::string_view f : fuentes(r.comprobaciones))
    r.parrafo("[" + std::to_string(++i) + "] " + std::string(f) + ".");
}

}  // namespace calvento::redaccion
