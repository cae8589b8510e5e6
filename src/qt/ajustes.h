#pragma once

#include <QSettings>
#include <QStandardPaths>

namespace calvento {

/// The folder that whoever carries the program along has named for what it keeps; empty where there is none.
inline QString carpetaPropia() { return qEnvironmentVariable("CALVENTO_DATOS"); }

/// The folder for what the program keeps of the user's work.
inline QString carpetaDatos() {
  const QString propia = carpetaPropia();
  return propia.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) : propia;
}

/// What the program remembers for the user between its runs.
inline QSettings ajustes() {
  const QString propia = carpetaPropia();
  if (propia.isEmpty()) return QSettings(QStringLiteral("Calvento"), QStringLiteral("Calvento"));
  return QSettings(propia + QStringLiteral("/ajustes.ini"), QSettings::IniFormat);
}

}  // namespace calvento
