#include "qt/teclado.h"

#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QProxyStyle>
#include <QShortcut>
#include <QStyleOption>

namespace calvento {

namespace {

/// Fusion marks an entry only once its menu is open: the keys would go to a bar that shows nothing.
class BarraALaVista : public QProxyStyle {
 public:
  void drawControl(ControlElement que, const QStyleOption* opcion, QPainter* pintor,
                   const QWidget* widget) const override {
    const auto* entrada = qstyleoption_cast<const QStyleOptionMenuItem*>(opcion);
    if (que != CE_MenuBarItem || entrada == nullptr || widget == nullptr || !widget->hasFocus() ||
        !(entrada->state & State_Selected))
      return QProxyStyle::drawControl(que, opcion, pintor, widget);
    QStyleOptionMenuItem marcada = *entrada;
    marcada.state |= State_Sunken;
    QProxyStyle::drawControl(que, &marcada, pintor, widget);
  }
};

void hacerVisible(QMenuBar& barra) {
  if (barra.testAttribute(Qt::WA_SetStyle) || barra.style()->name() != QLatin1String("fusion")) return;
  auto* estilo = new BarraALaVista;
  estilo->setParent(&barra);
  barra.setStyle(estilo);
}

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
  hacerVisible(*barra);
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
