#pragma once

#include "comun/real.h"
#include "modelo/design_state.h"

namespace calvento {

/// The basin in which a jump is balanced.
struct PozaResalto {
  Real b, z;        ///< bottom width and side slope
  Real difEnergia;  ///< energy level of the downstream canal less that at the end of the chute or drop, m
};

/// Larger conjugate depth of y1 in a rectangular section, m; q per metre of width. Fails for y1 = 0.
Real conjugadoRectangular(Real y1, Real q);

/// Balances the jump: from the record's y1 and y2 it solves the energy balance with the submergence margin and the
/// momentum balance together by Newton's method, until both depths move less than `tolerancia`. Leaves y1, y2, v1, v2,
/// fr1, cotaPoza (not above the downstream canal) and profPoza; espejoArriba and espejoAbajo are its working space.
/// The factor 1.1 on the velocity head before the jump and the margin on the whole specific energy behind it are the
/// design's own.
void TIRANTESCONJUGADOS(DesignState& estado, const PozaResalto& poza, double tolerancia);

/// Submergence ratio that levels the water at the outlet, (vAbajo² - v2²) / (v2² + 2 g y2), a fraction.
Real razonAhogamiento(const DesignState& estado);

}  // namespace calvento
