#pragma once

#include <span>
#include <string>
#include <vector>

#include "estudio/columnas.h"
#include "estudio/entradas.h"
#include "estudio/ventanas_propias.h"
#include "plataforma/mensaje.h"

namespace calvento {

/// One design of a study.
struct Fila {
  std::vector<std::string> puestos;  ///< the texts put, in the order of what varies
  bool calculado = false;            ///< to its last step
  std::string motivo;                ///< why it was not
  std::vector<Celda> celdas;         ///< one for each of columnas(ficha)
  std::vector<Mensaje> mensajes;     ///< the boxes that the calculation would have shown
};

/// Calculates designs that differ from one design in a few inputs, each from that design anew: what a row gives does
/// not depend on the rows before. It works in windows of its own, so a bench serves one thread at a time, and several
/// benches serve several.
class Banco {
 public:
  /// `base`: texts and record as they stand, calculated or not (Diseno(ficha, ventana, parametros, estado, {})).
  /// `conInformes`: also verification, stability and checks, which take about four times as long as the design.
  Banco(const Diseno& base, bool conInformes, bool respuesta = true);

  Fila calcular(std::span<const Puesto> puestos);

 private:
  void volver();
  Fila contar(bool completo);

  const Diseno base_;
  bool conInformes_;
  VentanasPropias ventanas_;
};

}  // namespace calvento
