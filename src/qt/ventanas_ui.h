#pragma once

#include <span>
#include <string_view>

class QMainWindow;

namespace calvento {

/// How a window stands on the desktop.
enum class Acomodo { principal, hija, suelta };

/// The look of a window: what builds its widgets from its design. A new window is a class, a .ui and a line here.
struct VentanaUi {
  std::string_view nombre;
  Acomodo puesto;
  void (*construir)(QMainWindow& vista);
  bool deUnCalculo = false;  ///< shows the figures of the calculation that was the last one when it opened
};

std::span<const VentanaUi> ventanasUi();
/// The entry of that window, or nullptr.
const VentanaUi* ventanaUi(std::string_view nombre);

}  // namespace calvento
