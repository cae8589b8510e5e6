#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace calvento {

/// Asks where to save; empty where the user does not. Each filter, "PDF (*.pdf)", gives its extension to a name without
/// one.
QString pedirArchivo(QWidget& dueno, const QString& titulo, const QStringList& filtros, const QString& sugerido);

}  // namespace calvento
