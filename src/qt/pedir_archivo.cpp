#include "qt/pedir_archivo.h"

#include <QFileDialog>
#include <QFileIconProvider>
#include <QHeaderView>
#include <QTreeView>

namespace calvento {

namespace {

/// The kinds of the files in the dialog's list, which Qt tells in English.
class Clases : public QFileIconProvider {
 public:
  QString type(const QFileInfo& archivo) const override {
    return archivo.isDir() ? QStringLiteral("Carpeta") : QStringLiteral("Archivo");
  }
};

}  // namespace

QString elegirArchivo(QFileDialog& dialogo, const QString& sugerido) {
  Clases clases;
  dialogo.setIconProvider(&clases);
  dialogo.resize(dialogo.size().expandedTo(QSize(760, 440)));
  for (QTreeView* lista : dialogo.findChildren<QTreeView*>())  // no column is cut
    lista->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  dialogo.setLabelText(QFileDialog::Reject, QStringLiteral("Cancelar"));
  dialogo.setLabelText(QFileDialog::Accept, dialogo.acceptMode() == QFileDialog::AcceptSave ? QStringLiteral("Guardar")
                                                                                            : QStringLiteral("Abrir"));
  if (!sugerido.isEmpty()) dialogo.selectFile(sugerido);
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return {};
  return dialogo.selectedFiles().constFirst();
}

QString pedirArchivo(QWidget& dueno, const QString& titulo, const QStringList& filtros, const QString& sugerido,
                     QString* elegido) {
  QFileDialog dialogo(&dueno, titulo);
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setNameFilters(filtros);
  const auto extension = [](const QString& filtro) {
    const qsizetype punto = filtro.lastIndexOf(u'.') + 1;
    return filtro.mid(punto, filtro.lastIndexOf(u')') - punto);
  };
  if (elegido != nullptr) dialogo.selectNameFilter(*elegido);
  dialogo.setDefaultSuffix(extension(dialogo.selectedNameFilter()));
  QObject::connect(&dialogo, &QFileDialog::filterSelected, &dialogo,
                   [&](const QString& f) { dialogo.setDefaultSuffix(extension(f)); });
  const QString archivo = elegirArchivo(dialogo, sugerido);
  if (elegido != nullptr) *elegido = dialogo.selectedNameFilter();
  return archivo;
}

}  // namespace calvento
