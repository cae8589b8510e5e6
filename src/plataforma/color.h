#pragma once

#include <cstdint>

namespace calvento {

/// A colour as one 32-bit value: red in the lowest byte, then green, then blue. Negative values name colours of the
/// user's desktop, which the window system resolves.
struct Color {
  std::int32_t valor = 0;
  friend bool operator==(const Color&, const Color&) = default;
  constexpr bool esDelSistema() const { return valor < 0; }
  constexpr int rojo() const { return valor & 0xFF; }
  constexpr int verde() const { return (valor >> 8) & 0xFF; }
  constexpr int azul() const { return (valor >> 16) & 0xFF; }
};

namespace color {
inline constexpr Color caraBoton{-2147483633};
inline constexpr Color ventana{-2147483643};
inline constexpr Color textoBoton{-2147483630};
inline constexpr Color textoVentana{-2147483640};
inline constexpr Color textoGris{8421504};
inline constexpr Color celda{12648447};         ///< light yellow of the table cells
inline constexpr Color celdaElegida{16776960};  ///< cyan of the chosen row
inline constexpr Color negro{0};
inline constexpr Color blanco{0xFFFFFF};
inline constexpr Color rojo{255};
inline constexpr Color verde{65280};
inline constexpr Color azul{16711680};
inline constexpr Color grisMedio{8421504};
inline constexpr Color grisClaro{0xC0C0C0};  ///< palette number 7
inline constexpr Color azulClaro{0xFF0000};  ///< palette number 9
inline constexpr Color cianClaro{0xFFFF00};  ///< palette number 11
}  // namespace color

}  // namespace calvento
