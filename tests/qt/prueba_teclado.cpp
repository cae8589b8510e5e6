// The program without a mouse: where the keys go when windows come and go, menus, shortcuts. All keys are sent to the
// main window, as the desktop sends them: Qt finds who gets them.
#include <QApplication>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

#include "escritorio.h"
#include "plataforma/ventana_datos.h"
#include "qt/cadena.h"

namespace calvento {
namespace {

constexpr auto alt = Qt::AltModifier;
constexpr auto ctrl = Qt::ControlModifier;

class Teclado : public EnElEscritorio {
 protected:
  void SetUp() override {
    EnElEscritorio::SetUp();
    quitarAcercaDe();
    ASSERT_TRUE(QTest::qWaitForWindowActive(vista("frmMain")));
    area = vista("frmMain")->findChild<QMdiArea*>();
  }
  void tecla(Qt::Key cual, Qt::KeyboardModifiers con = {}) {
    QTest::keyClick(vista("frmMain")->windowHandle(), cual, con);
    QTest::qWait(5);
  }
  void teclear(const char* texto) {
    for (const char* c = texto; *c != 0; ++c) QTest::keyClick(vista("frmMain")->windowHandle(), *c);
  }
  void menu(const char* ventana, const char* accion) {
    elegir(ventana, accion);
    QTest::qWait(5);
  }
  /// The children in sight from the front to the back.
  std::vector<std::string> enOrden() const {
    std::vector<std::string> nombres;
    const auto hijas = area->subWindowList(QMdiArea::StackingOrder);
    for (auto it = hijas.rbegin(); it != hijas.rend(); ++it)
      if ((*it)->isVisible()) nombres.push_back(deQt((*it)->widget()->objectName()));
    return nombres;
  }
  void esperaEnFrente(const char* nombre) {
    QWidget* marco = programa.sistema.marco(nombre);
    EXPECT_EQ(area->activeSubWindow(), marco);
    EXPECT_EQ(enOrden().front(), nombre);
    EXPECT_TRUE(marco->isAncestorOf(QApplication::focusWidget())) << nombre;
  }
  QMdiArea* area = nullptr;
};

TEST_F(Teclado, LoTecleadoVuelveALaVentanaDeDondeSeVino) {
  enum class Salida { intro, altA, escape, equis };
  struct Caso {
    const char *diseno, *parametros;
    Salida salida;
  };
  for (const Caso& c : {Caso{"Form10", "Form2", Salida::intro},
                        {"Form10", "Form2", Salida::altA},
                        {"Form1", "Form2", Salida::escape},
                        {"Form10", "Form2", Salida::equis},
                        {"Form16", "Form25", Salida::intro},
                        {"Form16", "Form25", Salida::altA},
                        {"Form16", "Form25", Salida::equis}}) {
    SCOPED_TRACE(std::string(c.diseno) + " " + std::to_string(static_cast<int>(c.salida)));
    for (const char* ventana : {c.diseno, "Form14", "Form15", c.diseno}) programa.aplicacion.mostrar(ventana);
    QTest::qWait(5);
    campo(c.diseno, "Text8")->setFocus();
    menu(c.diseno, "mnparam");
    esperaEnFrente(c.parametros);
    QLineEdit* parametro = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(parametro, nullptr);
    teclear("0.25");
    if (c.salida == Salida::intro) tecla(Qt::Key_Return);
    if (c.salida == Salida::altA) tecla(Qt::Key_A, alt);
    if (c.salida == Salida::escape) tecla(Qt::Key_Escape);
    if (c.salida == Salida::equis) cerrarConLaX(c.parametros);
    const QWidget* parametros = programa.sistema.marco(c.parametros);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !parametros->isVisible(); }));  // a button is seen going down first
    esperaEnFrente(c.diseno);
    teclear("77");
    EXPECT_EQ(parametro->text(), "0.25");
    EXPECT_EQ(campo(c.diseno, "Text8")->text(), "77");
    cerrarConLaX(c.diseno);
  }
}

TEST_F(Teclado, UnaVentanaSinCamposNoMueveLasDemas) {
  abrirEjemplo("01-rapida-un-tramo.cvr");
  abrirEjemplo("11-inclinada-rectangular.cvi");
  campo("Form1", "Text9")->setFocus();
  using Orden = std::vector<std::string>;
  menu("Form1", "mntanque");
  esperaEnFrente("Form7");
  EXPECT_EQ(enOrden(), (Orden{"Form7", "Form1", "Form10"}));
  tecla(Qt::Key_Escape);
  EXPECT_EQ(enOrden(), (Orden{"Form1", "Form10"}));
  EXPECT_EQ(QApplication::focusWidget(), campo("Form1", "Text9"));

  menu("Form10", "mngrafico");
  menu("Form3", "Toolbar1_Trayectoria");
  EXPECT_EQ(enOrden(), (Orden{"Form8", "Form3", "Form1", "Form10"}));
  for (const char* siguiente : {"Form3", "Form1"}) {
    tecla(Qt::Key_Escape);
    esperaEnFrente(siguiente);
  }
}

TEST_F(Teclado, EscCierraTodoMenosLosDisenos) {
  for (const char* diseno :
       {"21-vertical-sin-obstaculos.cvv", "11-inclinada-rectangular.cvi", "07-salto-bajo-usbr-i.cvr"})
    abrirEjemplo(diseno);
  dialogos.tolera(DialogosGuion::Clase::fallo);  // results of the others with the record of the chute
  int cerradas = 0;
  for (const VentanaUi& diseno : ventanasUi()) {
    if (diseno.puesto == Puesto::principal) continue;
    const std::string nombre(diseno.nombre);
    programa.aplicacion.mostrar(nombre);
    QTest::qWait(5);
    const QWidget* marco = programa.sistema.marco(nombre);
    if (marco == nullptr) continue;  // it could not be loaded
    QTest::keyClick(QApplication::focusWindow(), Qt::Key_Escape);
    QTest::qWait(5);
    const bool deDatos = dynamic_cast<VentanaDatos*>(programa.aplicacion.cargada(nombre)) != nullptr;
    marco = programa.sistema.marco(nombre);
    EXPECT_EQ(marco != nullptr && marco->isVisible(), deDatos) << nombre;
    if (!deDatos) ++cerradas;
  }
  EXPECT_GT(cerradas, 18);
}

TEST_F(Teclado, LasTeclasDelMenuDeCadaDiseno) {
  struct Caso {
    const char* menu;
    Qt::Key tecla;
    Qt::KeyboardModifiers con;
  };
  for (const char* ventana : {"Form10", "Form1", "Form16"}) {
    programa.aplicacion.mostrar(ventana);
    QTest::qWait(5);
    for (const Caso& c : {Caso{"mnnuevo", Qt::Key_N, ctrl},
                          {"mnabrir", Qt::Key_O, ctrl},
                          {"mnguardar", Qt::Key_S, ctrl},
                          {"mnguardarcomo", Qt::Key_S, ctrl | Qt::ShiftModifier},
                          {"mnimprimir", Qt::Key_P, ctrl}}) {
      int veces = 0;
      programa.aplicacion.cargada(ventana)->buscar<Menu>(c.menu)->Click = [&] { ++veces; };
      tecla(c.tecla, c.con);  // with the other designs open behind
      EXPECT_EQ(veces, 1) << ventana << " " << c.menu;
    }
  }
}

TEST_F(Teclado, AltYF10LlevanAlMenuDeLaVentanaActivaYEscVuelve) {
  programa.aplicacion.mostrar("Form10");
  programa.aplicacion.mostrar("Form1");
  programa.aplicacion.mostrar("Form14");
  const auto f10 = [&] { tecla(Qt::Key_F10); };
  const auto altSola = [&] {
    QTest::keyPress(vista("frmMain")->windowHandle(), Qt::Key_Alt, alt);
    QTest::keyRelease(vista("frmMain")->windowHandle(), Qt::Key_Alt);
    QTest::qWait(5);
  };
  for (const auto& [ventana, deQuien] :
       {std::pair{"Form1", "Form1"}, {"Form10", "Form10"}, {"Form14", "frmMain"}, {"Form1", "Form1"}})
    for (const bool conAlt : {true, false}) {
      SCOPED_TRACE(std::string(ventana) + (conAlt ? " Alt" : " F10"));
      programa.aplicacion.mostrar(ventana);
      QTest::qWait(5);
      QLineEdit* linea = campo(ventana, "Text5");
      linea->setFocus();
      conAlt ? altSola() : f10();
      for (const char* otra : {"frmMain", "Form1", "Form10"}) {
        EXPECT_EQ(vista(otra)->menuBar()->hasFocus(), std::string(otra) == deQuien) << otra;
        EXPECT_EQ(vista(otra)->menuBar()->activeAction() != nullptr, std::string(otra) == deQuien) << otra;
      }
      tecla(Qt::Key_Escape);
      EXPECT_EQ(QApplication::focusWidget(), linea);
    }
}

TEST_F(Teclado, ElMenuVentanaLlevaACadaUnaYLasOrdena) {
  for (const char* v : {"Form10", "Form1", "Form16", "Form2", "Form14", "Form1"}) programa.aplicacion.mostrar(v);
  programa.aplicacion.ocultar(*programa.aplicacion.cargada("Form2"));
  QTest::qWait(5);
  tecla(Qt::Key_V, alt);
  auto* ventanas = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(ventanas, nullptr);
  QStringList textos, marcadas;
  for (const QAction* a : ventanas->actions()) {
    if (!a->isSeparator()) textos << a->text();
    if (a->isChecked()) marcadas << a->text();
  }
  EXPECT_EQ(textos,
            (QStringList{"&Cascada", "&Mosaico", QStringLiteral("&1 Rápida"), QStringLiteral("&2 Caída Inclinada"),
                         QStringLiteral("&3 Caída Vertical"), QStringLiteral("&4 Hidráulica de Canales")}));
  EXPECT_EQ(marcadas, QStringList{QStringLiteral("&2 Caída Inclinada")});
  QTest::keyClick(ventanas, '3');
  QTest::qWait(5);
  esperaEnFrente("Form16");

  const QSize antes = vista("frmMain")->size();
  for (const char orden : {'m', 'c'}) {
    tecla(Qt::Key_V, alt);
    QTest::keyClick(QApplication::activePopupWidget(), orden);
    QTest::qWait(5);
    EXPECT_EQ(vista("frmMain")->size(), antes);
    EXPECT_EQ(enOrden().front(), "Form16");
    std::set<std::pair<int, int>> lugares;
    for (const QMdiSubWindow* hija : area->subWindowList())
      if (hija->isVisible()) lugares.emplace(hija->x(), hija->y());
    EXPECT_EQ(lugares.size(), 4u);
  }
}

}  // namespace
}  // namespace calvento
