#include "qt/numero_tecleado.h"

#include <algorithm>

#include "comun/numeros.h"
#include "qt/cadena.h"

namespace calvento {

QValidator::State NumeroTecleado::validate(QString& texto, int& cursor) const {
  if (pausas_ > 0) {
    mostrado_ = tecleado_ = texto;
    return Acceptable;
  }
  QString comoVino = texto;
  const auto iguales = std::mismatch(texto.cbegin(), texto.cend(), mostrado_.cbegin(), mostrado_.cend()).first;
  const auto cuantos = iguales - texto.cbegin();
  comoVino.replace(0, cuantos, tecleado_.left(cuantos));
  const QString leido = aQt(conPuntoDecimal(deQt(comoVino)));
  cursor = std::max(0, cursor - static_cast<int>(comoVino.size() - leido.size()));
  tecleado_ = leido.size() == comoVino.size() ? comoVino : leido;
  mostrado_ = texto = leido;
  return Acceptable;
}

}  // namespace calvento
