#pragma once

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "corrida.h"

namespace calvento::lote {

/// The example projects of one kind, by its extension, in the order of their numbers.
inline std::vector<std::string> ejemplos(const std::string& extension) {
  std::vector<std::string> todos;
  for (const auto& e : std::filesystem::directory_iterator(std::string(RAIZ_PROYECTO) + "/ejemplos"))
    if (e.path().extension() == extension) todos.push_back(e.path().string());
  std::sort(todos.begin(), todos.end());
  return todos;
}

/// The name of a test that takes an example: its number.
inline std::string nombreEjemplo(const testing::TestParamInfo<std::string>& caso) {
  return "n" + std::filesystem::path(caso.param).stem().string().substr(0, 2);
}

}  // namespace calvento::lote
