#pragma once

#include <string>

namespace calvento {

/// The version of the program, "1.2.3". It stands in CMakeLists.txt alone.
std::string version();

}  // namespace calvento
