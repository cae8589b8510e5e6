#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "apoyo/carpeta_prueba.h"
#include "lote/sesion.h"

// Worked designs: the files of tests/casos, what is typed and what must come out of it.

namespace calvento::lote {

using Json = nlohmann::ordered_json;

/// The files of all worked designs that have this section, for a test of each.
std::vector<std::string> casosCon(std::string_view seccion);

/// A name that tells the design in the list of tests.
std::string nombreDeCaso(const testing::TestParamInfo<std::string>& archivo);

/// A design and the session that works on it, in a folder of its own.
class Caso {
 public:
  explicit Caso(const std::string& archivo);
  Sesion& sesion() { return *sesion_; }

  const Json deben;

 private:
  CarpetaPrueba carpeta_;
  std::unique_ptr<Sesion> sesion_;
};

bool cercaDe(double es, double debe);
/// The same words, and the numbers in them equal to one unit of the last digit.
bool mismoTexto(std::string_view es, std::string_view debe);

/// Holds what came out against what is expected, item by item; each difference is a failure that names the item.
/// Where only some entries of a long list are expected, they stand in an object by their place, "de" tells how many
/// entries the list has.
void comparar(const Json& es, const Json& debe, const std::string& donde);

}  // namespace calvento::lote
