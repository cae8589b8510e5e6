#pragma once

#include <string>

namespace CLI {
class App;
}

namespace calvento::lote {

/// The manual page of the program as troff source: its options are those that the help tells, in the same words.
std::string paginaMan(const CLI::App& programa);

}  // namespace calvento::lote
