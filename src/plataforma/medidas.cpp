#include "plataforma/medidas.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace calvento {

namespace {

/// Advance widths of the characters 32 to 126 of Helvetica and its metric twins, in thousandths of the font size
/// (Adobe's font metrics).
constexpr std::array<std::uint16_t, 95> anchosAscii = {
    278,  278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,  //  !"#$%&'()*+,-./
    556,  556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,  // 0-9 :;<=>?
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,  // @A-O
    667,  778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,  // P-Z [\]^_
    333,  556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,  // `a-o
    556,  556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584        // p-z {|}~
};
constexpr double puntos = 8;

/// Characters of the second half of Latin-1 whose width is not that of most small letters.
int anchoLatino(unsigned codigo) {
  switch (codigo) {
    case 0xA1:  // ¡
    case 0xB2:  // ²
    case 0xB3:  // ³
    case 0xB9:  // ¹
      return 333;
    case 0xB0:  // °
      return 400;
    case 0xB7:  // ·
    case 0xCD:  // Í
    case 0xED:  // í
      return 278;
    case 0xBA:  // º
      return 365;
    case 0xAA:  // ª
      return 370;
    case 0xBF:  // ¿
      return 611;
    case 0xC1:  // Á
    case 0xC9:  // É
      return 667;
    case 0xD1:  // Ñ
    case 0xDA:  // Ú
    case 0xDC:  // Ü
      return 722;
    case 0xD3:  // Ó
      return 778;
    case 0xD7:  // ×
    case 0xB1:  // ±
      return 584;
    default:
      return 556;
  }
}

}  // namespace

int anchoTexto(std::string_view utf8) {
  int milesimas = 0;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto u = static_cast<unsigned char>(utf8[i]);
    if (u >= 32 && u < 127) {
      milesimas += anchosAscii[u - 32U];
    } else if ((u & 0xC0U) != 0x80U) {  // one width for each character beyond ASCII, whatever its bytes
      const bool latino = (u == 0xC2U || u == 0xC3U) && i + 1 < utf8.size();
      const unsigned codigo = latino ? ((u & 0x1FU) << 6U) | (static_cast<unsigned char>(utf8[i + 1]) & 0x3FU) : 0;
      milesimas += anchoLatino(codigo);
    }
  }
  return static_cast<int>(std::lround(milesimas * puntos * twipsPorPunto / 1000));
}

int altoTexto() { return 13 * twipsPorPixel; }

}  // namespace calvento
