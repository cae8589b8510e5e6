#pragma once

#include <ostream>

namespace calvento::lote {

/// The whole program: results to `salida`, what went wrong to `errores`. Returns the exit status: 0 when every project
/// was calculated to its end, 1 when one was not, 2 for a wrong option or a file that cannot be read.
int ejecutar(int argc, const char* const* argv, std::ostream& salida, std::ostream& errores);

}  // namespace calvento::lote
