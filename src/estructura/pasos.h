#pragma once

#include "comun/numeros.h"
#include "modelo/design_state.h"
#include "plataforma/control.h"

namespace calvento {

/// A depth plus the freeboard of a field, as a lining height; on the 0.05 grid where it is built so. Two stores: the
/// sum goes into its 4-byte field before the grid is taken.
void ponerAltura(Single& altura, Real tirante, const TextBox& bordoLibre, bool enRejillaObra);

/// Upstream canal: normal depth, lining height, velocity and Froude number.
void calcularCanalArriba(DesignState& estado, const TextBox& bordoLibre, bool enRejillaObra);

/// Downstream canal: normal depth and velocity.
void calcularCanalAbajo(DesignState& estado);

/// Energy level of a section, m: velocity head, bed elevation and depth.
Real nivelEnergia(Real velocidad, Real cota, Real tirante);

/// Text of a submergence ratio below the basin.
std::string textoAhogamiento(Real razon);

}  // namespace calvento
