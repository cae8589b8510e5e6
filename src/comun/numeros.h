#pragma once

#include <string>
#include <string_view>

#include "comun/real.h"

namespace calvento {

/// The number at the start of a text: leading blanks are skipped, "." is the decimal point, a sign and an exponent are
/// accepted, the rest is ignored; 0 where there is no number. Fails when the number does not fit 8 bytes.
Real Val(std::string_view texto);

/// Whether a text is wholly a number as Val reads it, but for blanks around it.
bool esNumero(std::string_view texto);

/// A number as people type it with the point as its decimal sign: "2,5" gives "2.5"; in a number with thousands
/// separators ("1.234,56", "1,234.56") these are dropped as soon as the decimal sign behind them stands ("1.234,").
std::string conPuntoDecimal(std::string_view texto);

/// Rounds to so many decimals, ties to the even digit.
Real Round(Real x, int decimales);
/// The same for a 4-byte value, whose rounded value is again a 4-byte value.
Single Round(Single x, int decimales);

/// x on the 0.05 grid of built lengths and heights.
Real enRejilla(Real x);

/// Plain text of a number: no trailing zeros, point as decimal sign, at most fifteen significant digits (seven for a
/// 4-byte value).
std::string texto(Real x);
std::string texto(Single x);
std::string texto(int x);

/// Text of a number by a pattern of zeros with at most one point and literal signs among the zeros: "0.000" gives
/// 3.142, "0+000.00" gives 1+234.50. Ties are rounded away from zero, as in printed tables.
std::string formato(Real x, std::string_view patron);

}  // namespace calvento
