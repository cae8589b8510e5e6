#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "modelo/archivo_proyecto.h"
#include "modelo/design_state.h"

// What is told of each kind of structure: its data and results in the order of the water, with the symbols of the
// windows. One list for the summary of the batch program and for the design report.

namespace calvento {

/// A typed-in value: its symbol, the field that holds it, its unit.
struct Dato {
  std::string_view simbolo;
  std::string_view control;
  std::string_view unidad;
};
/// A computed value: its symbol, the field of the record, its unit and how many decimals are printed.
struct Valor {
  std::string_view simbolo;
  Single DesignState::*campo;
  std::string_view unidad;
  int decimales = 3;
  bool siHay = false;  ///< left out while it is 0: what this design does not have
};
/// One line: a place of the structure with its values.
template <class Pieza>
struct Linea {
  std::string_view lugar;
  std::vector<Pieza> piezas;
};

enum class TipoEstructura { rapida, inclinada, vertical };

struct Ficha {
  TipoEstructura tipo;
  const FormatoProyecto* formato;  ///< data window, extension, name
  std::string_view parametros;     ///< parameter window
  std::vector<Linea<Dato>> datos;
  std::vector<Linea<Dato>> datosParametros;  ///< of the parameter window
  std::vector<Linea<Valor>> resultados;
};

std::span<const Ficha> fichas();
/// The one of a data window; nullptr for any other window.
const Ficha* fichaDe(std::string_view ventana);

}  // namespace calvento
