#include "qt/dialogos_qt.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>

#include "qt/cadena.h"

namespace calvento {

namespace {

QWidget* duenoDeCajas() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return QApplication::activeWindow();
}

void decir(QMessageBox::Icon icono, const std::string& texto) {
  QMessageBox caja(icono, QStringLiteral("Calvento"), aQt(texto), QMessageBox::NoButton, duenoDeCajas());
  caja.setTextFormat(Qt::PlainText);
  caja.setDefaultButton(caja.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole));
  caja.exec();
}

/// The kinds of the files in the dialog's list, which Qt tells in English.
class Clases : public QFileIconProvider {
 public:
  QString type(const QFileInfo& archivo) const override {
    return archivo.isDir() ? QStringLiteral("Carpeta") : QStringLiteral("Archivo");
  }
};

std::optional<std::string> pedirArchivo(QFileDialog& dialogo, const OpcionesArchivo& opciones) {
  Clases clases;
  dialogo.setIconProvider(&clases);
  dialogo.setWindowTitle(aQt(opciones.titulo));
  dialogo.resize(dialogo.size().expandedTo(QSize(760, 440)));
  for (QTreeView* lista : dialogo.findChildren<QTreeView*>())  // no column is cut
    lista->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  dialogo.setOption(QFileDialog::HideNameFilterDetails);
  dialogo.setNameFilter(filtroQt(opciones.filtro));
  dialogo.setDefaultSuffix(aQt(opciones.extension));
  dialogo.setLabelText(QFileDialog::LookIn, QStringLiteral("Buscar en:"));
  dialogo.setLabelText(QFileDialog::FileName, QStringLiteral("&Nombre de archivo:"));
  dialogo.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo:"));
  dialogo.setLabelText(QFileDialog::Reject, QStringLiteral("Cancelar"));
  if (!opciones.sugerido.empty()) dialogo.selectFile(aQt(opciones.sugerido));
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return std::nullopt;
  return deQt(dialogo.selectedFiles().constFirst());
}

}  // namespace

void DialogosQt::aviso(const std::string& texto) { decir(QMessageBox::Information, texto); }
void DialogosQt::fallo(const std::string& texto) { decir(QMessageBox::Warning, texto); }

bool DialogosQt::pregunta(const std::string& texto) {
  QMessageBox caja(QMessageBox::Warning, QStringLiteral("Calvento"), aQt(texto), QMessageBox::NoButton, duenoDeCajas());
  caja.setTextFormat(Qt::PlainText);
  QPushButton* si = caja.addButton(QStringLiteral("Sí"), QMessageBox::YesRole);
  QPushButton* no = caja.addButton(QStringLiteral("No"), QMessageBox::NoRole);
  caja.setDefaultButton(si);
  caja.setEscapeButton(no);
  caja.exec();
  return caja.clickedButton() == si;
}

std::optional<std::string> DialogosQt::abrirArchivo(const OpcionesArchivo& opciones) {
  QFileDialog dialogo(duenoDeCajas());
  dialogo.setAcceptMode(QFileDialog::AcceptOpen);
  dialogo.setFileMode(QFileDialog::ExistingFile);
  dialogo.setLabelText(QFileDialog::Accept, QStringLiteral("Abrir"));
  return pedirArchivo(dialogo, opciones);
}

std::optional<std::string> DialogosQt::guardarArchivo(const OpcionesArchivo& opciones) {
  QFileDialog dialogo(duenoDeCajas());
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setFileMode(QFileDialog::AnyFile);
  dialogo.setOption(QFileDialog::DontConfirmOverwrite);  // the program asks by itself
  dialogo.setLabelText(QFileDialog::Accept, QStringLiteral("Guardar"));
  return pedirArchivo(dialogo, opciones);
}

QString filtroQt(const std::string& filtro) {
  const std::size_t barra = filtro.find('|');
  const QString descripcion = aQt(filtro.substr(0, barra));
  const QString patron = barra == std::string::npos ? QStringLiteral("*") : aQt(filtro.substr(barra + 1));
  const QString otro = patron == patron.toLower() ? patron.toUpper() : patron.toLower();
  return descripcion + QStringLiteral(" (") + patron + (otro == patron ? QString() : u' ' + otro) + u')';
}

}  // namespace calvento
