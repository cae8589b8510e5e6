#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "memoria/fichas.h"
#include "modelo/design_state.h"
#include "plataforma/mensaje.h"
#include "plataforma/rejilla.h"
#include "plataforma/ventana.h"

namespace calvento {

/// The texts of a window's fields, and of its boxes, options and marks "1" or "0".
using TextosVentana = std::vector<std::pair<std::string, std::string>>;
TextosVentana textosDe(const Ventana& ventana);
/// Puts them back into a window of the same kind.
void ponerTextos(Ventana& ventana, const TextosVentana& textos);

/// A finished design as it was when its calculation ended: later typing, other windows and the calculators write into
/// the live record and the live fields.
struct Diseno {
  Diseno(const Ficha& f, const Ventana& datos, const Ventana& parametros, const DesignState& estado,
         std::vector<Mensaje> mensajes);

  const std::string& campo(std::string_view control) const { return buscar(campos, control); }
  const std::string& parametro(std::string_view control) const { return buscar(parametros, control); }
  bool rapida() const { return ficha->tipo == TipoEstructura::rapida; }
  bool inclinada() const { return ficha->tipo == TipoEstructura::inclinada; }
  bool vertical() const { return ficha->tipo == TipoEstructura::vertical; }

  const Ficha* ficha;
  DesignState e;
  TextosVentana campos, parametros;
  Rejilla tanques;  ///< the feasibility table; empty in the vertical drop
  std::vector<Mensaje> mensajes;

 private:
  /// The text of that control, empty for an unknown one.
  static const std::string& buscar(const TextosVentana& textos, std::string_view control);
};

/// The tables of the report windows on which checks are made.
struct TablasInforme {
  Rejilla verificacion;  ///< of the basin for ten discharges
  Rejilla estabilidad;   ///< of the flow on a chute; empty where it could not be computed
};
/// Computes them from the design, as the windows do.
TablasInforme tablasInforme(const Diseno& diseno);

}  // namespace calvento
