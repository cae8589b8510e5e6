#pragma once

#include <stdexcept>

namespace calvento {

/// Why an arithmetic operation could not give a number.
enum class Motivo { divisionPorCero, desbordamiento, argumentoNoValido, sinConvergencia, subindice };

/// An arithmetic operation that has no result. what() is a short Spanish text for the user.
/// Thrown in the statement where the operation stands, so that a calculation stops exactly there.
class FalloAritmetico : public std::runtime_error {
 public:
  explicit FalloAritmetico(Motivo motivo);
  Motivo motivo() const { return motivo_; }

 private:
  Motivo motivo_;
};

/// Throws FalloAritmetico. Kept out of line so that the checks in Real stay two instructions long.
[[noreturn]] void fallar(Motivo motivo);

/// Runs one statement and passes over its arithmetic failure: what the statement would have assigned keeps its
/// former value. Returns whether the statement ran through.
template <class Sentencia>
bool pasandoFallos(Sentencia&& sentencia) {
  try {
    sentencia();
    return true;
  } catch (const FalloAritmetico&) {
    return false;
  }
}

/// Counts the rounds of an iteration that has no bound of its own; one round too many is a failure
/// "sin convergencia". The bound is far beyond what any converging case needs.
class Vueltas {
 public:
  static constexpr int limiteSimple = 100000;  ///< plain Newton loops
  static constexpr int limiteAnidado = 1000;   ///< loops whose every round iterates by itself
  explicit Vueltas(int limite = limiteSimple) : quedan_(limite) {}
  void una() {
    if (quedan_-- <= 0) fallar(Motivo::sinConvergencia);
  }
  bool agotadas() const { return quedan_ <= 0; }

 private:
  int quedan_;
};

}  // namespace calvento
