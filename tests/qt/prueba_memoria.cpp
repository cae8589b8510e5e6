// Checks in the status bar and the window of the design report, on real widgets.
#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QScrollBar>
#include <QSettings>
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
  static QLineEdit& campo(Programa& p, const char* nombre) {
    for (auto* c : vista(p).findChildren<QLineEdit*>())
      if (c->accessibleName() == aQt(nombre)) return *c;
    throw std::runtime_error(nombre);
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
  ASSERT_NE(p.sistema.vista("MemoriaForm10"), nullptr);
  EXPECT_EQ(vista(p).findChild<QListWidget*>()->currentItem()->text(), "10. Comprobaciones");
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

TEST_F(VentanaDeMemoria, SearchesKeepsTheCoverAndSaves) {
  {
    Programa p(dialogos);
    VentanaEstructura& f = abrir(p);
    auto* menu = p.sistema.vista("Form10")->findChild<QAction*>(QStringLiteral("mnmemoria"));
    ASSERT_TRUE(menu->isEnabled());
    menu->trigger();
    QLineEdit& busqueda = campo(p, "Buscar en la memoria");
    busqueda.setText("Vedernikov");
    QTest::keyClick(&busqueda, Qt::Key_Return);
    auto& maqueta = const_cast<MaquetaMemoria&>(*vista(p).maqueta());
    const int pagina = maqueta.buscar("Vedernikov");
    EXPECT_GE(pagina, maqueta.paginaDe(8));
    EXPECT_LT(pagina, maqueta.paginaDe(10));
    EXPECT_EQ(maqueta.buscar("no está en ninguna parte"), -1);
    campo(p, "Obra").setText("Canal Norte");
    vista(p).guardar(aQt(carpeta.en("a.html")));
    EXPECT_NE(carpeta.leer("a.html").find("Canal Norte"), std::string::npos);
    EXPECT_EQ(carpeta.leer("a.html").find("Canal Norte"), carpeta.leer("a.html").rfind("Canal Norte"));
    f.nuevo();
    EXPECT_FALSE(menu->isEnabled());
  }
  Programa p(dialogos);
  abrir(p);
  p.aplicacion.mostrar("MemoriaForm10");
  EXPECT_EQ(campo(p, "Obra").text(), "Canal Norte");
}

}  // namespace
}  // namespace calvento
