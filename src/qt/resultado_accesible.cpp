#include "qt/resultado_accesible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>
#include <QVariant>

namespace calvento {

namespace {

constexpr const char* propiedadUnidad = "unidadResultado";
constexpr const char* propiedadContado = "resultadoContado";

QString valorDe(const QLabel& etiqueta) {
  const QString texto = etiqueta.text(), unidad = etiqueta.property(propiedadUnidad).toString();
  return texto.isEmpty() || unidad.isEmpty() ? texto : texto + u' ' + unidad;
}

/// A read-only text: the one role in which all screen readers speak both name and content.
class ResultadoAccesible : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit ResultadoAccesible(QLabel* etiqueta)
      : QAccessibleWidget(etiqueta, QAccessible::EditableText), etiqueta_(etiqueta) {}

  void* interface_cast(QAccessible::InterfaceType tipo) override {
    if (tipo == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(tipo);
  }
  QString text(QAccessible::Text cual) const override {
    return cual == QAccessible::Value ? valor() : QAccessibleWidget::text(cual);
  }
  QAccessible::State state() const override {
    QAccessible::State s = QAccessibleWidget::state();
    s.readOnly = true;
    return s;
  }

  // QAccessibleTextInterface: one line without a caret
  void selection(int, int* inicio, int* fin) const override { *inicio = *fin = 0; }
  int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  QString text(int inicio, int fin) const override { return valor().mid(inicio, fin - inicio); }
  int characterCount() const override { return static_cast<int>(valor().size()); }
  QRect characterRect(int) const override { return rect(); }
  int offsetAtPoint(const QPoint&) const override { return 0; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int, int* inicio, int* fin) const override {
    *inicio = 0;
    *fin = characterCount();
    return {};
  }

 private:
  QString valor() const { return valorDe(*etiqueta_); }
  QLabel* etiqueta_;
};

QAccessibleInterface* fabrica(const QString&, QObject* objeto) {
  auto* etiqueta = qobject_cast<QLabel*>(objeto);
  if (etiqueta == nullptr || !etiqueta->property(propiedadUnidad).isValid()) return nullptr;
  return new ResultadoAccesible(etiqueta);
}

}  // namespace

void presentarResultado(QLabel& etiqueta, const QString& nombre, const QString& unidad) {
  static const bool instalada = (QAccessible::installFactory(fabrica), true);
  Q_UNUSED(instalada)
  etiqueta.setProperty(propiedadUnidad, unidad);
  etiqueta.setAccessibleName(nombre);
}

void contarResultado(QLabel& etiqueta) {
  if (!etiqueta.property(propiedadUnidad).isValid()) return;
  const QString antes = etiqueta.property(propiedadContado).toString(), ahora = valorDe(etiqueta);
  if (antes == ahora) return;
  etiqueta.setProperty(propiedadContado, ahora);
  QAccessibleTextUpdateEvent cambio(&etiqueta, 0, antes, ahora);
  QAccessible::updateAccessibility(&cambio);
}

}  // namespace calvento
