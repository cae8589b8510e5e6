#include "estudio/banco.h"

#include <algorithm>
#include <utility>

namespace calvento {

namespace {

/// Why a calculation stopped: the last box that it showed, which in a failure is that of the error handler.
std::string motivoDe(const std::vector<Mensaje>& mensajes) {
  std::string motivo = mensajes.empty() ? "El cálculo no llegó a su fin" : mensajes.back().texto;
  std::ranges::replace(motivo, '\n', ' ');
  return motivo;
}

}  // namespace

Banco::Banco(const Diseno& base, bool conInformes, bool respuesta)
    : base_(base), conInformes_(conInformes), ventanas_(*base.ficha, respuesta) {}

/// Windows and record as the design has them. The fields come first, since they write into the record.
void Banco::volver() {
  ponerTextos(ventanas_.parametros(), base_.parametros);
  ponerTextos(ventanas_.datos(), base_.campos);
  for (const char* rotulo : {"Label27", "Label48"})
    if (auto* l = ventanas_.datos().buscar<Label>(rotulo)) l->Caption = "";
  ventanas_.estado = base_.e;
}

Fila Banco::calcular(std::span<const Puesto> puestos) {
  volver();
  usarDiseno(ventanas_.datos(), ventanas_.parametros(), puestos);
  Fila fila = contar(ventanas_.datos().calculado());
  for (const Puesto& p : puestos) fila.puestos.push_back(p.texto);
  return fila;
}

Fila Banco::contar(bool completo) {
  const VentanaDatos& datos = ventanas_.datos();
  const Diseno diseno(*base_.ficha, datos, ventanas_.parametros(), ventanas_.estado, datos.mensajes());
  TablasInforme tablas;
  Comprobaciones comprobaciones;
  if (completo && conInformes_) {
    tablas = tablasInforme(diseno);
    comprobaciones = comprobar(diseno, tablas.verificacion, tablas.estabilidad);
  }
  const bool informes = completo && conInformes_;
  const Calculado c{diseno, datos, completo, informes ? &tablas : nullptr, informes ? &comprobaciones : nullptr};
  Fila fila;
  fila.calculado = completo;
  fila.mensajes = diseno.mensajes;
  if (!completo) fila.motivo = motivoDe(fila.mensajes);
  const std::vector<Columna>& todas = columnas(*base_.ficha);
  fila.celdas.reserve(todas.size());
  for (const Columna& columna : todas) {
    Celda celda;
    // a result that cannot be reckoned is none; the others stand
    pasandoFallos([&] { celda = columna.leer(c); });
    fila.celdas.push_back(std::move(celda));
  }
  return fila;
}

}  // namespace calvento
