#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "plataforma/rejilla.h"

namespace calvento {

/// A label on the picture of a dimension sheet, where the window has it: a value, or a fixed text.
struct RotuloHoja {
  std::string_view control;  ///< empty for a fixed text
  std::string_view texto;
  int x, y, ancho, alto;
  Alineacion alineacion;
};

/// The dimension sheet of a basin type.
struct HojaDeBloques {
  std::string_view ventana;
  std::string_view boceto;
  std::span<const RotuloHoja> rotulos;
};
inline constexpr int anchoHoja = 1086, altoHoja = 556;

/// Of the types 2 to 5; the others have none.
std::optional<HojaDeBloques> hojaDeBloques(int tipoTanque);

}  // namespace calvento
