// The whole program on the desktop: windows that come, go and come back, boxes.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "escritorio.h"
#include "qt/cadena.h"
#include "qt/dialogos_qt.h"
#include "qt/textos_es.h"

namespace calvento {
namespace {

TEST_F(EnElEscritorio, ArrancaEnLaPantallaConElAcercaDeYLoCierra) {
  const QWidget* v = vista("frmMain");
  const QSize conBordesYTitulo = v->size() + QSize(10, 38);
  EXPECT_TRUE(v->screen()->availableGeometry().contains(QRect(v->pos(), conBordesYTitulo)));
  EXPECT_TRUE(vista("frmAbout")->isVisible());
  EXPECT_EQ(vista("Form14"), nullptr) << "made before it is shown";
  QPointer<QMainWindow> acerca = vista("frmAbout");
  QTest::mouseClick(acerca->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
  QTest::qWait(0);
  EXPECT_TRUE(acerca.isNull());
  elegir("frmMain", "mnacerca");
  EXPECT_TRUE(vista("frmAbout")->isVisible());
}

TEST_F(EnElEscritorio, UnaVentanaAbiertaSeTraeAlFrente) {
  elegir("frmMain", "Toolbar1_canal");
  campo("Form14", "Text1")->setFocus();
  QTest::keyClicks(campo("Form14", "Text1"), "3,5");
  elegir("frmMain", "mnconjugados");
  auto* area = vista("frmMain")->findChild<QMdiArea*>();
  EXPECT_EQ(area->activeSubWindow(), programa.sistema.marco("Form15"));
  elegir("frmMain", "mnnormal");
  EXPECT_EQ(area->activeSubWindow(), programa.sistema.marco("Form14"));
  EXPECT_EQ(area->subWindowList().size(), 2);
  EXPECT_EQ(campo("Form14", "Text1")->text(), "3.5");
}

TEST_F(EnElEscritorio, LaVentanaQueAbreUnMenuQuedaDelante) {
  elegir("frmMain", "mnrapida");
  QMainWindow* rapida = vista("Form10");
  campo("Form10", "Text5")->setFocus();
  auto* parametros = rapida->findChild<QAction*>("mnparam");
  auto* menu = rapida->findChild<QMenu*>("mnopciones");
  ASSERT_NE(menu, nullptr);
  QTest::mouseClick(rapida->menuBar(), Qt::LeftButton, {},
                    rapida->menuBar()->actionGeometry(menu->menuAction()).center());
  ASSERT_TRUE(QTest::qWaitFor([&] { return menu->isVisible(); }));
  QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(parametros).center());
  QTest::qWait(50);
  auto* area = vista("frmMain")->findChild<QMdiArea*>();
  EXPECT_EQ(area->activeSubWindow(), programa.sistema.marco("Form2"));
  EXPECT_EQ(area->subWindowList(QMdiArea::StackingOrder).last(), programa.sistema.marco("Form2"));
}

TEST_F(EnElEscritorio, DescargadaVuelveNuevaYOcultadaConSusTextos) {
  programa.aplicacion.mostrar("Form14");
  QTest::keyClicks(campo("Form14", "Text1"), "9");
  cerrarConLaX("Form14");
  EXPECT_EQ(vista("Form14"), nullptr);
  EXPECT_EQ(programa.aplicacion.cargada("Form14"), nullptr);
  programa.aplicacion.mostrar("Form14");
  EXPECT_EQ(campo("Form14", "Text1")->text(), "");

  programa.aplicacion.mostrar("Form2");
  campo("Form2", "Text2")->selectAll();
  QTest::keyClicks(campo("Form2", "Text2"), "7");
  QTest::mouseClick(vista("Form2")->findChild<QPushButton*>("Command2"), Qt::LeftButton);
  EXPECT_FALSE(programa.sistema.marco("Form2")->isVisible());
  programa.aplicacion.mostrar("Form2");
  cerrarConLaX("Form2");
  ASSERT_NE(vista("Form2"), nullptr);
  EXPECT_FALSE(programa.sistema.marco("Form2")->isVisible());
  programa.aplicacion.mostrar("Form2");
  EXPECT_TRUE(programa.sistema.marco("Form2")->isVisible());
  EXPECT_EQ(campo("Form2", "Text2")->text(), "7");
}

TEST_F(EnElEscritorio, LaVentanaCrecidaCabeOSeRecorre) {
  vista("frmMain")->resize(500, 400);
  programa.aplicacion.mostrar("Form14");
  QTest::qWait(0);
  const QWidget* marco = programa.sistema.marco("Form14");
  EXPECT_GE(marco->width(), vista("Form14")->minimumSizeHint().width());
  EXPECT_EQ(vista("frmMain")->findChild<QMdiArea*>()->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
  EXPECT_GE(marco->x(), 0);
  EXPECT_GE(marco->y(), 0);
}

TEST_F(EnElEscritorio, ElCanalSeCalculaTecleando) {
  elegir("frmMain", "Toolbar1_canal");
  const std::pair<const char*, const char*> datos[] = {
      {"Text1", "126"}, {"Text2", "1,5"}, {"Text3", "6.1"}, {"Text4", "0,013"}, {"Text5", "0.0008"}};
  campo("Form14", "Text1")->setFocus();
  for (const auto& [nombre, tecleado] : datos) QTest::keyClicks(campo("Form14", nombre), tecleado);
  QTest::keyClick(campo("Form14", "Text5"), Qt::Key_Return);
  EXPECT_EQ(campo("Form14", "Text11")->text(), "3.286");
  EXPECT_EQ(campo("Form14", "Text6")->text(), "2.783");
  QTest::mouseClick(vista("Form14")->findChild<QRadioButton*>("Option1"), Qt::LeftButton, {}, QPoint(8, 8));
  EXPECT_TRUE(campo("Form14", "Text11")->isHidden());
  EXPECT_EQ(deQt(campo("Form14", "Text1")->accessibleName()), "Datos: Tirante (m)");
  dialogos.esperaFallo("Ingreso de datos incorrectos");
  QTest::mouseClick(vista("Form14")->findChild<QRadioButton*>("Option3"), Qt::LeftButton, {}, QPoint(8, 8));
  campo("Form14", "Text5")->clear();
  QTest::keyClicks(campo("Form14", "Text5"), "0");
  QTest::mouseClick(vista("Form14")->findChild<QPushButton*>("Command1"), Qt::LeftButton);
}

TEST_F(EnElEscritorio, LoAplazadoNoCorreDentroDeOtroBucle) {
  bool corrio = false;
  QTimer::singleShot(0, [&] {
    programa.sistema.despues([&] { corrio = true; });
    QEventLoop caja;
    QTimer::singleShot(20, &caja, &QEventLoop::quit);
    caja.exec();
    EXPECT_FALSE(corrio) << "the event that asked for it had not ended";
  });
  // in a loop, as all of the program's events: what is put off outside of any runs in the first one that comes
  QEventLoop programaEnMarcha;
  QTimer::singleShot(60, &programaEnMarcha, &QEventLoop::quit);
  programaEnMarcha.exec();
  EXPECT_TRUE(corrio);
}

TEST(Cajas, LaPreguntaEnEspanolSeContesta) {
  instalarTextosEspanoles(*qApp);
  DialogosQt dialogos;
  for (const char* respuesta : {"Sí", "No"}) {
    QStringList textos;
    QTimer::singleShot(0, [&] {
      auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(caja, nullptr);
      EXPECT_EQ(caja->text(), "¿Continuar? <b>&</b>");
      for (QAbstractButton* b : caja->buttons()) {
        textos << b->text();
        if (b->text() == QString::fromUtf8(respuesta)) QTest::mouseClick(b, Qt::LeftButton);
      }
    });
    EXPECT_EQ(dialogos.pregunta("¿Continuar? <b>&</b>"), std::string(respuesta) == "Sí");
    EXPECT_EQ(textos.size(), 2);
  }
  EXPECT_EQ(QCoreApplication::translate("QWidgetTextControl", "&Paste"), "&Pegar");
  EXPECT_EQ(QCoreApplication::translate("QShortcut", "Ctrl"), "Ctrl");
}

TEST(Cajas, ArchivosConSuFiltro) {
  EXPECT_EQ(filtroQt("Rápidas(*.CVR)|*.cvr"), QStringLiteral("Rápidas(*.CVR) (*.cvr *.CVR)"));
  EXPECT_EQ(filtroQt("Todos"), "Todos (*)");
}

}  // namespace
}  // namespace calvento
