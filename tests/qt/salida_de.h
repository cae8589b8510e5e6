#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace calvento {

/// What another program writes to its standard output; empty where it is not installed.
inline QString salidaDe(const QString& programa, const QStringList& argumentos) {
  QProcess p;
  p.start(programa, argumentos);
  p.waitForFinished(60000);
  return QString::fromUtf8(p.readAllStandardOutput());
}

}  // namespace calvento
