#include "plataforma/ventana.h"

#include <algorithm>

namespace calvento {

Control* Ventana::buscar(std::string_view nombre) const {
  const auto it = std::find_if(controles_.begin(), controles_.end(), [&](Control* c) { return c->nombre() == nombre; });
  return it == controles_.end() ? nullptr : *it;
}

}  // namespace calvento
