// Checks in the status bar and the window of the design report, on real widgets.
#include <gtest/gtest.h>

#include <QAction>
#include <QMainWindow>
#include <QPainter>
#include <QPrinter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>
#include <QToolButton>

#include "apoyo/carpeta_prueba.h"
#include "apoyo/dialogos_guion.h"
#include "estructura/ventana_estructura.h"
#include "qt/cadena.h"
#include "qt/maqueta_memoria.h"
#include "qt/paginas_memoria.h"
#include "qt/programa.h"
#include "qt/vista_memoria.h"
#include "salida_de.h"

namespace calvento {
namespace {

class VentanaDeMemoria : public testing::Test {
 protected:
  VentanaDeMemoria() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, aQt(carpeta.en("ajustes"))); }

  /// The data window with the first example, calculated.
  VentanaEstructura& abrir(Programa& p) {
    p.aplicacion.abrirProyecto(RAIZ_PROYECTO "/ejemplos/01-rapida-un-tramo.cvr");
    return *p.aplicacion.cargar<VentanaEstructura>("Form10");
  }
  static QToolButton& panel(Programa& p) {
    return *p.sistema.vista("Form10")->findChild<QToolButton*>(QStringLiteral("sbStatusBar_panel2"));
  }
  static VistaMemoria& vista(Programa& p) {
    return dynamic_cast<VistaMemoria&>(
        *p.sistema.vista("MemoriaForm10")->findChild<QWidget*>(QStringLiteral("Visor1")));
  }
  static QWidget* paginas(Programa& p) {
    for (auto* w : vista(p).findChildren<QWidget*>())
      if (w->accessibleName() == "Páginas de la memoria") return w;
    return nullptr;
  }

  CarpetaPrueba carpeta;
  DialogosGuion dialogos;
};

TEST_F(VentanaDeMemoria, TheStatusBarCountsAfterEachCalculationAndOpensTheChapter) {
  dialogos.tolera(DialogosGuion::Clase::aviso);
  Programa p(dialogos);
  VentanaEstructura& f = abrir(p);
  const QString antes = panel(p).text();
  EXPECT_TRUE(antes.startsWith("Comprobaciones: ") && !panel(p).isHidden()) << deQt(antes);
  EXPECT_FALSE(f.sbStatusBar.Alarma);
  f.Text23.Text = "2.2";  // wider than the jet
  f.Command3_Click();
  EXPECT_NE(panel(p).text(), antes);
  EXPECT_TRUE(f.sbStatusBar.Alarma);
  QTest::mouseClick(&panel(p), Qt::LeftButton);
  // an open report follows the next calculation; a calculation that stops leaves it, and no count
  f.Text23.Text = "1.95";
  f.Command3_Click();
  EXPECT_EQ(panel(p).text(), antes);
  EXPECT_GE(vista(p).maqueta()->paginas(), 14);
  const QScrollBar* alLado = dynamic_cast<PaginasMemoria&>(*paginas(p)).horizontalScrollBar();
  EXPECT_GT(alLado->maximum(), 0) << "a drawing is wider than the view";
  EXPECT_NEAR(alLado->value(), alLado->maximum() / 2., 1) << "the text pages are whole";
  f.Text5.Text = "";
  f.Command3_Click();
  EXPECT_TRUE(panel(p).isHidden());
}

TEST_F(VentanaDeMemoria, FindsMarksAndGoesToTheChapters) {
  Programa p(dialogos);
  VentanaEstructura& f = abrir(p);
  auto* menu = p.sistema.vista("Form10")->findChild<QAction*>(QStringLiteral("mnmemoria"));
  ASSERT_TRUE(menu->isEnabled());
  menu->trigger();
  auto& maqueta = const_cast<MaquetaMemoria&>(*vista(p).maqueta());
  const auto marcados = [&](int pagina) {
    QImage hoja((maqueta.tamanoMm(pagina) * 4).toSize(), QImage::Format_RGB32);
    hoja.fill(Qt::white);
    QPainter pintor(&hoja);
    maqueta.pintar(pintor, pagina, hoja.rect());
    int n = 0;
    for (int i = 0; i < hoja.width() * hoja.height(); ++i)
      n += QColor(hoja.pixel(i % hoja.width(), i / hoja.width())) == QColor(255, 214, 92);
    return n;
  };
  const int pagina = maqueta.buscar("Vedernikov");
  EXPECT_GE(pagina, maqueta.paginaDe(8));
  EXPECT_LT(pagina, maqueta.paginaDe(10));
  EXPECT_GT(marcados(pagina), 100);
  EXPECT_EQ(maqueta.buscar("no está en ninguna parte"), -1);
  EXPECT_EQ(marcados(pagina), 0);
  EXPECT_GE(maqueta.buscar("Vedernikov", true), pagina) << "the last one";
  EXPECT_EQ(maqueta.buscar(""), -1);
  f.nuevo();
  EXPECT_FALSE(menu->isEnabled());
}

TEST_F(VentanaDeMemoria, WhatIsPrintedIsWhatIsWritten) {
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "pdftotext is not installed";
  Programa p(dialogos);
  abrir(p);
  p.aplicacion.mostrar("MemoriaForm10");
  const QString escrita = aQt(carpeta.en("a.pdf")), impresa = aQt(carpeta.en("b.pdf"));
  vista(p).guardar(escrita);
  EXPECT_TRUE(salidaDe("pdfinfo", {escrita}).contains("Memoria de cálculo hidráulico - "));
  const int n = vista(p).maqueta()->paginas();
  for (const auto& [de, a] : {std::pair{0, 0}, {2, 3}, {n - 1, n + 5}}) {
    QPrinter pdf(QPrinter::HighResolution);
    pdf.setOutputFormat(QPrinter::PdfFormat);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setFullPage(true);
    pdf.setFromTo(de, a);
    pdf.setOutputFileName(impresa);
    EXPECT_TRUE(vista(p).maqueta()->imprimir(pdf));
    const int primera = std::max(de, 1), ultima = a == 0 ? n : std::min(a, n);
    for (int i = primera; i <= ultima + 1; ++i) {
      const auto letras = [](int pagina, const QString& archivo) {
        const QString cual = QString::number(pagina);
        std::string todas = salidaDe("pdftotext", {"-f", cual, "-l", cual, archivo, "-"})
                                .remove(QRegularExpression("[\\s-]"))
                                .toStdString();
        std::sort(todas.begin(), todas.end());  // the words of a page that lies come in another order
        return todas;
      };
      EXPECT_EQ(letras(i - primera + 1, impresa), i > ultima ? "" : letras(i, escrita)) << i;
    }
  }
}

}  // namespace
}  // namespace calvento
