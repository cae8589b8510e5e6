// The whole program on the desktop: windows that come, go and come back, boxes.
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFileOpenEvent>
#include <QMdiArea>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "apoyo/carpeta_prueba.h"
#include "escritorio.h"
#include "qt/aplicacion_qt.h"
#include "qt/cadena.h"
#include "qt/dialogos_qt.h"

namespace calvento {
namespace {

TEST_F(EnElEscritorio, ArrancaEnLaPantallaConElAcercaDeYLoCierra) {
  const QWidget* v = vista("frmMain");
  const QSize conBordesYTitulo = v->size() + QSize(10, 38);
  EXPECT_TRUE(v->screen()->availableGeometry().contains(QRect(v->pos(), conBordesYTitulo)));
  EXPECT_TRUE(vista("frmAbout")->isVisible());
  const QPoint lejos = vista("frmAbout")->geometry().center() - v->screen()->availableGeometry().center();
  EXPECT_LE(lejos.manhattanLength(), 8) << "in the middle";
  EXPECT_EQ(vista("Form14"), nullptr) << "made before it is shown";
  QPointer<QMainWindow> acerca = vista("frmAbout");
  QTest::mouseClick(acerca->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
  QTest::qWait(0);
  EXPECT_TRUE(acerca.isNull());
  elegir("frmMain", "mnacerca");
  ASSERT_TRUE(QTest::qWaitForWindowActive(vista("frmAbout")));
  QTest::qWait(5);
  QTest::keyClick(QApplication::focusWindow(), Qt::Key_Escape);
  QTest::qWait(5);
  EXPECT_EQ(vista("frmAbout"), nullptr);
}

TEST_F(EnElEscritorio, SalirYCerrarLaVentanaPrincipalTerminan) {
  for (const bool porElMenu : {false, true}) {
    QTimer::singleShot(0, [&] { porElMenu ? elegir("frmMain", "mnsalir") : cerrarConLaX("frmMain"); });
    QTimer::singleShot(2000, &programa.sistema, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QCoreApplication::exec(), 0) << porElMenu;
  }
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

TEST(Cajas, LoQueFallaEnUnSucesoSeDiceYUnArchivoDelSistemaSeAbre) {
  auto& a = dynamic_cast<AplicacionQt&>(*qApp);
  std::string dicho;
  const auto antes = std::exchange(a.alFallar, [&](const std::string& texto) { dicho += texto; });
  QTimer::singleShot(0, [] { throw std::runtime_error("roto, "); });
  QTest::qWait(5);
  a.alFallar = antes;
  a.alAbrirArchivo = [&](const std::string& archivo) { dicho += archivo; };
  QFileOpenEvent pedido(QStringLiteral("/obra/ñ.cvr"));
  QCoreApplication::sendEvent(qApp, &pedido);
  a.alAbrirArchivo = nullptr;
  EXPECT_EQ(dicho, "roto, /obra/ñ.cvr");
}

TEST(Cajas, HablanEspanolYSeContestan) {
  DialogosQt d;
  const std::string texto = "¿Continuar? <b>&</b>";
  const auto pregunta = [&] { return d.pregunta(texto) ? "sí" : "no"; };
  const auto vista = [&](const QString& pulsa, const std::function<const char*()>& caja) {
    QString vio;
    QTimer::singleShot(0, [&] {
      auto* c = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(c, nullptr);
      EXPECT_EQ(c->text() + c->windowTitle(), aQt(texto) + "Calvento");
      EXPECT_EQ(c->textFormat(), Qt::PlainText);
      vio = QString::number(c->icon());
      for (QAbstractButton* b : c->buttons()) vio += (b == c->defaultButton() ? " *" : " ") + b->text();
      for (QAbstractButton* b : c->buttons())
        if (b->text() == pulsa) return QTest::mouseClick(b, Qt::LeftButton);
      QTest::keyClick(c, Qt::Key_Escape);
    });
    const char* respuesta = caja();
    return deQt(vio) + ": " + respuesta;
  };
  EXPECT_EQ(vista("Aceptar", [&] { return d.aviso(texto), ""; }), "1 *Aceptar: ");
  EXPECT_EQ(vista("", [&] { return d.fallo(texto), ""; }), "2 *Aceptar: ");
  EXPECT_EQ(vista("Sí", pregunta), "2 *Sí No: sí");
  for (const char* no : {"No", ""}) EXPECT_EQ(vista(no, pregunta), "2 *Sí No: no");
  EXPECT_EQ(QCoreApplication::translate("QWidgetTextControl", "&Paste"), "&Pegar");
  EXPECT_EQ(QCoreApplication::translate("QShortcut", "Ctrl"), "Ctrl");
}

TEST(Cajas, LaDeArchivosOfreceLoSugerido) {
  const CarpetaPrueba carpeta;
  carpeta.escribir("uno.cvr", "");
  DialogosQt d;
  const auto pedir = [&](bool guardar, const char* nombre, Qt::Key tecla) {
    QString vio;
    QTimer::singleShot(0, [&] {
      auto* c = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(c, nullptr);
      auto* campo = c->findChild<QLineEdit*>("fileNameEdit");
      EXPECT_GE(c->width(), 760) << "no column is cut";
      vio = c->windowTitle() + " " + c->nameFilters().join(',') + " " + campo->text() + ": ";
      for (const auto rotulo : {QFileDialog::LookIn, QFileDialog::FileName, QFileDialog::FileType, QFileDialog::Accept,
                                QFileDialog::Reject})
        vio += c->labelText(rotulo) + " ";
      QTest::keyClick(campo, tecla);
    });
    OpcionesArchivo o{"Proyecto", "cvr", "Rápidas(*.CVR)|*.cvr", nombre};
    const auto ruta = guardar ? d.guardarArchivo(o) : d.abrirArchivo(o);
    return deQt(vio) + (ruta ? std::filesystem::path(*ruta).filename().string() : "nada");
  };
  const std::string caja = "Proyecto Rápidas(*.CVR) (*.cvr *.CVR) ";
  const std::string rotulos = ": Buscar en: &Nombre de archivo: Tipo: ";
  EXPECT_EQ(pedir(true, "dos", Qt::Key_Return), caja + "dos" + rotulos + "Guardar Cancelar dos.cvr");
  EXPECT_EQ(pedir(true, "uno.cvr", Qt::Key_Return), caja + "uno.cvr" + rotulos + "Guardar Cancelar uno.cvr")
      << "the program itself asks whether it is replaced";
  EXPECT_EQ(pedir(false, "uno.cvr", Qt::Key_Return), caja + "uno.cvr" + rotulos + "Abrir Cancelar uno.cvr");
  EXPECT_EQ(pedir(false, "uno.cvr", Qt::Key_Escape), caja + "uno.cvr" + rotulos + "Abrir Cancelar nada");
}

TEST(Cajas, ArchivosConSuFiltro) {
  EXPECT_EQ(filtroQt("Rápidas(*.CVR)|*.cvr"), QStringLiteral("Rápidas(*.CVR) (*.cvr *.CVR)"));
  EXPECT_EQ(filtroQt("Todos"), "Todos (*)");
}

}  // namespace
}  // namespace calvento
