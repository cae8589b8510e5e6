#include "qt/teclado.h"

#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>

namespace calvento {

namespace {

QMenuBar* barraEnFoco(QMainWindow& principal) {
  for (QWidget* w = QApplication::focusWidget(); w != nullptr && w != &principal; w = w->parentWidget())
    if (const auto* hija = qobject_cast<QMainWindow*>(w))
      if (auto* barra = qobject_cast<QMenuBar*>(hija->menuWidget()); barra != nullptr && !barra->isNativeMenuBar())
        return barra;
  return qobject_cast<QMenuBar*>(principal.menuWidget());
}

}  // namespace

bool esAltSola(const QEvent& evento) {
  if (evento.type() != QEvent::ShortcutOverride) return false;
  const auto& tecla = static_cast<const QKeyEvent&>(evento);
  return tecla.key() == Qt::Key_Alt && tecla.modifiers() == Qt::AltModifier;
}

void irAlMenu(QMainWindow& principal, QEvent* tecla) {
  QMenuBar* barra = barraEnFoco(principal);
  if (barra == nullptr) return;
  // the bar has no other door to its keys than Alt itself
  QObject& oyente = *barra;
  if (tecla != nullptr) {
    oyente.eventFilter(&principal, tecla);
    return;
  }
  QKeyEvent baja(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier);  // tells of the state before it
  QKeyEvent sube(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
  oyente.eventFilter(&principal, &baja);
  oyente.eventFilter(&principal, &sube);
}

void unirTecla(QWidget& marco, const QKeySequence& tecla, std::function<void()> accion) {
  auto* atajo = new QShortcut(tecla, &marco);
  atajo->setContext(Qt::WidgetWithChildrenShortcut);
  atajo->setAutoRepeat(false);
  QObject::connect(atajo, &QShortcut::activated, &marco, std::move(accion));
}

}  // namespace calvento
