#include "qt/enlace.h"

#include <algorithm>
#include <utility>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTextEdit>
#include <QToolBar>

#include "plataforma/ventana_datos.h"
#include "qt/cadena.h"
#include "qt/vista_estudio.h"
#include "qt/vista_lienzo.h"
#include "qt/vista_manual.h"
#include "qt/vista_memoria.h"

namespace calvento {

namespace {

std::string mensajeDe(const std::string& ventana, const std::vector<std::string>& controles,
                      const std::vector<std::string>& widgets) {
  std::string texto = ventana + ":";
  const auto lista = [&](const char* titulo, const std::vector<std::string>& nombres) {
    if (nombres.empty()) return;
    texto += std::string("\n") + titulo;
    for (const std::string& n : nombres) texto += " " + n;
  };
  lista("controles sin widget:", controles);
  lista("widgets sin control:", widgets);
  return texto;
}

bool esInteractivo(const QWidget* w) {
  return qobject_cast<const QLineEdit*>(w) || qobject_cast<const QPlainTextEdit*>(w) ||
         qobject_cast<const QTextEdit*>(w) || qobject_cast<const QAbstractButton*>(w) ||
         qobject_cast<const QComboBox*>(w) || qobject_cast<const QAbstractSpinBox*>(w) ||
         qobject_cast<const QAbstractSlider*>(w) || qobject_cast<const QAbstractItemView*>(w) ||
         dynamic_cast<const VistaLienzo*>(w) != nullptr;
}

/// A letter pressed with Alt, which asks for a menu: Qt would type it over the number that the field has selected.
bool pideMenu(const QObject* objeto, const QKeyEvent& tecla) {
#ifdef Q_OS_MACOS
  return false;  // there the key next to it types characters
#else
  const auto conQue = tecla.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  return conQue == Qt::AltModifier && !tecla.text().isEmpty() && qobject_cast<const QLineEdit*>(objeto) != nullptr;
#endif
}

/// Widgets that bring working parts of their own, which are no controls of the window.
bool tienePartesPropias(const QWidget* w) {
  return qobject_cast<const QToolBar*>(w) || qobject_cast<const QTabBar*>(w) ||
         qobject_cast<const QAbstractScrollArea*>(w) || qobject_cast<const QComboBox*>(w) ||
         qobject_cast<const QLineEdit*>(w) || qobject_cast<const QAbstractSpinBox*>(w) ||
         qobject_cast<const QMenu*>(w) || qobject_cast<const QMenuBar*>(w) || qobject_cast<const QStatusBar*>(w) ||
         dynamic_cast<const VistaMemoria*>(w) != nullptr || dynamic_cast<const VistaManual*>(w) != nullptr ||
         dynamic_cast<const VistaEstudio*>(w) != nullptr;
}

/// In a data window with the place of the mark of unsaved changes. A caption that has such a place itself is shown with
/// its letters.
void ponerTitulo(QMainWindow& vista, const Ventana& ventana) {
  const QString marca = QStringLiteral("[*]");
  QString titulo = aQt(ventana.Caption.valor()).replace(marca, marca + marca);
  vista.setWindowTitle(dynamic_cast<const VentanaDatos*>(&ventana) != nullptr ? titulo + marca : titulo);
}

}  // namespace

FalloEnlace::FalloEnlace(const std::string& ventana, std::vector<std::string> controlesSolos,
                         std::vector<std::string> widgetsSolos)
    : std::runtime_error(mensajeDe(ventana, controlesSolos, widgetsSolos)),
      controlesSolos_(std::move(controlesSolos)),
      widgetsSolos_(std::move(widgetsSolos)) {}

void protegido(const std::function<void(const std::string&)>& alFallar, const std::function<void()>& accion) {
  try {
    accion();
  } catch (const std::exception& fallo) {
    alFallar(fallo.what());
  } catch (...) {
    alFallar("Fallo inesperado");
  }
}

Enlace::Enlace(Ventana& ventana, QMainWindow& vista, AlFallar alFallar)
    : ventana_(&ventana), vista_(vista), alFallar_(std::move(alFallar)) {
  std::vector<std::string> solos;
  for (Control* control : ventana.controles()) {
    Refresco refresco = unir(*control);
    if (!refresco) {
      solos.push_back(control->nombre());
      continue;
    }
    refrescos_.push_back(refresco);
    control->alCambiar = [this, vivo = std::weak_ptr<bool>(vivo_), refresco] {
      if (vivo.expired()) return;
      refresco();
      disparar(alTocar);
    };
  }
  std::vector<std::string> widgets = widgetsSinControl();
  if (!solos.empty() || !widgets.empty()) {
    for (Control* control : ventana.controles()) control->alCambiar = nullptr;
    throw FalloEnlace(ventana.nombre(), std::move(solos), std::move(widgets));
  }
  for (const Refresco& refresco : refrescos_) refresco();

  ventana.alCambiar = [this, vivo = std::weak_ptr<bool>(vivo_)] {
    if (!vivo.expired()) ponerTitulo(vista_, *ventana_);
  };
  disparar(ventana.alCambiar);
  ventana.alPedirCorreccion = [this, vivo = std::weak_ptr<bool>(vivo_)] {
    if (!vivo.expired()) enfocarMarcado();
  };
  if (CommandButton* boton = ventana.botonPredeterminado())
    if (auto* pulsador = vista.findChild<QPushButton*>(aQt(boton->nombre()))) pulsador->setDefault(true);
  vista_.installEventFilter(this);
}

void Enlace::soltar() {
  if (ventana_ == nullptr) return;
  for (Control* control : ventana_->controles()) control->alCambiar = nullptr;
  ventana_->alCambiar = nullptr;
  ventana_->alPedirCorreccion = nullptr;
  ventana_ = nullptr;
  vivo_.reset();
}

void Enlace::atender(const std::function<void()>& accion) {
  if (ventana_ == nullptr || !accion) return;
  protegido(alFallar_, accion);
  if (ventana_ != nullptr) disparar(alTocar);
}

std::vector<std::string> Enlace::widgetsSinControl() const {
  std::vector<std::string> solos;
  const auto nombre = [](const QObject* o) {
    return o->objectName().isEmpty() ? std::string("(") + o->metaObject()->className() + " sin nombre)"
                                     : deQt(o->objectName());
  };
  for (const QWidget* w : vista_.findChildren<QWidget*>()) {
    if (!esInteractivo(w) || controlDe_.contains(const_cast<QWidget*>(w))) continue;
    bool parteDeOtro = qobject_cast<const QMdiArea*>(w) != nullptr;
    for (const QWidget* padre = w->parentWidget(); padre != nullptr && padre != &vista_; padre = padre->parentWidget())
      parteDeOtro = parteDeOtro || tienePartesPropias(padre);
    if (!parteDeOtro) solos.push_back(nombre(w));
  }
  for (const QAction* a : vista_.findChildren<QAction*>()) {
    if (a->isSeparator() || a->menu() != nullptr || controlDe_.contains(const_cast<QAction*>(a))) continue;
    // only what the design put there: widgets have actions of their own inside
    const QObject* padre = a->parent();
    if (padre == &vista_ && !a->objectName().isEmpty()) solos.push_back(nombre(a));
  }
  return solos;
}

bool Enlace::eventFilter(QObject* objeto, QEvent* evento) {
  if (ventana_ == nullptr) return false;
  if (evento->type() == QEvent::KeyPress) return alPulsarTecla(objeto, evento);
  if (objeto == &vista_ && evento->type() == QEvent::ApplicationPaletteChange)
    for (const Refresco& refresco : refrescos_) refresco();

  Control* control = controlDe_.value(objeto);
  if (control == nullptr) return false;
  if (evento->type() == QEvent::FocusIn) alEnfocar(*control, objeto, evento);
  if (evento->type() == QEvent::MouseMove && control->MouseMove) atender(control->MouseMove);
  if (evento->type() == QEvent::MouseButtonRelease)
    if (auto* linea = qobject_cast<QLineEdit*>(objeto)) alSoltarRaton(*linea);
  return false;
}

/// The return key in a field, and where nobody wants it, of the default button.
bool Enlace::alPulsarTecla(QObject* objeto, QEvent* evento) {
  auto* tecla = static_cast<QKeyEvent*>(evento);
  for (const bool rehacer : {false, true})
    if (alDeshacer && tecla->matches(rehacer ? QKeySequence::Redo : QKeySequence::Undo) && alDeshacer(rehacer))
      return true;
  if (pideMenu(objeto, *tecla)) {
    evento->ignore();
    return true;
  }
  if (tecla->key() != Qt::Key_Return && tecla->key() != Qt::Key_Enter) return false;
  if (auto* campo = dynamic_cast<TextBox*>(controlDe_.value(objeto)); campo != nullptr && campo->KeyReturn) {
    atender(campo->KeyReturn);
    return true;
  }
  CommandButton* boton = objeto == &vista_ ? ventana_->botonPredeterminado() : nullptr;
  if (boton == nullptr || !boton->Enabled || !boton->Visible) return false;
  atender(boton->Click);
  return true;
}

void Enlace::alEnfocar(Control& control, QObject* objeto, QEvent* evento) {
  const Qt::FocusReason razon = static_cast<QFocusEvent*>(evento)->reason();
  // coming back from a menu, a box or another program is no new focus
  const bool vuelve =
      razon == Qt::PopupFocusReason || razon == Qt::MenuBarFocusReason || razon == Qt::ActiveWindowFocusReason;
  if (vuelve && ultimoEnfocado_ == objeto) return;
  ultimoEnfocado_ = objeto;
  atender(control.GotFocus);
  enfocadoPorRaton_ = nullptr;
  const auto* linea = qobject_cast<QLineEdit*>(objeto);
  if (razon != Qt::MouseFocusReason || linea == nullptr) return;
  enfocadoPorRaton_ = objeto;
  inicioElegido_ = linea->selectionStart();
  largoElegido_ = linea->selectionLength();
}

/// The first marked field in the order of the Tab key, which is the order on the sheet.
void Enlace::enfocarMarcado() {
  for (QWidget* w = vista_.nextInFocusChain(); w != nullptr && w != &vista_; w = w->nextInFocusChain()) {
    const auto* campo = dynamic_cast<TextBox*>(controlDe_.value(w));
    if (campo == nullptr || !campo->Enabled || campo->reparo().empty()) continue;
    for (QWidget* pagina = w; pagina != &vista_; pagina = pagina->parentWidget())
      if (auto* pila = qobject_cast<QStackedWidget*>(pagina->parentWidget())) pila->setCurrentWidget(pagina);
    w->setFocus(Qt::OtherFocusReason);
    return;
  }
}

void Enlace::alSoltarRaton(QLineEdit& linea) {
  if (enfocadoPorRaton_ == &linea && !linea.hasSelectedText() && largoElegido_ > 0)
    linea.setSelection(inicioElegido_, largoElegido_);
  enfocadoPorRaton_ = nullptr;
}

}  // namespace calvento
