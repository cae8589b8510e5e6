#pragma once

#include <QString>

class QLabel;

namespace calvento {

/// Lets a label that holds a result tell screen readers what it is, by its accessible name, and what it is worth, by
/// its text with the unit; a plain label has its text for its name, or hides it behind the name it was given.
void presentarResultado(QLabel& etiqueta, const QString& nombre, const QString& unidad);
/// To be called when the text of such a label may have changed; nothing for other labels.
void contarResultado(QLabel& etiqueta);

}  // namespace calvento
