#pragma once

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "comun/unidades.h"
#include "memoria/comprobaciones.h"
#include "memoria/diseno.h"
#include "plataforma/ventana_datos.h"

// The results of a study: one list for its table, its curve, its CSV text and its search.

namespace calvento {

/// One result of one design.
struct Celda {
  double numero = std::numeric_limits<double>::quiet_NaN();  ///< no number: the design has no such result
  std::string texto;  ///< what stands for the number in a table; empty: the number itself
};

/// A calculated design, as the columns read it.
struct Calculado {
  const Diseno& diseno;         ///< record, texts and table of basins as the calculation left them
  const VentanaDatos& ventana;  ///< whose labels hold what the record does not
  bool completo;                ///< the calculation ran to its last step
  const TablasInforme* tablas;  ///< nullptr in a study without reports
  const Comprobaciones* comprobaciones;
};

struct Columna {
  std::string clave;         ///< of its own, the same in each structure: "profPoza"
  std::string nombre;        ///< "Profundidad de la poza"
  std::string unidad;        ///< empty: none
  int decimales = 3;         ///< with which a number is shown; a search is content with half a unit of the last one
  bool principal = false;    ///< shown at first; the others are the rest of the results
  bool conInformes = false;  ///< empty in a study without reports
  bool numerica = true;      ///< false: texts only, no curve, no search
  std::function<Celda(const Calculado&)> leer;

  /// "Profundidad de la poza (m)".
  std::string titulo() const { return tituloConUnidad(nombre, unidad); }
};

/// The name of a field of the record; empty for a field that has none.
std::string_view nombreDelRegistro(Single DesignState::*campo);

/// The results of that structure: first those that a design is chosen by, then all others. It lives as long as the
/// program.
const std::vector<Columna>& columnas(const Ficha& ficha);
/// The place of a column in that list; its size where there is no such key.
std::size_t columnaDe(const Ficha& ficha, std::string_view clave);

/// What a table shows of a result: its text, or the number with the column's decimals; empty where there is none.
std::string textoDe(const Columna& columna, const Celda& celda);

}  // namespace calvento
