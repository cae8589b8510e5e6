#pragma once

#include <string>

#include "modelo/design_state.h"
#include "plataforma/dialogos.h"
#include "poza/form25.h"

namespace calvento {

/// What the calculation of a vertical drop tells or asks of its window meanwhile.
class PantallaVertical {
 public:
  virtual ~PantallaVertical() = default;
  virtual Dialogos& dialogos() = 0;
  /// Without obstacles in the basin, by the chosen option.
  virtual bool sinObstaculos() const = 0;
  virtual void mostrarAnchoSugerido(const std::string& texto) = 0;
  virtual void habilitarResultados() = 0;
  /// After a refusal only two of the three result menus are closed.
  virtual void inhabilitarGraficoYTanque() = 0;
};

/// The whole design of a vertical drop, from data that already stand in the record: control section, fall and basin by
/// empirical relations (without obstacles: Rand 1955), drawdown above the crest and vent pipes. Returns whether it ran
/// to its last step; a failure passes to the caller.
bool calcularVertical(DesignState& estado, const Form25& parametros, PantallaVertical& pantalla);

/// Free fall of q per metre of width over the height h into a basin without obstacles, by Rand's relations (1955), m.
/// Fails for no height.
struct CaidaLibre {
  Real D;       ///< drop number
  Real Ld;      ///< reach of the jet
  Real y1, y2;  ///< conjugate depths behind it
};
CaidaLibre caidaLibre(Real h, Real q);

/// Where the jet meets the blocks of an impact basin, m from the crest, with the critical depth yc, the water's level
/// over the crest that stands upstream of it (a) and in the basin (nivel). Fails where a level is too high for the
/// relations.
Real alcanceImpacto(Real yc, Real a, Real nivel);

/// Discharge per metre of width that a crest takes from the canal's energy H, m²/s: q = 1.48 H^1.5.
Real caudalUnitario(Real H);

/// Text of the suggested basin width, Q / q(H).
std::string textoAnchoSugerido(Real Q, Real H);

/// Drawdown of the water surface above the crest into the record's perfilCaida: control section, transition where there
/// is one, and 5 m of canal, marched upstream in five steps each. The record's v1 is its working space and keeps the
/// velocity at the start of the last reach; that is meant.
void perfilSobreCresta(DesignState& estado);

/// Number of vent pipes that keep the nappe aerated; also sets the pipe data and vArriba in the record. Both materials
/// have one friction factor. Fails for a pipe of no diameter.
void AGUJEROS(DesignState& estado, const Form25& parametros);

}  // namespace calvento
