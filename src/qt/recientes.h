#pragma once

#include <functional>

#include <QString>

class QMenu;

namespace calvento {

class VentanaEstructura;

/// The project of the window becomes the first of its recent ones.
void anotarReciente(const VentanaEstructura& ventana);

/// Adds the menu of the last projects of that structure; one whose file is gone stays gray.
void anadirRecientes(QMenu& archivo, const VentanaEstructura& ventana, std::function<void(const QString& ruta)> abrir);

}  // namespace calvento
