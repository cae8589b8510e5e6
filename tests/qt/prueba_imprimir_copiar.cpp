// What every window can do: be printed on one page and be copied; and the export window on the desktop.
#include <gtest/gtest.h>
#include <set>

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMainWindow>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "apoyo/dialogos_guion.h"
#include "qt/cadena.h"
#include "qt/impresion.h"
#include "qt/programa.h"
#include "salida_de.h"

namespace calvento {
namespace {

/// The program with a calculated chute, from which result windows can be opened.
class ConDiseno : public testing::Test {
 protected:
  void SetUp() override {
    programa.aplicacion.arrancar();
    programa.aplicacion.abrirProyecto(RAIZ_PROYECTO "/ejemplos/04-tres-tramos.cvr");
    ASSERT_TRUE(carpeta.isValid());
  }
  DialogosGuion dialogos;
  Programa programa{dialogos};
  QTemporaryDir carpeta;
};

TEST_F(ConDiseno, EveryWindowIsPrintedOnOnePageAndCopiedWhole) {
  for (const char* necesario : {"pdfinfo", "pdftotext"})
    if (QStandardPaths::findExecutable(necesario).isEmpty()) GTEST_SKIP() << necesario << " is not installed";
  dialogos.tolera(DialogosGuion::Clase::fallo);  // a window of another structure may have nothing to show
  int vistas = 0;
  for (const VentanaUi& ui : ventanasUi()) {
    SCOPED_TRACE(ui.nombre);
    Ventana* ventana = programa.aplicacion.cargar(ui.nombre);
    if (ventana == nullptr) continue;
    programa.aplicacion.mostrar(ui.nombre);
    QTest::qWait(0);
    QMainWindow* vista = programa.sistema.vista(ui.nombre);
    ASSERT_NE(vista, nullptr);
    ++vistas;

    const QString archivo = carpeta.filePath("hoja.pdf");
    QPrinter pdf(QPrinter::HighResolution);
    pdf.setOutputFormat(QPrinter::PdfFormat);
    pdf.setOutputFileName(archivo);
    ASSERT_TRUE(imprimirVista(*vista, pdf));
    const QString hoja = salidaDe("pdfinfo", {archivo});
    EXPECT_TRUE(QRegularExpression("Pages: +1\n").match(hoja).hasMatch()) << deQt(hoja);
    const auto medidas = QRegularExpression(R"(Page size: +([\d.]+) x ([\d.]+))").match(hoja);
    if (ui.nombre != "frmMain") {
      const int alto = vista->height() - (vista->menuWidget() != nullptr ? vista->menuWidget()->height() : 0);
      EXPECT_EQ(medidas.captured(1).toDouble() > medidas.captured(2).toDouble(), vista->width() > alto)
          << "the page lies as the window does";
    }
    if (ui.nombre == "Form15") {
      EXPECT_TRUE(salidaDe("pdftotext", {"-layout", archivo, "-"}).contains("Relación, y2/y1:")) << "no real text";
      pdf.setOutputFileName(carpeta.filePath("no/hay/hoja.pdf"));
      EXPECT_FALSE(imprimirVista(*vista, pdf));
    }

    QGuiApplication::clipboard()->clear();
    programa.aplicacion.copiar(*ventana);
    EXPECT_TRUE(QGuiApplication::clipboard()->image().isNull()) << "copied before the menu could close";
    QTest::qWait(0);
    const QImage copia = QGuiApplication::clipboard()->image();
    EXPECT_EQ(copia.size() / copia.devicePixelRatio(), programa.sistema.marco(ui.nombre)->size());
    std::set<QRgb> colores;
    for (int y = 0; y < copia.height(); y += 3)
      for (int x = 0; x < copia.width(); x += 3) colores.insert(copia.pixel(x, y));
    EXPECT_GT(colores.size(), 3u) << "the picture shows nothing";
    if (ui.nombre != "frmMain") programa.aplicacion.ocultar(*ventana);
  }
  EXPECT_GE(vistas, 15);
}

TEST_F(ConDiseno, WithoutAPrinterOneShortMessageIsAll) {
  if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a default printer";
  programa.aplicacion.mostrar("Form15");
  dialogos.esperaFallo("No hay una impresora predeterminada");
  programa.aplicacion.imprimir(*programa.aplicacion.cargada("Form15"));
  EXPECT_TRUE(dialogos.dichas.empty()) << "before the menu could close";
  QTest::qWait(0);
  EXPECT_EQ(dialogos.dichas.size(), 1u);
  dialogos.esperaFallo("No hay una impresora predeterminada");
  QTest::keyClick(programa.sistema.vista("Form15"), Qt::Key_P, Qt::ControlModifier);
  QTest::qWait(0);
}

/// Notes what a progress bar showed each time it was painted.
struct Testigo : QObject {
  explicit Testigo(QProgressBar& b) : barra(b) { barra.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* evento) override {
    if (evento->type() == QEvent::Paint) pintados.insert(barra.value());
    return false;
  }
  QProgressBar& barra;
  std::set<int> pintados;
};

TEST_F(ConDiseno, TheExportWindowShowsItsProgressWhileItRuns) {
  programa.aplicacion.mostrar("Form3");
  programa.aplicacion.mostrar("Form12");
  QTest::qWait(0);
  QMainWindow* vista = programa.sistema.vista("Form12");
  auto* barra = vista->findChild<QProgressBar*>("osProgress1");
  EXPECT_TRUE(barra->isHidden());
  Testigo testigo(*barra);
  const QString archivo = carpeta.filePath("diseño.dxf");
  dialogos.guarda(deQt(archivo)).guarda(deQt(carpeta.filePath("no/hay/x.dxf")));
  QTest::mouseClick(vista->findChild<QPushButton*>("Command3"), Qt::LeftButton);
  EXPECT_TRUE(QFile::exists(archivo));
  EXPECT_TRUE(barra->isHidden());
  for (const int valor : {30, 75, 80, 85, 90, 95, 97, 100}) EXPECT_TRUE(testigo.pintados.contains(valor)) << valor;

  dialogos.esperaFallo("Problemas con la conexión");
  QTest::mouseClick(vista->findChild<QPushButton*>("Command3"), Qt::LeftButton);
  EXPECT_FALSE(barra->isHidden()) << "it stays at what it had";
}

}  // namespace
}  // namespace calvento
