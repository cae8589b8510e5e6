#pragma once

#include <set>

#include <QString>

#include "dibujo/marco_dibujo.h"

namespace calvento {

/// The views in which the drawings of projects were left, kept for the next run. Within a run a drawing opens on its
/// basin, as it does where nothing is kept or the project's figure lies elsewhere by now.
class VistasDibujo {
 public:
  /// Shows the view of the former run, the first time that the drawing of this project opens.
  void alAbrir(MarcoDibujo& dibujo);
  /// Keeps the view of a drawing that is about to go.
  void alDejar(const MarcoDibujo& dibujo);

 private:
  std::set<QString> abiertos_;  ///< in this run
};

}  // namespace calvento
