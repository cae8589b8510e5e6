#pragma once

#include <QSettings>

namespace calvento {

/// What the program remembers for the user between its runs.
inline QSettings ajustes() { return QSettings(QStringLiteral("Calvento"), QStringLiteral("Calvento")); }

}  // namespace calvento
