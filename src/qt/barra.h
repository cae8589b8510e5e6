#pragma once

#include <functional>

#include <QKeySequence>
#include <QObject>
#include <QPointer>
#include <QString>

class QAction;
class QIcon;
class QLabel;
class QLineEdit;
class QToolBar;
class QWidget;

namespace calvento {

/// A button in the bar whose key works wherever the focus is within `dueno`; the tooltip tells the key.
QAction* botonDeBarra(QToolBar& barra, QWidget& dueno, const QIcon& icono, const QString& texto,
                      const QKeySequence& tecla, std::function<void()> accion);

/// The search of a window that shows a long text, at the end of its bar: a field (Ctrl+F), the next and the former
/// place (F3, Shift+F3), and a note where there is none.
class BarraBusqueda : public QObject {
 public:
  /// Goes to the next place of the text; false where it stands nowhere.
  using Buscar = std::function<bool(const QString& texto, bool haciaAtras)>;
  BarraBusqueda(QToolBar& barra, QWidget& dueno, const QString& nombreAccesible, Buscar buscar);

 private:
  void correr(bool haciaAtras);

  Buscar buscar_;
  QLineEdit* campo_;
  QLabel* aviso_;
};

}  // namespace calvento
