#include "modelo/codificacion.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

namespace calvento {

namespace {

/// What stands at 0x80 to 0x9F of the code page; unused places keep their own number.
constexpr std::array<char32_t, 32> altos1252 = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                                0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

/// Reads one character; returns its length in bytes, 0 for an invalid sequence.
std::size_t leerCaracter(std::string_view s, char32_t& c) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(s[i]); };
  const unsigned char primero = byte(0);
  if (primero < 0x80) {
    c = primero;
    return 1;
  }
  const std::size_t largo = primero >= 0xF0 ? 4 : primero >= 0xE0 ? 3 : 2;
  if (primero < 0xC2 || primero > 0xF4 || s.size() < largo) return 0;
  c = primero & (0xFF >> (largo + 1));
  for (std::size_t i = 1; i < largo; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
    c = (c << 6) | (byte(i) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> minimo = {0, 0, 0x80, 0x800, 0x10000};
  const bool valido = c >= minimo[largo] && c <= 0x10FFFF && !(c >= 0xD800 && c <= 0xDFFF);
  return valido ? largo : 0;
}

void escribirCaracter(std::string& salida, char32_t c) {
  const auto poner = [&](char32_t byte) { salida += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (c < 0x80) {
    poner(c);
  } else if (c < 0x800) {
    poner(0xC0 | (c >> 6));
    poner(0x80 | (c & 0x3F));
  } else {
    poner(0xE0 | (c >> 12));
    poner(0x80 | ((c >> 6) & 0x3F));
    poner(0x80 | (c & 0x3F));
  }
}

}  // namespace

bool esUtf8(std::string_view bytes) {
  char32_t c = 0;
  while (!bytes.empty()) {
    const std::size_t largo = leerCaracter(bytes, c);
    if (largo == 0) return false;
    bytes.remove_prefix(largo);
  }
  return true;
}

std::string aUtf8(std::string_view bytes) {
  if (esUtf8(bytes)) return std::string(bytes);
  std::string salida;
  for (const char b : bytes) {
    const auto u = static_cast<unsigned char>(b);
    escribirCaracter(salida, u >= 0x80 && u < 0xA0 ? altos1252[u - 0x80U] : u);
  }
  return salida;
}

std::string aWindows1252(std::string_view utf8) {
  std::string salida;
  char32_t c = 0;
  while (!utf8.empty()) {
    const std::size_t largo = leerCaracter(utf8, c);
    utf8.remove_prefix(std::max<std::size_t>(largo, 1));
    const auto alto = std::find(altos1252.begin(), altos1252.end(), c);
    if (largo == 0)
      salida += '?';
    else if (alto != altos1252.end())
      salida += static_cast<char>(static_cast<unsigned char>(0x80 + (alto - altos1252.begin())));
    else
      salida += c < 0x80 || (c >= 0xA0 && c < 0x100) ? static_cast<char>(static_cast<unsigned char>(c)) : '?';
  }
  return salida;
}

std::string visible(std::string_view texto) {
  std::string salida;
  while (!texto.empty()) {
    char32_t c = 0;
    const std::size_t largo = std::max<std::size_t>(leerCaracter(texto, c), 1);
    if (largo == 1 && static_cast<unsigned char>(texto[0]) >= 0x80) c = static_cast<unsigned char>(texto[0]);
    const bool corriente = (c >= 0x20 && c < 0x7F) || (c >= 0xA0 && largo > 1);
    if (corriente) {
      salida += texto.substr(0, largo);
    } else if (constexpr std::string_view blancos = "\t\n\r"; c < 0x80 && blancos.find(texto[0]) != blancos.npos) {
      salida += '\\';
      salida += "tnr"[blancos.find(texto[0])];
    } else {
      std::array<char, 8> escape{};
      std::snprintf(escape.data(), escape.size(), largo > 1 ? "\\u%04X" : "\\x%02X", static_cast<unsigned>(c));
      salida += escape.data();
    }
    texto.remove_prefix(largo);
  }
  return salida;
}

}  // namespace calvento
