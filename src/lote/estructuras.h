#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "memoria/fichas.h"
#include "modelo/archivo_proyecto.h"

namespace calvento::lote {

/// A result window and the menu that opens it.
struct Reporte {
  std::string_view menu;
  std::string_view ventana;
  int tipoTanque = 0;  ///< of that basin type only; 0: of any
};

/// What the program knows of one kind of structure: everything else it asks the data window itself.
struct Estructura {
  std::string_view clave;                                            ///< in the JSON object
  const FormatoProyecto* formato;                                    ///< data window, extension, name
  std::vector<std::string_view> etiquetas;                           ///< labels of the data window that hold a result
  std::vector<std::string_view> notas;                               ///< those of them that are remarks, not numbers
  std::vector<std::string_view> menus;                               ///< its result menus
  std::vector<Reporte> reportes;                                     ///< in the order in which they are told
  std::string_view ventanaDibujo;                                    ///< its drawing window
  std::string_view ventanaExportar;                                  ///< its CAD export
  const Ficha& ficha() const { return *fichaDe(formato->ventana); }  ///< its data and results
};

std::span<const Estructura> estructuras();

/// The structure by the extension of the file's name, capitals ignored; nullptr for any other name.
const Estructura* estructuraDe(std::string_view archivo);

/// The extensions of all structures for a message: ".cvr, .cvi".
std::string extensiones();

}  // namespace calvento::lote
