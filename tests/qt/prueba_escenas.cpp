// Scenes on the desktop with real widgets and events; they are data, tests/guiones/escritorio.
#include <filesystem>
#include <fstream>

#include "apoyo/tablas.h"
#include "escena.h"

namespace calvento {
namespace {

struct Escrita {
  std::string nombre;
  std::vector<std::string> lineas, variantes;
};

/// The scenes of a file: "escena NAME", "con A | B" for each time that it is played with $1 and $2 so, and its steps.
std::vector<Escrita> escenas(const std::string& archivo) {
  std::vector<Escrita> todas;
  std::ifstream f(archivo);
  for (std::string l; std::getline(f, l);) {
    l = sinBlancos(l);
    if (l.empty() || l[0] == '#') continue;
    if (l.starts_with("escena "))
      todas.push_back({l.substr(7), {}, {}});
    else
      (l.starts_with("con ") ? todas.back().variantes : todas.back().lineas).push_back(l);
  }
  return todas;
}

class Escritorio : public testing::TestWithParam<std::string> {};

TEST_P(Escritorio, GoesAsItIsWritten) {
  for (Escrita& e : escenas(GetParam())) {
    if (e.variantes.empty()) e.variantes.emplace_back("con ");
    for (const std::string& variante : e.variantes) {
      SCOPED_TRACE(e.nombre + ", " + variante);
      const auto valores = partido(variante.substr(4), '|');
      std::vector<std::string> lineas = e.lineas;
      for (std::string& l : lineas)
        for (std::size_t i = 0; i < valores.size(); ++i)
          for (std::size_t k; (k = l.find("$" + std::to_string(i + 1))) != std::string::npos;)
            l.replace(k, 2, valores[i]);
      const Escena jugada(lineas);
    }
  }
}

std::vector<std::string> guiones() {
  std::vector<std::string> todos;
  for (const auto& g : std::filesystem::directory_iterator(RAIZ_PROYECTO "/tests/guiones/escritorio"))
    todos.push_back(g.path().string());
  std::sort(todos.begin(), todos.end());
  return todos;
}

INSTANTIATE_TEST_SUITE_P(Guiones, Escritorio, testing::ValuesIn(guiones()),
                         [](const auto& g) { return std::filesystem::path(g.param).stem().string(); });

}  // namespace
}  // namespace calvento
