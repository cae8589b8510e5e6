#pragma once

namespace calvento {

/// Size of the arrows and texts of dimensions, and how far an extension line goes beyond the dimension line, m.
inline constexpr double medidaCota = 0.075;
/// Room between a measured point and its extension line, m: of a chain, and of a dimension on the measured line itself.
inline constexpr double separacionCadena = 0.2;
inline constexpr double separacionEnSitio = 0.1;
/// Free room on each side of a text in the dimension line, in parts of its height.
inline constexpr double holguraCota = 0.5;

}  // namespace calvento
