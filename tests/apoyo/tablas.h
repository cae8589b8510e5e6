#pragma once

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "modelo/design_state.h"

namespace calvento {

/// A row of a table of tests/tablas: its cells without the blanks around them.
struct FilaTabla {
  std::string escrita;
  std::vector<std::string> celdas;
  const std::string& operator[](std::size_t i) const { return celdas.at(i); }
  double num(std::size_t i) const { return std::stod(celdas.at(i)); }
  bool si(std::size_t i) const { return celdas.at(i) == "sí"; }
};

inline std::string sinBlancos(const std::string& s, const char* blancos = " ") {
  const std::size_t a = s.find_first_not_of(blancos);
  return a == std::string::npos ? "" : s.substr(a, s.find_last_not_of(blancos) - a + 1);
}

inline std::vector<std::string> partido(const std::string& s, char separador) {
  std::vector<std::string> partes;
  std::istringstream flujo(s);
  for (std::string p; std::getline(flujo, p, separador);) partes.push_back(sinBlancos(p));
  return partes;
}

/// The rows below "[seccion]" of a file of tests/tablas. Cells stand between bars; one in quotes keeps its blanks.
inline std::vector<FilaTabla> tabla(const std::string& archivo, const std::string& seccion) {
  std::ifstream f(RAIZ_PROYECTO "/tests/tablas/" + archivo);
  std::vector<FilaTabla> filas;
  bool dentro = false;
  for (std::string l; std::getline(f, l);) {
    if (l.starts_with('[')) dentro = l == "[" + seccion + "]";
    if (!dentro || l.empty() || l[0] == '#' || l[0] == '[') continue;
    filas.push_back({l, partido(l, '|')});
    for (std::string& c : filas.back().celdas)
      if (c.size() > 1 && c.starts_with('"') && c.ends_with('"')) c = c.substr(1, c.size() - 2);
  }
  EXPECT_FALSE(filas.empty()) << "no rows of " << seccion << " in " << archivo;
  return filas;
}

inline std::vector<double> numeros(const std::string& s) {
  std::istringstream flujo(s);
  return {std::istream_iterator<double>(flujo), {}};
}

inline void compararNumeros(const std::vector<double>& hallados, const std::string& esperados, double margen) {
  const std::vector<double> deben = numeros(esperados);
  ASSERT_EQ(hallados.size(), deben.size());
  for (std::size_t i = 0; i < deben.size(); ++i) EXPECT_NEAR(hallados[i], deben[i], margen) << i;
}

template <class F>
void porCadaFila(const std::string& archivo, const std::string& seccion, F f) {
  for (const FilaTabla& fila : tabla(archivo, seccion)) {
    SCOPED_TRACE(fila.escrita);
    f(fila);
  }
}

/// Sets fields of a record: "Q=4 bArriba=2". Rows of a profile are "x:depth", by commas; "100*+0.08:0.5" are a hundred,
/// each 0.08 on.
inline void ponerCampos(DesignState& e, const std::string& cambios) {
  std::istringstream palabras(cambios);
  for (std::string p; palabras >> p;) {
    const std::string nombre = p.substr(0, p.find('=')), valor = p.substr(p.find('=') + 1);
    bool esta = false;
    for (const CampoSingle& c : camposSingle())
      if (c.nombre == nombre) e.*c.campo = std::stod(valor), esta = true;
    if (esta) continue;
    if (nombre == "numTramos") {
      e.numTramos = static_cast<std::int16_t>(std::stoi(valor));
    } else if (nombre.starts_with("perfil")) {
      e.perfil.clear(), e.perfilCaida.clear();
      double x = 0;
      for (std::string fila : partido(valor, ',')) {
        const auto por = fila.find('*');
        const int veces = por == std::string::npos ? 1 : std::stoi(fila);
        if (por != std::string::npos) fila = fila.substr(por + 1);
        const double y = std::stod(fila.substr(fila.find(':') + 1));
        for (int i = 0; i < veces; ++i) {
          x = (fila[0] == '+' ? x : 0) + std::stod(fila);
          nombre == "perfil" ? e.perfil.push_back({x, y, 0, 0, 0}) : e.perfilCaida.push_back({x, y});
        }
      }
    } else {
      ADD_FAILURE() << "the record has no " << nombre;
    }
  }
}

/// A record of round numbers of tests/tablas/registros.txt; where it says "como otro" it is that one with the rest.
inline DesignState registro(const std::string& nombre, const std::string& cambios = {}) {
  DesignState e;
  for (const FilaTabla& f : tabla("registros.txt", nombre))
    f.escrita.starts_with("como ") ? void(e = registro(f.escrita.substr(5))) : ponerCampos(e, f.escrita);
  ponerCampos(e, cambios);
  return e;
}

}  // namespace calvento
