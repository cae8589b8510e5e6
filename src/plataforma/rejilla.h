#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "plataforma/color.h"
#include "plataforma/control.h"
#include "plataforma/oyente.h"

namespace calvento {

enum class Alineacion { izquierda, derecha, centro };

/// What is different in a table: all of it (its size, its headings), texts and looks of cells, or widths of columns.
enum class CambioRejilla { estructura, celdas, anchos };

/// A plain table: texts, background colours, column widths, joined headings. A window shows it, the batch program
/// prints it. It tells its listener of every change, and where a write changes nothing, nobody.
class Rejilla {
 public:
  Rejilla() = default;
  Rejilla(int filas, int columnas) { dimensionar(filas, columnas); }

  /// Sets the size; cells that stay keep their content.
  void dimensionar(int filas, int columnas);
  int filas() const { return filas_; }
  int columnas() const { return columnas_; }

  /// Column titles and alignment from one text, "^ Title |<Title|>Title": the mark gives the alignment, the length of
  /// the piece (blanks included) the width. Sets the number of columns; the titles go to row 0 without their blanks.
  void formatoColumnas(std::string_view formato);

  /// Reading or writing outside the table fails as FalloAritmetico "subíndice".
  const std::string& texto(int fila, int columna) const;
  void poner(int fila, int columna, std::string texto);
  Color fondo(int fila, int columna) const;
  void pintar(int fila, int columna, Color fondo);

  int anchoTwips(int columna) const;
  void ponerAncho(int columna, int twips);
  Alineacion alineacion(int columna) const;
  void alinear(int columna, Alineacion alineacion);
  /// Rows at the top that are headings, in the button-face colour; at first it is one. `unidos`: equal neighbouring
  /// texts of row 0 are shown as one cell.
  void ponerTitulos(int filas, bool unidos = false);
  int filasTitulo() const { return filasTitulo_; }
  bool titulosUnidos() const { return titulosUnidos_; }

  /// Calls that function with each change from now on; empty: none.
  void alCambiar(std::function<void(CambioRejilla)> oyente) { oyente_.poner(std::move(oyente)); }

 private:
  struct Celda {
    std::string texto;
    Color fondo = color::ventana;
    friend bool operator==(const Celda&, const Celda&) = default;
  };
  struct Columna {
    int ancho = 960;
    Alineacion alineacion = Alineacion::izquierda;
  };
  const Celda& celda(int fila, int columna) const;
  Celda& celda(int fila, int columna);
  /// Writes a value where it is another one, and tells it.
  template <class T>
  void escribir(T& lugar, T valor, CambioRejilla que);

  int filas_ = 0;
  int columnas_ = 0;
  std::vector<Celda> celdas_;
  std::vector<Columna> anchos_;
  int filasTitulo_ = 1;
  bool titulosUnidos_ = false;
  Oyente<CambioRejilla> oyente_;  ///< the last member: see there
};

/// The control that shows a table, which tells its own changes.
class Grid : public Control, public Vinculable<Grid> {
 public:
  using Control::Control;
  Rejilla tabla;
  /// The row under the pointer in the running click, header row 0.
  int MouseRow = 0;
  Evento Click;
  Evento DblClick;
  /// What a click on that row does.
  void pulsar(int fila) {
    MouseRow = fila;
    disparar(Click);
  }
  void pulsarDoble(int fila) {
    MouseRow = fila;
    disparar(DblClick);
  }
};

}  // namespace calvento
