#pragma once

#include <optional>

#include "modelo/design_state.h"
#include "plataforma/dialogos.h"
#include "plataforma/rejilla.h"
#include "poza/form2.h"

namespace calvento {

/// What the two structures with a feasibility table do differently.
struct CriterioTanques {
  Real taludPoza;            ///< side slope of the basin
  Real velocidad;            ///< judged against 15.24 m/s: v1 in the chute, always 0 in the inclined drop
  const char* rotuloFroude;  ///< before the Froude number of USBR II: "F= " in the chute, "Fr= " in the inclined drop
};

/// Titles, the two fixed columns and the colours of the feasibility table.
void prepararTablaTanques(Rejilla& tabla);

/// Writes a verdict and its cause beside each basin type, from the record's fr1, v1, y1 and Q. It picks none.
void SELECCIONARTANQUE(Rejilla& tabla, const DesignState& estado, const Form2& parametros,
                       const CriterioTanques& criterio);

/// Whether the verdict on that row is that the type suits the flow.
bool esFactible(const Rejilla& tabla, int fila);

/// The row of the basin type in force, 0 for a type that is none of 1 to 6.
int filaElegida(const DesignState& estado);

/// What the length of a basin is reckoned from.
struct DatosLongitud {
  Real tipo;    ///< basin type, 1 to 6
  Real y1, y2;  ///< conjugate depths, m
  Real fr1;     ///< Froude number at y1, of use to type 5 alone
};
/// Sets the length of the basin, m, and its coefficient K where the rule of the type has one; false for a type that is
/// none of 1 to 6, which leaves both as they are. `kTrapezoidal`: K of type 6, the parameter window's unless given.
bool longitudTanque(const DatosLongitud& datos, const Form2& parametros, Single& K, Single& longitud,
                    std::optional<Real> kTrapezoidal = {});

/// Sets longPoza (and kLongPoza where the rule has a K) for the basin type in force; false for a type that is none of
/// 1 to 6, which leaves both as they are.
bool longitudPoza(DesignState& estado, const Form2& parametros);

/// The same, with a message where no type is chosen.
void LONGPOZA(DesignState& estado, const Form2& parametros, Dialogos& dialogos);

/// Whether the basin type in force has a sheet of block dimensions.
bool tieneBloques(const DesignState& estado);

/// Colours all data cells, and the row of a type (1 to 6) as the chosen one.
void pintarTabla(Rejilla& tabla, int filaElegida = 0);

/// Empties the verdicts and takes the chosen row's mark away.
void limpiarTabla(Rejilla& tabla);

/// A click on a row takes its type, whatever the verdict: colours the row and sets the basin length. `enRejillaObra`:
/// the length goes to the 0.05 grid (chute only). Returns whether the menu of block dimensions is to be enabled; a
/// click on the header row sets type 0 and gives no answer.
enum class MenuBloques { igual, activo, inactivo };
MenuBloques pulsarTabla(Rejilla& tabla, int fila, DesignState& estado, const Form2& parametros, bool enRejillaObra);

}  // namespace calvento
