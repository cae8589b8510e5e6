#include "memoria/comprobaciones.h"

#include <algorithm>
#include <array>

#include "memoria/lista.h"

namespace calvento {

std::string_view nombreEstado(Comprobacion::Estado estado) {
  switch (estado) {
    case Comprobacion::Estado::cumple:
      return "cumple";
    case Comprobacion::Estado::noCumple:
      return "no cumple";
    case Comprobacion::Estado::observacion:
      return "observación";
    case Comprobacion::Estado::noAplica:
      break;
  }
  return "no aplica";
}

int decimalesDe(const Comprobacion& c) {
  static constexpr std::array<std::string_view, 6> cuentas = {"campos",   "valores", "estaciones",
                                                              "caudales", "tramos",  "tipo"};
  return std::ranges::find(cuentas, c.unidad) == cuentas.end() ? 3 : 0;
}

Comprobaciones comprobar(const Diseno& diseno, const Rejilla& verificacion, const Rejilla& estabilidad) {
  Comprobaciones todas;
  todas.reserve(40);
  lista::Lista l(todas);
  lista::deDatos(l, diseno);
  lista::deCanales(l, diseno);
  if (diseno.rapida())
    lista::deRapida(l, diseno, estabilidad);
  else
    lista::deCaidas(l, diseno);
  lista::deResalto(l, diseno);
  lista::dePoza(l, diseno, verificacion);
  return todas;
}

CuentaComprobaciones contar(const Comprobaciones& todas) {
  using Estado = Comprobacion::Estado;
  CuentaComprobaciones c;
  for (const Comprobacion& x : todas) {
    c.cumplen += x.estado == Estado::cumple;
    c.total += x.estado == Estado::cumple || x.estado == Estado::noCumple;
    c.observaciones += x.estado == Estado::observacion;
  }
  return c;
}

std::string textoCuenta(const CuentaComprobaciones& c) {
  return "Comprobaciones: " + std::to_string(c.cumplen) + " de " + std::to_string(c.total);
}

}  // namespace calvento
