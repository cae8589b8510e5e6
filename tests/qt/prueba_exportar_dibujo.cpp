#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <utility>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "plataforma/lienzo.h"
#include "qt/cadena.h"
#include "qt/exportar_dibujo.h"
#include "qt/pedir_archivo.h"
#include "salida_de.h"

namespace calvento {
namespace {

Lienzo muestra() {
  Lienzo l(865, 433);
  l.Scale(0, 108.66, 17.3, 100);
  l.FillStyle = EstiloRelleno::cruzadoDiagonal;
  l.FillColor = color::grisClaro;
  l.Polygon({{1, 101}, {9, 101}, {9, 103}, {1, 103}});
  l.DrawStyle = EstiloLinea::guionPunto;
  l.Line({0, 104}, {17, 104}, color::rojo);
  l.ForeColor = color::azulClaro;
  l.Font.puntos = 12;
  l.CurrentX = 2;
  l.CurrentY = 107;
  l.Print("Canal aguas arriba; m³/s");
  return l;
}

QByteArray leer(const QString& nombre) {
  QFile f(nombre);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

class Exportar : public testing::Test {
 protected:
  QString ruta(const char* nombre) const { return carpeta_.filePath(nombre); }
  QTemporaryDir carpeta_;
};

TEST_F(Exportar, PdfConLetrasDeSuTamanoTambienEnUnaPantallaAumentada) {
  // this very program writes the file, with the desktop scaled to 125 %
  if (const QByteArray destino = qgetenv("CALVENTO_PRUEBA_PDF"); !destino.isEmpty()) {
    exportarDibujo(muestra(), destino.toStdString());
    return;
  }
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "pdftotext is not installed";
  for (const char* aumento : {"1", "1.25"}) {
    SCOPED_TRACE(aumento);
    const QString archivo = ruta(aumento) + ".pdf";
    for (const auto& [variable, valor] : {std::pair<const char*, QByteArray>{"QT_SCALE_FACTOR", aumento},
                                          {"QT_QPA_PLATFORM", "offscreen"},
                                          {"CALVENTO_PRUEBA_PDF", archivo.toUtf8()}})
      qputenv(variable, valor);
    salidaDe(QCoreApplication::applicationFilePath(), {"--gtest_filter=Exportar.PdfConLetras*"});
    for (const char* variable : {"QT_SCALE_FACTOR", "CALVENTO_PRUEBA_PDF"}) qunsetenv(variable);

    const QByteArray pdf = leer(archivo);
    EXPECT_TRUE(pdf.contains("/FontFile"));
    EXPECT_FALSE(pdf.contains("/Subtype /Image"));
    const QString texto = salidaDe("pdftotext", {"-bbox", archivo, "-"});
    const QRegularExpression patron(R"re(xMin="([\d.]+)" yMin="[\d.]+" xMax="([\d.]+)" yMax="[\d.]+">aguas<)re");
    const auto palabra = patron.match(texto);
    ASSERT_TRUE(palabra.hasMatch()) << texto.toStdString();
    // 12 points; "aguas" is 2.724 of the size wide in this face's metrics
    const double ancho = palabra.captured(2).toDouble() - palabra.captured(1).toDouble();
    EXPECT_NEAR(ancho, 12 * 2.724, 12 * 0.15);
    const auto hoja = QRegularExpression(R"re(page width="([\d.]+)" height="([\d.]+)")re").match(texto);
    EXPECT_NEAR(hoja.captured(1).toDouble(), 865 * 0.75, 1);
    EXPECT_NEAR(hoja.captured(2).toDouble(), 433 * 0.75, 1);
  }
}

TEST_F(Exportar, LoQueNoSePuedeEscribirSeDiceYNoDejaRastro) {
  constexpr std::pair<const char*, const char*> casos[] = {{"a.bmp", "El dibujo se escribe como .svg, .pdf o .png"},
                                                           {"sin_extension", "El dibujo se escribe como"},
                                                           {"no/hay/carpeta.svg", "no existe el archivo o la carpeta"}};
  for (const auto& [malo, dice] : casos) {
    try {
      exportarDibujo(muestra(), deQt(ruta(malo)));
      ADD_FAILURE() << malo;
    } catch (const std::runtime_error& e) {
      EXPECT_NE(std::string(e.what()).find(dice), std::string::npos) << e.what();
    }
    EXPECT_FALSE(QFile::exists(ruta(malo)));
  }
  // an existing file is replaced as a whole or stays as it was
  exportarDibujo(muestra(), deQt(ruta("b.svg")));
  const QByteArray antes = leer(ruta("b.svg"));
  EXPECT_THROW(exportarDibujo(Lienzo(0, 0), deQt(ruta("b.svg"))), std::runtime_error);
  EXPECT_EQ(leer(ruta("b.svg")), antes);
}

TEST_F(Exportar, AFileEndsAsTheKindThatIsChosen) {
  QWidget ventana;
  for (const QString filtro : {"PDF (*.pdf)", "SVG (*.svg)"}) {
    QTimer::singleShot(0, &ventana, [&] {
      auto* caja = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      caja->setDirectory(carpeta_.path());
      caja->selectNameFilter(filtro);
      emit caja->filterSelected(filtro);
      QTest::keyClick(caja->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
    });
    EXPECT_EQ(pedirArchivo(ventana, "Guardar", {"PDF (*.pdf)", "SVG (*.svg)"}, "curva"),
              ruta("curva") + filtro.mid(6, 4));
  }
}

}  // namespace
}  // namespace calvento
