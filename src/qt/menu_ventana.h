#pragma once

#include <functional>

class QMainWindow;
class QMdiArea;
class QMdiSubWindow;

namespace calvento {

/// Property of a child: the size of its frame when it opened.
inline constexpr const char* tamanoAlAbrir = "tamanoAlAbrir";

/// Adds the menu of the open windows to the main window: cascade, tile, and each child, the active one marked. `traer`
/// brings the chosen one forward.
void anadirMenuVentana(QMainWindow& principal, QMdiArea& area, std::function<void(QMdiSubWindow&)> traer);

}  // namespace calvento
