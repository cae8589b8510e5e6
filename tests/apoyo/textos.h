#pragma once

#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "plataforma/ventana.h"

namespace calvento {

/// Calls f(name, text) for each pair of "Text1=2.5 Text2= Label4=7"; the texts hold no blanks.
template <class F>
void porCadaTexto(const std::string& pares, F f) {
  std::istringstream palabras(pares);
  for (std::string par; palabras >> par;) f(par.substr(0, par.find('=')), par.substr(par.find('=') + 1));
}

inline void escribirTextos(const Ventana& v, const std::string& pares) {
  porCadaTexto(pares, [&](const std::string& campo, const std::string& texto) {
    ASSERT_NE(v.buscar<TextBox>(campo), nullptr) << campo;
    v.buscar<TextBox>(campo)->Text = texto;
  });
}

/// How often a part stands in a text, whatever a line ends with on the system.
inline std::size_t veces(std::string texto, const std::string& parte) {
  std::erase(texto, '\r');
  std::size_t n = 0;
  for (std::size_t i = texto.find(parte); i != std::string::npos; i = texto.find(parte, i + 1)) ++n;
  return n;
}

/// Expects these texts of the fields and captions of the labels.
inline void esperarTextos(const Ventana& v, const std::string& pares) {
  porCadaTexto(pares, [&](const std::string& nombre, const std::string& texto) {
    const auto* campo = v.buscar<TextBox>(nombre);
    const auto* rotulo = v.buscar<Label>(nombre);
    ASSERT_TRUE(campo != nullptr || rotulo != nullptr) << nombre;
    EXPECT_EQ(campo != nullptr ? campo->Text.valor() : rotulo->Caption.valor(), texto) << v.nombre() << ' ' << nombre;
  });
}

}  // namespace calvento
