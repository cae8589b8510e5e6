#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "activex/objeto_remoto.h"

// A call as one line of text: written by the fakes, and by the automation server in its own program.

namespace calvento {

struct TextoDeValor {
  static std::string numero(double x) {
    char s[40];
    std::snprintf(s, sizeof s, "%.17g", x);
    return s;
  }
  std::string operator()(std::monostate) const { return "nada"; }
  std::string operator()(bool si) const { return si ? "true" : "false"; }
  std::string operator()(int n) const { return std::to_string(n) + "i"; }
  std::string operator()(double x) const { return numero(x); }
  std::string operator()(const std::string& s) const { return '"' + s + '"'; }
  std::string operator()(const std::vector<double>& lista) const {
    std::string s = "[";
    for (const double x : lista) s += numero(x) + " ";
    return s + "]";
  }
  std::string operator()(const ReferenciaRemota&) const { return "objeto"; }
};

inline std::string comoPuesta(const std::string& de, const std::string& propiedad, const ValorRemoto& v) {
  return de + "." + propiedad + " = " + std::visit(TextoDeValor(), v);
}
inline std::string comoLlamada(const std::string& de, const std::string& metodo, const std::vector<ValorRemoto>& a) {
  std::string s = de + "." + metodo + "(";
  for (const ValorRemoto& v : a) s += std::visit(TextoDeValor(), v) + ";";
  return s + ")";
}

}  // namespace calvento
