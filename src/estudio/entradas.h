#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "comun/unidades.h"
#include "memoria/diseno.h"
#include "plataforma/control.h"
#include "plataforma/ventana_datos.h"

// What can be put into a design, in the words of its fields: one list for what a study varies and for the names that
// the batch program takes.

namespace calvento {

/// One of the values of what is chosen, not typed.
struct Opcion {
  std::string valor;   ///< what is put: "3"
  std::string nombre;  ///< what the user reads: "USBR - II"
};

/// One field of a structure, or its basin type.
struct Entrada {
  std::string nombre;   ///< of the record: "Q", "bRapida"; where the record has no such field, "Form2.Text5"
  std::string ventana;  ///< data or parameter window
  std::string control;
  std::string rotulo;  ///< in the field's own words: "Canal de la rápida: Ancho de base(b)"
  std::string unidad;  ///< empty: none
  Dominio dominio = Dominio::todos;
  std::vector<Opcion> opciones;  ///< empty: a number is typed

  bool esNumero() const { return opciones.empty(); }
  /// Whether an option has that value; a field takes any text.
  bool admite(std::string_view valor) const;
  /// "Canal de la rápida: Ancho de base(b) (m)".
  std::string titulo() const { return tituloConUnidad(rotulo, unidad); }
  /// The value as a person reads it: the name of an option, else what is typed.
  std::string leido(const std::string& valor) const;
};

/// All that can be put into that structure, data window first. It lives as long as the program.
std::span<const Entrada> entradas(const Ficha& ficha);
/// The one of that name, or of that window and control ("Form10.Text5"); nullptr where the structure has none.
const Entrada* entradaDe(const Ficha& ficha, std::string_view nombre);

/// What the design has there: the text of the field, the value of the option.
std::string valorDe(const Diseno& diseno, const Entrada& entrada);

/// A value for an input.
struct Puesto {
  const Entrada* entrada;
  std::string texto;
};

/// Puts the value as a user would: types it, clicks the row of the basin table, chooses the option.
void poner(VentanaDatos& datos, Ventana& parametros, const Puesto& puesto);

/// The same with all values, and what the windows foretell with them; OK is not pressed.
void poner(VentanaDatos& datos, Ventana& parametros, std::span<const Puesto> puestos);

/// Puts the values into the windows and presses OK: what "Usar este diseño" does, and what gave the row of the study.
void usarDiseno(VentanaDatos& datos, Ventana& parametros, std::span<const Puesto> puestos);

}  // namespace calvento
