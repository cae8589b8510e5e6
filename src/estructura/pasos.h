#pragma once

#include <string>

#include "comun/numeros.h"
#include "modelo/design_state.h"
#include "plataforma/control.h"
#include "plataforma/dialogos.h"

namespace calvento {

/// A depth plus the freeboard of a field, as a lining height; on the 0.05 grid where it is built so. Two stores: the
/// sum goes into its 4-byte field before the grid is taken.
void ponerAltura(Single& altura, Real tirante, const TextBox& bordoLibre, bool enRejillaObra);

/// Fields of the freeboards behind the crest.
struct BordosLibres {
  const TextBox &abajo, &rapida, &poza;
};
/// Lining heights of the downstream canal, of the chute or ramp for its depth, and of the basin, which reaches at least
/// the canal's lining; that raise stays off the grid here.
void calcularAlturas(DesignState& estado, Real tiranteRapida, const BordosLibres& bordos);

/// Upstream canal: normal depth, lining height, velocity and Froude number.
void calcularCanalArriba(DesignState& estado, const TextBox& bordoLibre, bool enRejillaObra);

/// Downstream canal: normal depth and velocity.
void calcularCanalAbajo(DesignState& estado);

/// Entry transition between the canal and the structure: keeps both top widths and the length between them, on the
/// grid.
void calcularTransicionEntrada(DesignState& estado, Real espejoCanal, Real espejoEstructura);

/// Outlet transition between basin and canal, the same way. `conMinimo`: one shorter than 0.15 m is built as 0.5 m.
void calcularTransicionSalida(DesignState& estado, Real espejoPoza, Real espejoCanal, bool conMinimo);

/// Energy level of a section, m: velocity head, bed elevation and depth.
Real nivelEnergia(Real velocidad, Real cota, Real tirante);

/// Specific energy of a section, m.
Real energiaEspecifica(Real velocidad, Real tirante);

/// Widths and Froude number that bound how far the jet spreads on the ramp.
struct AnchoPoza {
  Real entrada;  ///< width at the head of the ramp
  Real froude;   ///< Froude number there
  Real poza;     ///< width of the basin
};
/// Tells when the basin is at least as wide as the jet can spread; nothing is changed by it.
void avisarAncho(const DesignState& estado, const AnchoPoza& ancho, Dialogos& dialogos);

/// Text of a submergence ratio below the basin.
std::string textoAhogamiento(Real razon);

}  // namespace calvento
