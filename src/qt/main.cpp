#include <QFileInfo>
#include <QTimer>

#include "modelo/proyecto.h"
#include "qt/aplicacion_qt.h"
#include "qt/cadena.h"
#include "qt/dialogos_qt.h"
#include "qt/programa.h"

int main(int argc, char** argv) {
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  calvento::AplicacionQt aplicacion(argc, argv);
  calvento::DialogosQt dialogos;
  calvento::Programa programa(dialogos);
  const auto abrir = [&](const std::string& archivo) {
    // as after a file dialog: the project is saved back into its own folder
    calvento::usarCarpetaDe(archivo);
    if (!programa.aplicacion.abrirProyecto(archivo))
      dialogos.fallo("\"" + archivo + "\" no es un proyecto de rápida, caída inclinada ni caída vertical");
  };
  aplicacion.alFallar = [&](const std::string& texto) { dialogos.fallo(texto); };
  aplicacion.alAbrirArchivo = abrir;
  // in the event loop, so that a fault at the start ends in a box as any other
  QTimer::singleShot(0, &aplicacion, [&] {
    programa.aplicacion.arrancar();
    const QStringList argumentos = QCoreApplication::arguments();
    QStringList rutas;  // all of them before the first one changes the folder
    for (const QString& argumento : argumentos.mid(1)) rutas << QFileInfo(argumento).absoluteFilePath();
    for (const QString& ruta : rutas) abrir(calvento::deQt(ruta));
  });
  return QCoreApplication::exec();
}
