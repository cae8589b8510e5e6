// The least program that the desktop program can be measured against: a main window with an empty area for documents
// and one menu, so that it loads a font too.
#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>

int main(int argc, char** argv) {
  QApplication aplicacion(argc, argv);
  QMainWindow ventana;
  ventana.setCentralWidget(new QMdiArea);
  ventana.menuBar()->addMenu("Archivo")->addAction("Salir");
  ventana.resize(1280, 720);
  ventana.show();
  return QApplication::exec();
}
