#pragma once

#include <QString>
#include <QStringList>

class QFileDialog;
class QWidget;

namespace calvento {

/// Shows the dialog in Spanish, with the suggested name where there is one; the chosen path, empty where the user
/// leaves it.
QString elegirArchivo(QFileDialog& dialogo, const QString& sugerido);

/// Asks where to save; empty where the user does not. Each filter, "PDF (*.pdf)", gives its extension to a name without
/// one. `elegido` is the one that the box shows first and, when it is gone, the one that was chosen.
QString pedirArchivo(QWidget& dueno, const QString& titulo, const QStringList& filtros, const QString& sugerido,
                     QString* elegido = nullptr);

}  // namespace calvento
