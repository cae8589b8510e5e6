#include "qt/recientes.h"

#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QMenu>

#include "estructura/ventana_estructura.h"
#include "qt/ajustes.h"
#include "qt/cadena.h"

namespace calvento {

namespace {

constexpr int cuantos = 8;

QString claveDe(const VentanaEstructura& ventana) { return QStringLiteral("recientes/") + aQt(ventana.nombre()); }

QString rotulo(int numero, const QString& ruta) {
  const QFileInfo archivo(ruta);
  QString texto = archivo.fileName() + QStringLiteral("  (") + QDir::toNativeSeparators(archivo.path()) + u')';
  return u'&' + QString::number(numero) + u' ' + texto.replace(u'&', QLatin1String("&&"));
}

}  // namespace

void anotarReciente(const VentanaEstructura& ventana) {
  QSettings a = ajustes();
  const QStringList antes = a.value(claveDe(ventana)).toStringList();
  QStringList rutas = antes;
  const QString ruta = aQt(ventana.archivo());
  rutas.removeAll(ruta);
  rutas.prepend(ruta);
  rutas = rutas.mid(0, cuantos);
  if (rutas != antes) a.setValue(claveDe(ventana), rutas);
}

void anadirRecientes(QMenu& archivo, const VentanaEstructura& ventana, std::function<void(const QString& ruta)> abrir) {
  QMenu* menu = archivo.addMenu(QStringLiteral("Re&cientes"));
  QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, clave = claveDe(ventana), abrir = std::move(abrir)] {
    menu->clear();
    int numero = 0;
    for (const QString& ruta : ajustes().value(clave).toStringList())
      menu->addAction(rotulo(++numero, ruta), menu, [abrir, ruta] { abrir(ruta); })
          ->setEnabled(QFileInfo::exists(ruta));
    if (menu->isEmpty()) menu->addAction(QStringLiteral("(ninguno)"))->setEnabled(false);
  });
}

}  // namespace calvento
