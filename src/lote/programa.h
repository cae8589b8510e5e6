#pragma once

#include <ostream>

namespace calvento::lote {

/// The whole program: results to `salida`, what went wrong to `errores`. Returns the exit status: 0 when every project
/// was calculated to its end, 1 when one was not, 2 for a wrong option, a file that cannot be read or written, or
/// output that nobody takes any more; then, and after a request to end, the projects that are left are not touched.
int ejecutar(int argc, const char* const* argv, std::ostream& salida, std::ostream& errores);

}  // namespace calvento::lote
