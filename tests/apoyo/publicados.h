#pragma once

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "comun/numeros.h"

namespace calvento {

/// One published figure with the input that it belongs to.
struct CifraPublicada {
  std::string caso;
  std::string entrada;  ///< as written: "Q=126 b=6.1"
  std::map<std::string, double> dato;
  std::string magnitud;
  std::string publicado;  ///< as printed in the source
  double tolerancia = 0;
  std::string fuente;

  double valor() const { return std::stod(publicado); }
  int decimales() const {
    const std::size_t punto = publicado.find('.');
    return punto == std::string::npos ? 0 : static_cast<int>(publicado.size() - punto - 1);
  }
  double de(const std::string& nombre) const {
    const auto it = dato.find(nombre);
    if (it == dato.end()) throw std::runtime_error(caso + " has no " + nombre);
    return it->second;
  }
};

/// The published figures of one topic, from tests/publicados.txt. Throws where the table is malformed.
inline std::vector<CifraPublicada> cifrasPublicadas(const std::string& tema) {
  std::ifstream archivo(RAIZ_PROYECTO "/tests/publicados.txt");
  if (!archivo) throw std::runtime_error("tests/publicados.txt cannot be read");
  const auto sinBlancos = [](const std::string& s) {
    const std::size_t a = s.find_first_not_of(' ');
    return a == std::string::npos ? std::string() : s.substr(a, s.find_last_not_of(' ') - a + 1);
  };
  std::vector<CifraPublicada> cifras;
  for (std::string linea; std::getline(archivo, linea);) {
    if (linea.empty() || linea[0] == '#') continue;
    std::vector<std::string> celdas;
    std::istringstream partes(linea);
    for (std::string celda; std::getline(partes, celda, '|');) celdas.push_back(sinBlancos(celda));
    if (celdas.size() != 7) throw std::runtime_error("not seven columns: " + linea);
    if (celdas[0] != tema) continue;
    CifraPublicada c{celdas[1], celdas[2], {}, celdas[3], celdas[4], 0, celdas[6]};
    std::istringstream datos(celdas[2]);
    for (std::string par; datos >> par;) {
      const std::size_t igual = par.find('=');
      c.dato[par.substr(0, igual)] = std::stod(par.substr(igual + 1));
    }
    const std::string& t = celdas[5];
    if (t.empty())
      c.tolerancia = 0.5 * std::pow(10, -c.decimales());
    else
      c.tolerancia = t.back() == '%' ? std::stod(t) / 100 * std::fabs(c.valor()) : std::stod(t);
    cifras.push_back(std::move(c));
  }
  return cifras;
}

/// Checks every figure of a topic against the program's, and that docs/validacion.md shows both.
inline void compararPublicados(const std::string& tema, std::size_t cuantas,
                               const std::function<Real(const CifraPublicada&)>& programa) {
  const auto cifras = cifrasPublicadas(tema);
  EXPECT_EQ(cifras.size(), cuantas);
  std::ifstream archivo(RAIZ_PROYECTO "/docs/validacion.md");
  const std::string pagina{std::istreambuf_iterator<char>(archivo), {}};
  for (const CifraPublicada& c : cifras) {
    const Real nuestro = programa(c);
    EXPECT_NEAR(nuestro.valor(), c.valor(), c.tolerancia) << c.caso << ' ' << c.magnitud << ", " << c.fuente;
    // the page for the reader shows what the program gives today
    std::string patron = "0.";
    patron.append(static_cast<std::size_t>(c.decimales()) + 1, '0');
    const std::string renglon = "| " + c.caso + " | " + c.entrada + " | " + c.magnitud + " | " + c.publicado + " | " +
                                formato(nuestro, patron) + " |";
    EXPECT_NE(pagina.find(renglon), std::string::npos) << "docs/validacion.md lacks the row\n" << renglon;
  }
}

}  // namespace calvento
