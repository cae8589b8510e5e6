#include <cstring>
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "qt/aplicacion_qt.h"
#include "qt/letras.h"

namespace calvento {
int teclear(int argc, char** argv);  // beside the tests of the copies
}

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (argc > 1 && std::strcmp(argv[1], "--teclear") == 0) return calvento::teclear(argc, argv);
  // what the user has of his own stays out of the tests
  const QTemporaryDir casa;
  for (const char* carpeta : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
    qputenv(carpeta, casa.filePath(QLatin1String(carpeta)).toLocal8Bit());
  qputenv("CALVENTO_DATOS", casa.path().toLocal8Bit());
  testing::InitGoogleTest(&argc, argv);
  calvento::anunciarLetras();
  calvento::AplicacionQt aplicacion(argc, argv);
  aplicacion.alFallar = [](const std::string& texto) { ADD_FAILURE() << texto; };
  return RUN_ALL_TESTS();
}
