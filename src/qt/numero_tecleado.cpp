#include "qt/numero_tecleado.h"

#include <QRegularExpression>

namespace calvento {

QString conPuntoDecimal(const QString& texto) {
  if (!texto.contains(u',')) return texto;
  static const QRegularExpression milesConPunto(QStringLiteral(R"(^\s*[-+]?\d{1,3}(\.\d{3})+,\d+\s*$)"));
  static const QRegularExpression milesConComa(QStringLiteral(R"(^\s*[-+]?\d{1,3}(,\d{3})+\.\d+\s*$)"));
  QString punto = texto;
  if (milesConPunto.match(texto).hasMatch())
    punto.remove(u'.');
  else if (milesConComa.match(texto).hasMatch())
    return punto.remove(u',');
  return punto.replace(u',', u'.');
}

QValidator::State NumeroTecleado::validate(QString& texto, int& cursor) const {
  if (pausas_ > 0) return Acceptable;
  const auto antes = texto.size();
  texto = conPuntoDecimal(texto);
  cursor -= static_cast<int>(antes - texto.size());
  if (cursor < 0) cursor = 0;
  return Acceptable;
}

}  // namespace calvento
