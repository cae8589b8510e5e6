// The least program that the desktop program can be measured against: a main window with an empty area for documents.
#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>

int main(int argc, char** argv) {
  QApplication aplicacion(argc, argv);
  QMainWindow ventana;
  ventana.setCentralWidget(new QMdiArea);
  ventana.resize(1280, 720);
  ventana.show();
  return QApplication::exec();
}
