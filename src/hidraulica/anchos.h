#pragma once

#include "comun/real.h"

namespace calvento {

/// Width suggested for a chute, m: b = 0.765 Q^0.4 (Dadenkov).
inline Real anchoRapida(Real Q) { return 0.765 * potencia(Q, 0.4); }

/// Width suggested for a stilling basin, m: B = 18.78 sqrt(Q) / (10.11 + Q).
inline Real anchoPoza(Real Q) { return 18.78 * Sqr(Q) / (Q + 10.11); }

}  // namespace calvento
