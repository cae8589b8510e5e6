#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "estudio/banco.h"
#include "estudio/serie.h"

// A study: designs that differ in one or two inputs, and in the basin type, beside each other.
//
//   const Diseno base(ficha, ventana, parametros, registro, {});                  // as the windows stand
//   const Entrada* ancho = entradaDe(ficha, "bRapida");
//   Estudio estudio(base, {{{ancho, valores(*ancho, serieAlrededor(*ancho, valorDe(base, *ancho)))}}});
//   while (estudio.avanzar(20ms)) mostrarProgreso(estudio.filas().size(), estudio.total());
//   textoDe(columnas(ficha)[c], estudio.filas()[f].celdas[c]);
//   usarDiseno(ventana, parametros, estudio.puestos(f));                          // "Usar este diseño"

namespace calvento {

/// One input and the values it takes. For an option the values are those of Entrada::opciones.
struct Variacion {
  const Entrada* entrada;
  std::vector<std::string> valores;
};

/// The values of one of all combinations; the last input varies fastest.
std::vector<Puesto> combinacion(const std::vector<Variacion>& variaciones, std::size_t cual);

class Estudio {
 public:
  /// Nothing is calculated yet. Fails with FalloEstudio where nothing varies, an input varies twice, one has no value,
  /// and for more than maximoDisenos combinations.
  Estudio(const Diseno& base, std::vector<Variacion> variaciones, bool conInformes = true);

  const Ficha& ficha() const { return *ficha_; }
  const std::vector<Variacion>& variaciones() const { return variaciones_; }
  /// Number of designs: all combinations.
  std::size_t total() const { return total_; }
  /// Those calculated so far, in the order of the combinations: the last input varies fastest.
  const std::vector<Fila>& filas() const { return filas_; }
  bool terminado() const { return filas_.size() == total_; }
  /// The values of that combination, calculated or not.
  std::vector<Puesto> puestos(std::size_t fila) const { return combinacion(variaciones_, fila); }

  /// Calculates one design more, and others until the time is over; false once all are there. Between two calls the
  /// study may be shown or left.
  bool avanzar(std::chrono::milliseconds plazo);
  /// Calculates all that is missing.
  void completar();

 private:
  const Ficha* ficha_;
  std::vector<Variacion> variaciones_;
  std::size_t total_ = 1;
  std::vector<Fila> filas_;
  Banco banco_;
};

/// The order of the rows by a column, ascending or descending: designs without that result come last either way, equal
/// ones stay as they were. `columna` counts the inputs first (0 … variaciones-1), then columnas(ficha).
std::vector<std::size_t> ordenadas(const Estudio& estudio, std::size_t columna, bool ascendente);

/// The study as CSV text for spreadsheets: UTF-8 with its mark, lines end with CR LF; one line of titles, one a design.
/// `coma`: the decimal sign is a comma, and a semicolon separates; otherwise point and comma. Numbers stand in it with
/// their seven digits, not rounded to the column's decimals.
std::string comoCsv(const Estudio& estudio, bool coma);

}  // namespace calvento
