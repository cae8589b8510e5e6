#pragma once

#include <optional>
#include <string>

#include <QRect>

class QWidget;

namespace calvento {

/// Where a window stood when it was last left, on a screen of the size of that on which `aqui` stands; nothing where
/// the user never moved it.
struct Lugar {
  QRect marco;
  bool entera = false;  ///< maximized; `marco` is what it was before
};
std::optional<Lugar> lugarGuardado(const std::string& ventana, const QWidget& aqui);
void guardarLugar(const std::string& ventana, const QWidget& aqui, const Lugar& lugar);

/// The place moved and made smaller until it lies within `en`.
QRect dentroDe(const QRect& en, QRect lugar);

/// The folder of the last file dialog of the former run becomes the current one, where it still exists; and keeps the
/// current one for the next run.
void volverALaCarpeta();
void guardarCarpeta();

}  // namespace calvento
