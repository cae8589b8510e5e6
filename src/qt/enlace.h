#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <QHash>
#include <QMainWindow>
#include <QObject>
#include <QPointer>

#include "aplicacion/form_manual.h"
#include "estudio/form_estudio.h"
#include "memoria/form_memoria.h"
#include "plataforma/control.h"
#include "plataforma/lienzo.h"
#include "plataforma/rejilla.h"
#include "plataforma/ventana.h"

class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace calvento {

/// Names without a counterpart, of a window and the widgets made from its design.
class FalloEnlace : public std::runtime_error {
 public:
  FalloEnlace(const std::string& ventana, std::vector<std::string> controlesSolos,
              std::vector<std::string> widgetsSolos);
  const std::vector<std::string>& controlesSolos() const { return controlesSolos_; }
  const std::vector<std::string>& widgetsSolos() const { return widgetsSolos_; }

 private:
  std::vector<std::string> controlesSolos_;
  std::vector<std::string> widgetsSolos_;
};

/// Runs an action of the user's; what it throws is told as one short text.
void protegido(const std::function<void(const std::string&)>& alFallar, const std::function<void()>& accion);

/// Joins a window to the widgets of its design by their object names: the widgets take every property of the controls
/// and follow their changes, and what the user does reaches the controls as their events. Changes made by the program
/// raise no event of the user's.
class Enlace : public QObject {
 public:
  using AlFallar = std::function<void(const std::string&)>;
  /// Throws FalloEnlace where a control has no widget of its kind, or a widget that the user can work has no control.
  Enlace(Ventana& ventana, QMainWindow& vista, AlFallar alFallar);

  /// Ends the joint: the window may go before its widgets do. To be called before the window dies.
  void soltar();

  /// The user has worked in the window, or one of its controls has changed.
  std::function<void()> alTocar;
  /// Undo (or redo) was pressed: whether that was more than the field itself can do.
  std::function<bool(bool rehacer)> alDeshacer;

  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  using Refresco = std::function<void()>;
  /// Writes a control's properties into its widget; empty where the control found no counterpart.
  Refresco unir(Control& control);
  Refresco unirCampo(TextBox& campo);
  Refresco unirTextoLargo(TextBox& campo, QPlainTextEdit& editor);
  Refresco unirMenu(Menu& menu);
  Refresco unirBarra(Toolbar& barra);
  Refresco unirBoton(CommandButton& boton);
  Refresco unirOpcion(OptionButton& opcion);
  Refresco unirCasilla(CheckBox& casilla);
  Refresco unirLista(ComboBox& lista);
  Refresco unirFlechas(UpDown& flechas);
  Refresco unirAvance(ProgressBar& avance);
  Refresco unirEstado(StatusBar& estado);
  Refresco unirRotulo(Label& rotulo);
  Refresco unirTabla(Grid& tabla);
  Refresco unirLienzo(PictureBox& caja);
  Refresco unirMemoria(VisorMemoria& visor);
  Refresco unirManual(VisorManual& visor);
  Refresco unirEstudio(VisorEstudio& visor);
  Refresco unirGrupo(Control& grupo);

  /// The properties that all controls have, for a widget.
  Refresco comunes(Control& control, QWidget& widget);
  template <class W>
  W* widgetDe(const Control& control) const;
  std::vector<std::string> widgetsSinControl() const;
  void atender(const std::function<void()>& accion);

  bool alPulsarTecla(QObject* objeto, QEvent* evento);
  void alEnfocar(Control& control, QObject* objeto, QEvent* evento);
  void enfocarMarcado();
  void alSoltarRaton(QLineEdit& linea);

  Ventana* ventana_;
  QMainWindow& vista_;
  AlFallar alFallar_;
  std::shared_ptr<bool> vivo_ = std::make_shared<bool>(true);
  QHash<QObject*, Control*> controlDe_;
  std::vector<Refresco> refrescos_;

  const QLineEdit* escribiendo_ = nullptr;  ///< the field that takes a text of the program at this moment

  // a click that brings the focus would undo the selection that the focus made, so it is made again at its end
  QPointer<QObject> enfocadoPorRaton_;
  int inicioElegido_ = 0;
  int largoElegido_ = 0;
  QPointer<QObject> ultimoEnfocado_;
};

}  // namespace calvento
