#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <QIcon>
#include <QObject>
#include <QPointer>
#include <QRect>

#include "plataforma/dialogos.h"
#include "plataforma/navegador.h"
#include "qt/enlace.h"
#include "qt/franja.h"
#include "qt/resguardo.h"
#include "qt/ventanas_ui.h"
#include "qt/vistas_dibujo.h"

class QMainWindow;
class QMdiArea;
class QMdiSubWindow;

namespace calvento {

/// The windows of the program on the desktop: the main window with its area for documents, the working windows in it,
/// the About box above it. The widgets of a window are made when it is first shown and go when it is unloaded.
class SistemaQt : public QObject, public SistemaVentanas {
 public:
  explicit SistemaQt(Dialogos& dialogos) : dialogos_(dialogos) {}
  ~SistemaQt() override;

  /// Who is asked to unload a window that the user closes.
  void responder(Navegador& navegador) { navegador_ = &navegador; }
  /// Keeps at once what the user has typed and no copy has yet.
  void guardarCopias() { resguardo_.guardarTodo(); }
  /// Takes all widgets away; to be called before the windows die.
  void cerrarTodo();

  /// F1 was pressed in that window.
  std::function<void(std::string_view ventana)> alPedirAyuda;

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
  /// The result windows that show an older calculation say so.
  void calculado(const Calculo& ultimo) override;
  /// Runs the action when the event that is running has ended, not in the loop of a box that it opens.
  void despues(std::function<void()> accion) override;

  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  struct Abierta {
    Ventana* ventana = nullptr;
    QPointer<QMainWindow> vista;
    QPointer<QWidget> marco;
    QPointer<Enlace> enlace;
    Calculo mostrado = {};              ///< of a result window: whose figures it shows
    QPointer<Franja> franja = nullptr;  ///< stands above it when they are not the last ones
    QRect sinFranja = {};               ///< the frame's place before the strip made it grow, and with it
    QRect conFranja = {};
  };
  Abierta* buscar(const Ventana& ventana);
  Abierta& crear(Ventana& ventana);
  void unirArchivo(VentanaEstructura& datos, QMainWindow& vista, Enlace& enlace);
  void colocarPrincipal(QMainWindow& vista);
  QWidget* colocarHija(QMainWindow& vista, const std::string& nombre);
  void colocarSuelta(QMainWindow& vista);
  void guardarLugarDe(const Abierta& abierta) const;
  void dejar(const Abierta& abierta);
  void unirTeclas(const Abierta& abierta);
  void pedirAyuda(const QWidget& marco);
  void traerAlFrente(QWidget* marco);
  void traerDespues(QWidget* marco);
  QMdiSubWindow* anterior(const QWidget* marco) const;
  void quitar(QWidget& marco);
  void avisarCifras(Abierta& abierta);
  void ponerFranja(Abierta& abierta, QMdiSubWindow& marco, const QString& texto);
  void actualizar(Ventana& ventana);
  void alCerrar(QObject* marco);
  void alPintarPrincipal();

  Dialogos& dialogos_;
  Navegador* navegador_ = nullptr;
  QPointer<QMainWindow> principal_;
  QPointer<QMdiArea> area_;
  bool pintada_ = false;        ///< the main window has been seen
  QIcon icono_;                 ///< its icon, painted in many sizes, once it has
  QPointer<QWidget> alFrente_;  ///< the frame that was presented last
  Calculo ultimo_;
  std::vector<Ventana*> enEspera_;  ///< what is to stand above it, shown after it
  std::map<std::string, Abierta, std::less<>> abiertas_;
  Resguardo resguardo_;
  VistasDibujo vistasDibujo_;
};

}  // namespace calvento
