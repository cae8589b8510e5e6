#pragma once

#include <functional>

#include <QString>

class QMenu;

namespace calvento {

struct FormatoProyecto;

/// The full path of an installed example, also of one that lies with the sources from which the running program was
/// built; empty where there is none of that name.
QString rutaEjemplo(const QString& nombre);

/// Adds the menu of the examples of that structure. It looks for them when it is opened for the first time.
void anadirEjemplos(QMenu& archivo, const FormatoProyecto& formato, std::function<void(const QString& ruta)> abrir);

}  // namespace calvento
