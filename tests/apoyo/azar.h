#pragma once

#include <algorithm>
#include <cstdlib>
#include <random>

namespace calvento {

using Azar = std::mt19937;

/// A number between a and b; written out, since the library's distributions differ from one library to another.
inline double entre(Azar& azar, double a, double b) {
  return a + (b - a) * (static_cast<double>(azar()) / 4294967296.0);
}

/// How many random cases: the daily number, or what the environment variable CALVENTO_AZAR asks for.
inline int cuantosAlAzar(int diarios, int minimo) {
  const char* pedido = std::getenv("CALVENTO_AZAR");
  return pedido != nullptr ? std::max(minimo, std::atoi(pedido)) : diarios;
}

/// Seconds of processor time that one case may take: the limit of the release build, or a loose one under
/// sanitizers and where the C library counts the time of the day.
constexpr double limiteSegundos([[maybe_unused]] double entrega, [[maybe_unused]] double depuracion) {
#if defined(__SANITIZE_ADDRESS__) || !defined(NDEBUG) || defined(_WIN32)
  return depuracion;
#else
  return entrega;
#endif
}

}  // namespace calvento
