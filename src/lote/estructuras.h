#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "modelo/archivo_proyecto.h"
#include "modelo/design_state.h"

namespace calvento::lote {

/// A typed-in value in the summary: its symbol, the field that holds it, its unit.
struct Dato {
  std::string_view simbolo;
  std::string_view control;
  std::string_view unidad;
};
/// A computed value in the summary: its symbol, the field of the record, its unit and how many decimals are printed.
struct Valor {
  std::string_view simbolo;
  Single DesignState::*campo;
  std::string_view unidad;
  int decimales = 3;
  bool siHay = false;  ///< left out while it is 0: what this design does not have
};
/// One line of the summary: a place of the structure with its values.
template <class Pieza>
struct Linea {
  std::string_view lugar;
  std::vector<Pieza> piezas;
};

/// A result window and the menu that opens it.
struct Reporte {
  std::string_view menu;
  std::string_view ventana;
  int tipoTanque = 0;  ///< of that basin type only; 0: of any
};

/// What the program knows of one kind of structure: everything else it asks the data window itself.
struct Estructura {
  std::string_view clave;                   ///< in the JSON object
  const FormatoProyecto* formato;           ///< data window, extension, name
  std::vector<std::string_view> etiquetas;  ///< labels of the data window that hold a result
  std::vector<std::string_view> notas;      ///< those of them that are remarks, not numbers
  std::vector<std::string_view> menus;      ///< its result menus
  std::vector<Reporte> reportes;            ///< in the order in which they are told
  std::string_view ventanaDibujo;           ///< its drawing window
  std::string_view ventanaExportar;         ///< its CAD export
  std::vector<Linea<Dato>> datos;
  std::vector<Linea<Valor>> resultados;
};

std::span<const Estructura> estructuras();

/// The structure by the extension of the file's name, capitals ignored; nullptr for any other name.
const Estructura* estructuraDe(std::string_view archivo);

/// The extensions of all structures for a message: ".cvr, .cvi".
std::string extensiones();

}  // namespace calvento::lote
