#pragma once

#include <string>

#include "modelo/design_state.h"
#include "plataforma/dialogos.h"
#include "plataforma/rejilla.h"
#include "poza/form2.h"

namespace calvento {

/// What the calculation of an inclined drop tells or asks of its window meanwhile.
class PantallaInclinada {
 public:
  virtual ~PantallaInclinada() = default;
  virtual Dialogos& dialogos() = 0;
  virtual bool regimenSupercritico() const = 0;
  /// Reads the fields that only the subcritical regime takes: slope and elevation of the outlet canal.
  virtual void leerSalida() = 0;
  /// The sketch with the control section, or without it where the canal flows fast.
  virtual void vistaControl() = 0;
  virtual void vistaRapida() = 0;
  virtual void mostrarSobreelevacion(const std::string& texto) = 0;
  virtual void mostrarAhogamiento(const std::string& texto) = 0;
  /// Results that take the place of data in the supercritical regime.
  virtual void mostrarPendienteSalida(const std::string& texto) = 0;
  virtual void mostrarSalida(const std::string& cota, const std::string& ahogamiento) = 0;
  virtual void habilitarResultados() = 0;
  virtual void inhabilitarResultados() = 0;
  virtual Rejilla& tablaTanques() = 0;
};

/// The whole design of an inclined drop, from data that already stand in the record. In the subcritical regime the
/// outlet level is given and a control section stands at the crest; in the supercritical one the outlet level is found
/// by iteration on the canal's grade line. Returns whether it ran to its last step; a failure passes to the caller.
bool calcularInclinada(DesignState& estado, const Form2& parametros, PantallaInclinada& pantalla);

}  // namespace calvento
