#pragma once

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "apoyo/carpeta_prueba.h"
#include "lote/programa.h"
#include "modelo/archivo_proyecto.h"

namespace calvento::lote {

/// One run of the whole program.
struct Corrida {
  int estado = -1;
  std::string salida;
  std::string errores;

  /// The lines of the output as JSON objects, keys in their order.
  std::vector<nlohmann::ordered_json> objetos() const {
    std::vector<nlohmann::ordered_json> todos;
    std::istringstream lineas(salida);
    for (std::string l; std::getline(lineas, l);) todos.push_back(nlohmann::ordered_json::parse(l));
    return todos;
  }
};

inline Corrida correr(const std::vector<std::string>& argumentos) {
  std::vector<const char*> argv = {"calvento-lote"};
  for (const std::string& a : argumentos) argv.push_back(a.c_str());
  std::ostringstream salida;
  std::ostringstream errores;
  const int estado = ejecutar(static_cast<int>(argv.size()), argv.data(), salida, errores);
  return {estado, salida.str(), errores.str()};
}

/// A project whose lines are named; empty at first.
class ProyectoTexto {
 public:
  using Lineas = std::initializer_list<std::pair<const char*, const char*>>;

  explicit ProyectoTexto(const FormatoProyecto& formato, Lineas lineas = {})
      : formato_(&formato), textos_(formato.lineas.size()) {
    for (const auto& [linea, texto] : lineas) poner(linea, texto);
  }
  ProyectoTexto& poner(std::string_view linea, std::string texto) {
    const auto it = std::find(formato_->lineas.begin(), formato_->lineas.end(), linea);
    if (it == formato_->lineas.end()) throw std::invalid_argument(std::string(linea));
    textos_[static_cast<std::size_t>(it - formato_->lineas.begin())] = std::move(texto);
    return *this;
  }
  std::string contenido() const {
    std::string s;
    for (const std::string& t : textos_) s += t + "\r\n";
    return s;
  }

 private:
  const FormatoProyecto* formato_;
  std::vector<std::string> textos_;
};

/// It starts as a lateral canal's chute of one reach that calculates without a word.
struct ProyectoRapida : ProyectoTexto {
  ProyectoRapida()
      : ProyectoTexto(
            formatoRapida,
            {{"Text5", "1.5"},        {"Text6", "1.10"},       {"Text7", "1"},          {"Text8", "0.015"},
             {"Text9", "0.0008"},     {"Text10", "0.90"},      {"Text11", "0"},         {"Text12", "0.015"},
             {"Text13", "0.2"},       {"Text16", "1.10"},      {"Text18", "1"},         {"Text19", "0.015"},
             {"Text20", "0.0008"},    {"Text23", "1.00"},      {"Text24", "0"},         {"Text1", "1820.50"},
             {"Text2", "1814.50"},    {"Text4", "1814.00"},    {"Text21", "2"},         {"Text22", "1.5"},
             {"Text25", "340"},       {"Text26", "10"},        {"Form2.Text1", "5"},    {"Form2.Text2", "6.1"},
             {"Form2.Text3", "2.8"},  {"Form2.Text4", "4.4"},  {"Form2.Text5", "0.20"}, {"Form2.Text6", "0.30"},
             {"Form2.Text7", "0.30"}, {"Form2.Text8", "0.20"}, {"Form2.Text10", "6"},   {"tipoTanque", "3"},
             {"Text17", "1"}}) {}
};

}  // namespace calvento::lote
