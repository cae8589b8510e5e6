#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <QIcon>
#include <QObject>
#include <QPointer>

#include "plataforma/dialogos.h"
#include "plataforma/navegador.h"
#include "qt/enlace.h"
#include "qt/ventanas_ui.h"

class QMainWindow;
class QMdiArea;

namespace calvento {

/// The windows of the program on the desktop: the main window with its area for documents, the working windows in it,
/// the About box above it. The widgets of a window are made when it is first shown and go when it is unloaded.
class SistemaQt : public QObject, public SistemaVentanas {
 public:
  explicit SistemaQt(Dialogos& dialogos) : dialogos_(dialogos) {}
  ~SistemaQt() override;

  /// Who is asked to unload a window that the user closes.
  void responder(Navegador& navegador) { navegador_ = &navegador; }
  /// Takes all widgets away; to be called before the windows die.
  void cerrarTodo();

  /// The widgets of a window that has been shown, or nullptr.
  QMainWindow* vista(std::string_view nombre) const;
  /// What stands around them: the frame of a child window, else the widgets themselves.
  QWidget* marco(std::string_view nombre) const;

  // SistemaVentanas
  void presentar(Ventana& ventana) override;
  void ocultar(Ventana& ventana) override;
  void cerrar(Ventana& ventana) override;
  void imprimir(Ventana& ventana) override;
  void copiar(Ventana& ventana) override;
  void terminar() override;
  /// Runs the action when the event that is running has ended, not in the loop of a box that it opens.
  void despues(std::function<void()> accion) override;

  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  struct Abierta {
    Ventana* ventana = nullptr;
    QPointer<QMainWindow> vista;
    QPointer<QWidget> marco;
    QPointer<Enlace> enlace;
  };
  Abierta* buscar(const Ventana& ventana);
  Abierta& crear(Ventana& ventana);
  void colocarPrincipal(QMainWindow& vista);
  QWidget* colocarHija(QMainWindow& vista);
  void colocarSuelta(QMainWindow& vista);
  void traerAlFrente(QWidget* marco);
  void alCerrar(QObject* marco);
  void alPintarPrincipal();

  Dialogos& dialogos_;
  Navegador* navegador_ = nullptr;
  QPointer<QMainWindow> principal_;
  QPointer<QMdiArea> area_;
  bool pintada_ = false;            ///< the main window has been seen
  QIcon icono_;                     ///< its icon, painted in many sizes, once it has
  std::vector<Ventana*> enEspera_;  ///< what is to stand above it, shown after it
  std::map<std::string, Abierta, std::less<>> abiertas_;
};

}  // namespace calvento
