#pragma once

#include "hidraulica/solvers.h"
#include "modelo/design_state.h"
#include "plataforma/dialogos.h"
#include "plataforma/rejilla.h"
#include "poza/form2.h"

// Whether the stilling basin still holds the jump when the canal carries less than the design discharge: ten
// discharges, from the design one down to a tenth of it.

namespace calvento {

/// One discharge of the table.
struct FilaVerificacion {
  Real Q;           ///< m³/s
  Single y1, y2;    ///< conjugate depths, m
  Real M1, M2;      ///< their momentum functions
  Single longitud;  ///< of the jump or of the basin, m
  Real Ep, Ea;      ///< energy level at the end of the jump and in the canal downstream, m
};

/// What the three structures' tables do differently.
struct EstiloVerificacion {
  const char* rotuloLongitud;
  const char* recomendacion;
  bool y1Llano;  ///< y1 in plain digits, not with three decimals
};
extern const EstiloVerificacion verificacionRapida, verificacionInclinada, verificacionVertical;

/// The n-th discharge, n from 1 to 10.
Real caudalVerificado(const DesignState& estado, int n);

/// Q²/(g A) + A y (2b + T) / (3 (b + T)), m³. Fails for no area and no width.
Real funcionMomento(Real Q, Real A, Real y, Real b, Real T);

/// Depth before the jump in the basin for the depth y of the section `llegada` at elevation cotaA, with a tenth of the
/// velocity head lost; `subida` is what the energy gains beside. Returns the iterate before the last correction, as a
/// 4-byte value. Fails where the energy does not reach the basin, which Y1RESALTO tells in a message of its own.
Single Yoo(Real Q, Real y, const Seccion& llegada, const Seccion& poza, Real cotaA, Real cotaB, Real subida,
           Dialogos& dialogos);

/// Depth behind the jump in the basin, m. Fails for y1 = 0 and where it does not converge.
Single YY(Real Q, Real y1, const Seccion& poza);

/// Length of the jump for the basin type in force; it stays as it is for a type that is none of 1 to 6. The Froude
/// number of type 5 is that of the design discharge whatever the row's, and meant to be.
void LONGRESALTO(FilaVerificacion& fila, const DesignState& estado, const Seccion& poza, const Form2& parametros,
                 std::optional<Real> kTrapezoidal = {});

/// Headings, numbers and widths of the table; no discharge is written yet.
void prepararVerificacion(Rejilla& tabla, const EstiloVerificacion& estilo);
/// Writes the n-th discharge with its verdict: "OK" if the canal downstream has more energy than the jump's end.
void escribirVerificacion(Rejilla& tabla, int n, const FilaVerificacion& fila, const EstiloVerificacion& estilo);
/// The verdict on the whole design, from the table.
std::string VEREDICTOPOZA(const Rejilla& tabla, const EstiloVerificacion& estilo);

/// With how many of the discharges the basin holds the jump.
int caudalesContenidos(const Rejilla& tabla);

/// The whole table of the inclined drop. A failure passes to the caller.
void verificarInclinada(Rejilla& tabla, const DesignState& estado, const Form2& parametros, Dialogos& dialogos);
/// That of the chute, whose depths at its end are marched down for each discharge. Each statement that fails is passed
/// over: what it would have written keeps the value of the row before.
void verificarRapida(Rejilla& tabla, const DesignState& estado, const Form2& parametros, Dialogos& dialogos);
/// That of the vertical drop; without a basin of one of its two kinds no discharge is computed.
void verificarVertical(Rejilla& tabla, const DesignState& estado);

}  // namespace calvento
