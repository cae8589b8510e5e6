#include "qt/pedir_archivo.h"

#include <QFileDialog>

namespace calvento {

QString pedirArchivo(QWidget& dueno, const QString& titulo, const QStringList& filtros, const QString& sugerido) {
  QFileDialog dialogo(&dueno, titulo);
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setNameFilters(filtros);
  const auto extension = [](const QString& filtro) {
    const qsizetype punto = filtro.lastIndexOf(u'.') + 1;
    return filtro.mid(punto, filtro.lastIndexOf(u')') - punto);
  };
  dialogo.setDefaultSuffix(extension(filtros.constFirst()));
  QObject::connect(&dialogo, &QFileDialog::filterSelected, &dialogo,
                   [&](const QString& f) { dialogo.setDefaultSuffix(extension(f)); });
  dialogo.selectFile(sugerido);
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return {};
  return dialogo.selectedFiles().constFirst();
}

}  // namespace calvento
