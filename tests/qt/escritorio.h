#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QTest>

#include "apoyo/dialogos_guion.h"
#include "qt/ajustes.h"
#include "qt/programa.h"

namespace calvento {

/// The whole program, its main window on the screen and active.
class EnElEscritorio : public testing::Test {
 protected:
  void SetUp() override {
    ajustes().clear();  // no place of an earlier test
    programa.aplicacion.arrancar();
    ASSERT_TRUE(QTest::qWaitFor([this] { return vista("frmAbout") != nullptr; }));  // above the painted main window
  }
  QMainWindow* vista(const char* nombre) { return programa.sistema.vista(nombre); }
  QLineEdit* campo(const char* ventana, const char* nombre) {
    return vista(ventana)->findChild<QLineEdit*>(QLatin1String(nombre));
  }
  void elegir(const char* ventana, const char* accion) {
    vista(ventana)->findChild<QAction*>(QLatin1String(accion))->trigger();
  }
  void cerrarConLaX(const char* ventana) {
    programa.sistema.marco(ventana)->close();
    QTest::qWait(0);
  }
  void quitarAcercaDe() { programa.aplicacion.descargar(*programa.aplicacion.cargada("frmAbout")); }
  void abrirEjemplo(const std::string& archivo) {
    ASSERT_TRUE(programa.aplicacion.abrirProyecto(RAIZ_PROYECTO "/ejemplos/" + archivo));
    QTest::qWait(5);
  }
  /// The boxes of the script stand outside: they outlive the program.
  DialogosGuion dialogos;
  Programa programa{dialogos};
};

}  // namespace calvento
