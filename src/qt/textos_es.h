#pragma once

class QCoreApplication;

namespace calvento {

/// Makes Qt's own texts (context menus of fields, frames of child windows, file dialogs) Spanish whatever the machine's
/// language: Qt's translation where it is installed, and the commonest texts where it is not.
void instalarTextosEspanoles(QCoreApplication& aplicacion);

}  // namespace calvento
