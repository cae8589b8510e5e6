#include "qt/menu_recuperar.h"

#include <utility>

#include <QMenu>

#include "qt/cadena.h"
#include "qt/resguardo.h"

namespace calvento {

namespace {

QString rotulo(const Copia& c) {
  const auto valor = [](const std::string& escrito) { return escrito.empty() ? QStringLiteral("–") : aQt(escrito); };
  QString texto = (c.nombre.empty() ? QStringLiteral("Sin nombre") : aQt(c.nombre)) + QStringLiteral(", ") +
                  horaDicha(c.hora) + QStringLiteral(", Q = ") + valor(c.caudal) + QStringLiteral(" m³/s, elev. ") +
                  valor(c.elevacion) + QStringLiteral(" m");
  return texto.replace(u'&', QLatin1String("&&"));
}

}  // namespace

void anadirRecuperar(QMenu& archivo, const VentanaEstructura& ventana, const Resguardo& resguardo,
                     std::function<void(const std::string& id)> recuperar) {
  QMenu* menu = archivo.addMenu(QStringLiteral("&Recuperar"));
  QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, &ventana, &resguardo, recuperar = std::move(recuperar)] {
    menu->clear();
    for (const Copia& c : resguardo.copias(ventana))
      menu->addAction(rotulo(c), menu, [recuperar, id = c.id] { recuperar(id); });
    if (menu->isEmpty()) menu->addAction(QStringLiteral("(nada sin guardar)"))->setEnabled(false);
  });
}

}  // namespace calvento
