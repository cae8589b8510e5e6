// The whole program on the desktop: windows that come, go and come back, boxes.
#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "escritorio.h"
#include "plataforma/ventana_datos.h"
#include "qt/cadena.h"
#include "qt/dialogos_qt.h"
#include "qt/textos_es.h"

namespace calvento {
namespace {

TEST_F(EnElEscritorio, EscCierraTodoMenosLosDisenos) {
  quitarAcercaDe();
  ASSERT_TRUE(QTest::qWaitForWindowActive(vista("frmMain")));
  for (const char* diseno :
       {"21-vertical-sin-obstaculos.cvv", "11-inclinada-rectangular.cvi", "07-salto-bajo-usbr-i.cvr"})
    abrirEjemplo(diseno);
  dialogos.tolera(DialogosGuion::Clase::fallo);  // results of the others with the record of the chute
  int cerradas = 0;
  for (const VentanaUi& diseno : ventanasUi()) {
    if (diseno.puesto == Acomodo::principal) continue;
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
