#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "estudio/entradas.h"

namespace calvento {

/// A study that cannot be made as it was asked for; what() is a Spanish text for the user.
class FalloEstudio : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Designs that a study may have at most: they are all kept.
inline constexpr std::size_t maximoDisenos = 10000;

/// From – to – step, as typed.
struct Serie {
  std::string desde, hasta, paso;
};

/// The values of the series as texts for the field: from the first by steps up to the last, which is one of them where
/// the step meets it. The step may be empty where both ends are the same. Fails with FalloEstudio for what is empty or
/// no number, a step that is not more than 0, an end before the start, values that the field is not for, and more than
/// maximoDisenos of them.
std::vector<std::string> valores(const Entrada& entrada, const Serie& serie);

/// Ends and step for a study around the typed text: about twenty values of round numbers of which the typed one is one;
/// a field that is empty or no number gets what is usual.
Serie serieAlrededor(const Entrada& entrada, const std::string& tecleado);

}  // namespace calvento
