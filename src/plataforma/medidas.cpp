#include "plataforma/medidas.h"

#include <array>
#include <cstdint>

namespace calvento {

namespace {

/// Advance widths of the characters 32 to 126 of a common sans-serif, in pixels of 15 twips at 8 points.
constexpr std::array<std::uint8_t, 95> anchosAscii = {
    3,  3, 5, 7, 6, 9, 7, 2,  4, 4, 4, 7, 3, 4, 3, 4,  //  !"#$%&'()*+,-./
    6,  6, 6, 6, 6, 6, 6, 6,  6, 6, 3, 3, 7, 7, 7, 6,  // 0-9 :;<=>?
    11, 8, 7, 8, 8, 7, 7, 8,  8, 3, 6, 7, 6, 9, 8, 9,  // @A-O
    7,  9, 8, 7, 7, 8, 7, 11, 7, 7, 7, 3, 4, 3, 5, 6,  // P-Z [\]^_
    4,  6, 6, 6, 6, 6, 3, 6,  6, 2, 2, 6, 2, 8, 6, 6,  // `a-o
    6,  6, 4, 5, 3, 6, 6, 8,  6, 6, 6, 4, 3, 4, 7      // p-z {|}~
};
constexpr int twipsPorPixel = 15;
constexpr int anchoOtros = 6;

}  // namespace

int anchoTexto(std::string_view utf8) {
  int pixeles = 0;
  for (const char c : utf8) {
    const auto u = static_cast<unsigned char>(c);
    if (u >= 32 && u < 127)
      pixeles += anchosAscii[u - 32];
    else if ((u & 0xC0) != 0x80)  // one width for each letter beyond ASCII, whatever its bytes
      pixeles += anchoOtros;
  }
  return pixeles * twipsPorPixel;
}

int altoTexto() { return 13 * twipsPorPixel; }

}  // namespace calvento
