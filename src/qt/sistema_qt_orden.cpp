// Which window is in front and where the keys go.
#include <algorithm>

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QShortcut>
#include <QTableView>
#include <QTimer>

#include "plataforma/ventana_datos.h"
#include "qt/sistema_qt.h"
#include "qt/teclado.h"

namespace calvento {

namespace {

/// The typing starts in the first field of the tab order, or in the table of a window without fields. The chain of the
/// focus runs through all windows of the area.
void enfocarPrimero(QMainWindow& vista) {
  const auto primero = [&](auto esDeLos) -> QWidget* {
    for (QWidget* w = vista.nextInFocusChain(); w != nullptr && w != &vista; w = w->nextInFocusChain())
      if (esDeLos(w) && vista.isAncestorOf(w) && w->isEnabled() && w->isVisibleTo(&vista)) return w;
    return nullptr;
  };
  QWidget* w = primero([](QWidget* x) { return qobject_cast<QLineEdit*>(x) != nullptr; });
  if (w == nullptr) w = primero([](QWidget* x) { return qobject_cast<QTableView*>(x) != nullptr; });
  if (w != nullptr) w->setFocus(Qt::TabFocusReason);
}

}  // namespace

void SistemaQt::presentar(Ventana& ventana) {
  const VentanaUi* diseno = ventanaUi(ventana.nombre());
  if (principal_ && !pintada_ && diseno != nullptr && diseno->puesto == Acomodo::suelta) {
    enEspera_.push_back(&ventana);
    return;
  }
  Abierta* abierta = buscar(ventana);
  const bool nueva = abierta == nullptr;
  if (nueva) abierta = &crear(ventana);
  QWidget* marco = abierta->marco;
  abierta->vista->show();
  traerDespues(marco);
  if (!nueva) return;
  enfocarPrimero(*abierta->vista);
  avisarCifras(*abierta);
}

/// Forward at once, and again when the event has ended: a menu that closes gives the focus back to its own window,
/// which would come forward. Only the last one that was asked for.
void SistemaQt::traerDespues(QWidget* marco) {
  alFrente_ = marco;
  marco->isMinimized() ? marco->showNormal() : marco->show();
  traerAlFrente(marco);
  QTimer::singleShot(0, this, [this, m = QPointer<QWidget>(marco)] {
    if (m && m == alFrente_) traerAlFrente(m);
  });
}

void SistemaQt::traerAlFrente(QWidget* marco) {
  if (!marco->isVisible()) return;
  marco->raise();
  if (auto* hija = qobject_cast<QMdiSubWindow*>(marco))
    area_->setActiveSubWindow(hija);
  else
    marco->activateWindow();
}

void SistemaQt::ocultar(Ventana& ventana) {
  if (const Abierta* abierta = buscar(ventana)) quitar(*abierta->marco);
}

/// The child that was worked in before this one, of those that can be seen.
QMdiSubWindow* SistemaQt::anterior(const QWidget* marco) const {
  const QList<QMdiSubWindow*> hijas = area_->subWindowList(QMdiArea::ActivationHistoryOrder);
  const auto it = std::find_if(hijas.rbegin(), hijas.rend(), [&](const QMdiSubWindow* hija) {
    return hija != marco && !hija->isHidden() && !hija->isMinimized();
  });
  return it == hijas.rend() ? nullptr : *it;
}

/// Takes a window from the screen. The keys go where the user came from, never to what is not seen.
void SistemaQt::quitar(QWidget& marco) {
  if (alFrente_ == &marco) alFrente_ = nullptr;
  const bool deArea = area_ && qobject_cast<QMdiSubWindow*>(&marco) != nullptr;
  if (deArea && area_->currentSubWindow() == &marco) area_->setActiveSubWindow(anterior(&marco));
  marco.hide();
  if (deArea && marco.isAncestorOf(QApplication::focusWidget())) area_->setFocus();
  if (principal_ && marco.isWindow()) principal_->activateWindow();
}

/// The manual stands in the area, which a window above it leaves to it.
void SistemaQt::pedirAyuda(const QWidget& marco) {
  const auto es = [&](const auto& par) { return par.second.marco == &marco; };
  const auto it = std::find_if(abiertas_.begin(), abiertas_.end(), es);
  if (it == abiertas_.end() || !alPedirAyuda) return;
  protegido([this](const std::string& texto) { dialogos_.fallo(texto); }, [&] { alPedirAyuda(it->first); });
}

/// Esc closes what can be opened again as it was; what a window prints and copies by its buttons it does by keys.
void SistemaQt::unirTeclas(const Abierta& abierta) {
  QWidget& marco = *abierta.marco;
  if (&marco == principal_) {
    auto* menu = new QShortcut(Qt::Key_F10, &marco);
    connect(menu, &QShortcut::activated, this, [this] { irAlMenu(*principal_); });
    auto* ayuda = new QShortcut(QKeySequence::HelpContents, &marco);
    connect(ayuda, &QShortcut::activated, this, [this] {
      const QMdiSubWindow* activa = area_->currentSubWindow();
      pedirAyuda(activa != nullptr && !activa->isHidden() ? static_cast<const QWidget&>(*activa) : *principal_);
    });
    return;
  }
  if (marco.isWindow()) unirTecla(marco, QKeySequence::HelpContents, [this, &marco] { pedirAyuda(marco); });
  Ventana* ventana = abierta.ventana;
  if (dynamic_cast<VentanaDatos*>(ventana) != nullptr) return;  // its menu has the keys, and Esc takes no design away
  unirTecla(marco, Qt::Key_Escape, [&marco] {
    // a zoom box that is being drawn, a window that is being moved
    if (QApplication::mouseButtons() == Qt::NoButton && QWidget::keyboardGrabber() == nullptr) marco.close();
  });
  if (marco.isWindow() || ventana->seOculta()) return;
  // a report prints itself and a study copies its table: the same key twice would do neither
  const auto unirLibre = [&](const QKeySequence& tecla, std::function<void()> accion) {
    const auto atajos = marco.findChildren<QShortcut*>();
    const auto acciones = marco.findChildren<QAction*>();
    if (std::none_of(atajos.begin(), atajos.end(), [&](const QShortcut* s) { return s->key() == tecla; }) &&
        std::none_of(acciones.begin(), acciones.end(), [&](const QAction* a) { return a->shortcut() == tecla; }))
      unirTecla(marco, tecla, std::move(accion));
  };
  unirLibre(QKeySequence::Print, [this, ventana] { imprimir(*ventana); });
  unirLibre(QKeySequence::Copy, [this, ventana] { copiar(*ventana); });
}

}  // namespace calvento
