#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "memoria/diseno.h"

// What a finished design is held against: the equations it should satisfy, by formulas of their own, and the limits of
// practice. Nothing here changes a figure of the design.

namespace calvento {

struct Comprobacion {
  enum class Estado { cumple, noCumple, noAplica, observacion };
  std::string_view nombre;
  Estado estado = Estado::noAplica;
  double valor = std::numeric_limits<double>::quiet_NaN();   ///< what was found; no number where there is none
  double limite = std::numeric_limits<double>::quiet_NaN();  ///< what it is compared with
  std::string_view unidad;
  std::string detalle;      ///< what it means for the engineer and what to change
  std::string_view fuente;  ///< in the literature; empty where there is none
};
using Comprobaciones = std::vector<Comprobacion>;

/// "cumple", "no cumple", "no aplica", "observación".
std::string_view nombreEstado(Comprobacion::Estado estado);

/// How many decimals its figures are told with: a count has none.
int decimalesDe(const Comprobacion& comprobacion);

/// All checks of that kind of structure, always the same ones in the same order.
Comprobaciones comprobar(const Diseno& diseno, const Rejilla& verificacion, const Rejilla& estabilidad);

struct CuentaComprobaciones {
  int cumplen = 0;
  int total = 0;  ///< that hold or do not: remarks and what does not apply are not counted
  int observaciones = 0;
};
CuentaComprobaciones contar(const Comprobaciones& todas);
/// "Comprobaciones: 14 de 15".
std::string textoCuenta(const CuentaComprobaciones& cuenta);

}  // namespace calvento
