#include "qt/barra.h"

#include <utility>

#include <QAction>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QToolBar>

namespace calvento {

QAction* botonDeBarra(QToolBar& barra, QWidget& dueno, const QIcon& icono, const QString& texto,
                      const QKeySequence& tecla, std::function<void()> accion) {
  QAction* a = barra.addAction(icono, texto, &dueno, std::move(accion));
  a->setShortcut(tecla);
  a->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  a->setToolTip(texto + QStringLiteral(" (") + tecla.toString(QKeySequence::NativeText) + u')');
  dueno.addAction(a);
  return a;
}

BarraBusqueda::BarraBusqueda(QToolBar& barra, QWidget& dueno, const QString& nombreAccesible, Buscar buscar)
    : QObject(&dueno), buscar_(std::move(buscar)), campo_(new QLineEdit(&barra)), aviso_(new QLabel(&barra)) {
  campo_->setPlaceholderText(QStringLiteral("Buscar"));
  campo_->setAccessibleName(nombreAccesible);
  campo_->setClearButtonEnabled(true);
  campo_->setMaximumWidth(220);
  barra.addWidget(campo_);
  botonDeBarra(barra, dueno, QIcon(QStringLiteral(":/iconos/siguiente.pic")), QStringLiteral("Siguiente"),
               QKeySequence::FindNext, [this] { correr(false); })
      ->setIconText(QString());
  botonDeBarra(barra, dueno, QIcon(QStringLiteral(":/iconos/anterior.pic")), QStringLiteral("Anterior"),
               QKeySequence::FindPrevious, [this] { correr(true); })
      ->setIconText(QString());
  barra.addWidget(aviso_);
  connect(campo_, &QLineEdit::returnPressed, this, [this] { correr(false); });
  connect(campo_, &QLineEdit::textChanged, aviso_, &QLabel::clear);
  auto* atajo = new QShortcut(QKeySequence::Find, &dueno);
  atajo->setContext(Qt::WidgetWithChildrenShortcut);
  connect(atajo, &QShortcut::activated, campo_, [this] {
    campo_->setFocus(Qt::ShortcutFocusReason);
    campo_->selectAll();
  });
}

void BarraBusqueda::correr(bool haciaAtras) {
  const bool esta = buscar_(campo_->text(), haciaAtras);
  aviso_->setText(esta || campo_->text().isEmpty() ? QString() : QStringLiteral(" No está"));
}

}  // namespace calvento
