#include "qt/franja.h"

#include <utility>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace calvento {

Franja::Franja(QWidget& marco, std::function<void()> actualizar) : QFrame(&marco), rotulo_(new QLabel(this)) {
  setObjectName(QStringLiteral("franja"));
  setAutoFillBackground(true);
  // the colours of a tooltip: a notice, on a light desktop as on a dark one
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  rotulo_->setTextFormat(Qt::PlainText);
  rotulo_->setWordWrap(true);
  rotulo_->setForegroundRole(QPalette::ToolTipText);
  auto* boton = new QPushButton(QStringLiteral("Actualizar"), this);
  boton->setToolTip(QStringLiteral("Abre la ventana con el último cálculo (F5)"));
  boton->setShortcut(Qt::Key_F5);
  connect(boton, &QPushButton::clicked, this, std::move(actualizar));
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(8, 4, 8, 4);
  fila->addWidget(rotulo_, 1);
  fila->addWidget(boton);
}

void Franja::decir(const QString& texto) { rotulo_->setText(texto); }

}  // namespace calvento
