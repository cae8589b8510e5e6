#pragma once

#include <string>

#include "modelo/design_state.h"
#include "plataforma/dialogos.h"
#include "plataforma/rejilla.h"
#include "poza/form2.h"

namespace calvento {

/// What the calculation of a chute tells or asks of its window meanwhile.
class PantallaRapida {
 public:
  virtual ~PantallaRapida() = default;
  virtual Dialogos& dialogos() = 0;
  /// The live preview of the control section, which also sets the rise.
  virtual void SECONTROL() = 0;
  /// Whether the fields of the second and of the third reach are filled.
  virtual bool tieneDatosTramo2() const = 0;
  virtual bool tieneDatosTramo3() const = 0;
  /// The ramp slope was raised: its field shows the new one.
  virtual void mostrarTaludEntrada(const std::string& texto) = 0;
  virtual void mostrarAhogamiento(const std::string& texto) = 0;
  virtual void habilitarResultados() = 0;
  virtual void inhabilitarResultados() = 0;
  virtual Rejilla& tablaTanques() = 0;
};

/// The whole design of a chute, from data that already stand in the record: canal, control section, reaches,
/// trajectory, jump, basin and heights. Its steps write into the record in their order, and a stop leaves what they
/// have written. Returns whether it ran to its last step; an arithmetic failure passes to the caller.
bool calcularRapida(DesignState& estado, const Form2& parametros, PantallaRapida& pantalla);

/// Water surface along the reaches into `perfil`, from the depth y0 at the control section; returns the depth at the
/// end. For another number of reaches than 1 to 3 it returns y0 and touches nothing. `completo` becomes false when data
/// of a reach are missing, which is told in a message.
Single perfilRapida(DesignState& estado, Single y0, PantallaRapida& pantalla, bool& completo);

}  // namespace calvento
