#pragma once

#include <functional>

class QEvent;
class QKeySequence;
class QMainWindow;
class QWidget;

namespace calvento {

/// Whether the event announces the Alt key pressed alone.
bool esAltSola(const QEvent& evento);

/// The menu bar that the keys go to: that of the child the focus is in, or of the main window where that has none.
/// `tecla` is the Alt key whose release will go there, or nullptr to go at once. Esc leads back.
void irAlMenu(QMainWindow& principal, QEvent* tecla = nullptr);

/// A key that acts wherever the focus is within the window.
void unirTecla(QWidget& marco, const QKeySequence& tecla, std::function<void()> accion);

}  // namespace calvento
