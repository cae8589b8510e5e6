#include "qt/dialogos_qt.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include "qt/cadena.h"
#include "qt/pedir_archivo.h"

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

std::optional<std::string> elegir(QFileDialog& dialogo, const OpcionesArchivo& opciones) {
  dialogo.setWindowTitle(aQt(opciones.titulo));
  dialogo.setOption(QFileDialog::HideNameFilterDetails);
  dialogo.setNameFilter(filtroQt(opciones.filtro));
  dialogo.setDefaultSuffix(aQt(opciones.extension));
  const QString elegido = elegirArchivo(dialogo, aQt(opciones.sugerido));
  return elegido.isEmpty() ? std::nullopt : std::optional(deQt(elegido));
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
  dialogo.setFileMode(QFileDialog::ExistingFile);
  return elegir(dialogo, opciones);
}

std::optional<std::string> DialogosQt::guardarArchivo(const OpcionesArchivo& opciones) {
  QFileDialog dialogo(duenoDeCajas());
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setFileMode(QFileDialog::AnyFile);
  dialogo.setOption(QFileDialog::DontConfirmOverwrite);  // the program asks by itself
  return elegir(dialogo, opciones);
}

QString filtroQt(const std::string& filtro) {
  const std::size_t barra = filtro.find('|');
  const QString descripcion = aQt(filtro.substr(0, barra));
  const QString patron = barra == std::string::npos ? QStringLiteral("*") : aQt(filtro.substr(barra + 1));
  const QString otro = patron == patron.toLower() ? patron.toUpper() : patron.toLower();
  return descripcion + QStringLiteral(" (") + patron + (otro == patron ? QString() : u' ' + otro) + u')';
}

}  // namespace calvento
