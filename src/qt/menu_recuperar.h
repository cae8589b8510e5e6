#pragma once

#include <functional>
#include <string>

class QMenu;

namespace calvento {

class Resguardo;
class VentanaEstructura;

/// Adds the menu of what the window held and no project has, with name, time, discharge and first elevation.
void anadirRecuperar(QMenu& archivo, const VentanaEstructura& ventana, const Resguardo& resguardo,
                     std::function<void(const std::string& id)> recuperar);

}  // namespace calvento
