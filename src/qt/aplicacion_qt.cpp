#include "qt/aplicacion_qt.h"

#include <QFileOpenEvent>
#include <QIcon>
#include <QLocale>

#include "comun/version.h"
#include "qt/cadena.h"
#include "qt/enlace.h"
#include "qt/letras.h"
#include "qt/textos_es.h"

namespace calvento {

AplicacionQt::AplicacionQt(int& argc, char** argv) : QApplication(argc, argv) {
  cargarLetras();
  QLocale::setDefault(QLocale::c());
  setApplicationName(QStringLiteral("Calvento"));
  setApplicationVersion(aQt(version()));
  setQuitOnLastWindowClosed(false);  // the main window tells when the program ends
  instalarTextosEspanoles(*this);
}

bool AplicacionQt::notify(QObject* objeto, QEvent* evento) {
  bool atendido = true;
  protegido(
      [this](const std::string& texto) {
        if (alFallar) alFallar(texto);
      },
      [&] { atendido = QApplication::notify(objeto, evento); });
  return atendido;
}

bool AplicacionQt::event(QEvent* evento) {
  if (evento->type() == QEvent::FileOpen && alAbrirArchivo) {
    alAbrirArchivo(deQt(static_cast<QFileOpenEvent*>(evento)->file()));
    return true;
  }
  return QApplication::event(evento);
}

}  // namespace calvento
