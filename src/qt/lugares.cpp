#include "qt/lugares.h"

#include <algorithm>

#include <QDir>
#include <QScreen>
#include <QWidget>

#include "qt/ajustes.h"
#include "qt/cadena.h"

namespace calvento {

namespace {

const QString claveCarpeta = QStringLiteral("carpeta");

QString claveDe(const std::string& ventana, const QWidget& aqui) {
  const QSize pantalla = aqui.screen()->size();
  return QStringLiteral("lugares/%1x%2/").arg(pantalla.width()).arg(pantalla.height()) + aQt(ventana);
}

}  // namespace

std::optional<Lugar> lugarGuardado(const std::string& ventana, const QWidget& aqui) {
  const QSettings a = ajustes();
  const QString clave = claveDe(ventana, aqui);
  const QRect marco = a.value(clave).toRect();
  if (!marco.isValid()) return std::nullopt;
  return Lugar{marco, a.value(clave + QStringLiteral("_entera")).toBool()};
}

void guardarLugar(const std::string& ventana, const QWidget& aqui, const Lugar& lugar) {
  QSettings a = ajustes();
  const QString clave = claveDe(ventana, aqui);
  if (lugar.marco.isValid()) a.setValue(clave, lugar.marco);
  a.setValue(clave + QStringLiteral("_entera"), lugar.entera);
}

QRect dentroDe(const QRect& en, QRect lugar) {
  lugar.setSize(lugar.size().boundedTo(en.size()));
  lugar.moveLeft(std::clamp(lugar.left(), en.left(), en.right() - lugar.width() + 1));
  lugar.moveTop(std::clamp(lugar.top(), en.top(), en.bottom() - lugar.height() + 1));
  return lugar;
}

void volverALaCarpeta() {
  if (const QString carpeta = ajustes().value(claveCarpeta).toString(); !carpeta.isEmpty()) QDir::setCurrent(carpeta);
}

void guardarCarpeta() {
  QSettings a = ajustes();
  if (a.value(claveCarpeta).toString() != QDir::currentPath()) a.setValue(claveCarpeta, QDir::currentPath());
}

}  // namespace calvento
