#include "qt/numero_tecleado.h"

#include "comun/numeros.h"
#include "qt/cadena.h"

namespace calvento {

QValidator::State NumeroTecleado::validate(QString& texto, int& cursor) const {
  if (pausas_ > 0) return Acceptable;
  if (!texto.contains(u',')) return Acceptable;
  const auto antes = texto.size();
  texto = aQt(conPuntoDecimal(deQt(texto)));
  cursor -= static_cast<int>(antes - texto.size());
  if (cursor < 0) cursor = 0;
  return Acceptable;
}

}  // namespace calvento
