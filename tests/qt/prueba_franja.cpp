// The strip over a result window whose figures are no longer those of the last calculation.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include "escritorio.h"
#include "plataforma/lienzo.h"
#include "qt/cadena.h"

namespace calvento {
namespace {

class LaFranja : public EnElEscritorio {
 protected:
  void SetUp() override {
    EnElEscritorio::SetUp();
    quitarAcercaDe();
  }
  QWidget* franja(const char* ventana) { return programa.sistema.marco(ventana)->findChild<QWidget*>("franja"); }
  std::string dice(const char* ventana) { return deQt(franja(ventana)->findChild<QLabel*>()->text()); }
  void actualizar(const char* ventana) {
    QTest::mouseClick(franja(ventana)->findChild<QPushButton*>(), Qt::LeftButton);
    QTest::qWait(5);
  }
  void calcularCon(const char* ventana, const char* nombre, const char* valor) {
    campo(ventana, nombre)->selectAll();
    QTest::keyClicks(campo(ventana, nombre), valor);
    QTest::keyClick(campo(ventana, nombre), Qt::Key_Return);
  }
  QString celda(const char* ventana, int fila, int columna) {
    return vista(ventana)->findChild<QTableView*>()->model()->index(fila, columna).data().toString();
  }
};

TEST_F(LaFranja, SaleConElSiguienteCalculoYActualizaEnSuLugar) {
  abrirEjemplo("01-rapida-un-tramo.cvr");
  elegir("Form10", "mntperfil");
  QTest::qWait(5);
  EXPECT_EQ(franja("Form11"), nullptr);
  const QString antes = celda("Form11", 5, 4);
  QWidget* marco = programa.sistema.marco("Form11");
  marco->setGeometry(30, 20, marco->width() - 3, marco->height() - 5);
  const QRect lugar = marco->geometry();
  const int alto = vista("Form11")->height();

  calcularCon("Form10", "Text5", "3.5");
  ASSERT_NE(franja("Form11"), nullptr);
  EXPECT_TRUE(franja("Form11")->isVisible());
  EXPECT_EQ(dice("Form11"), "Rápida 01-rapida-un-tramo.cvr, calculado antes del último OK");
  EXPECT_EQ(vista("Form11")->height(), alto) << "the content loses nothing";
  EXPECT_EQ(celda("Form11", 5, 4), antes) << "an open window keeps what it shows";
  EXPECT_EQ(franja("Form10"), nullptr);

  actualizar("Form11");
  EXPECT_EQ(franja("Form11"), nullptr);
  EXPECT_EQ(programa.sistema.marco("Form11")->geometry(), lugar);
  EXPECT_NE(celda("Form11", 5, 4), antes);
}

TEST_F(LaFranja, LaHojaActualizadaEsLaQueElMenuAbre) {
  abrirEjemplo("07-salto-bajo-usbr-i.cvr");
  const auto numeros = [&] {
    QStringList textos;
    for (const QLabel* l : vista("Form22")->findChildren<QLabel*>()) textos << l->text();
    return textos;
  };
  elegir("Form10", "mntabla");
  const QStringList antes = numeros();
  calcularCon("Form10", "Text23", "2.2");
  actualizar("Form22");
  const QStringList despues = numeros();
  EXPECT_NE(despues, antes);
  cerrarConLaX("Form22");
  elegir("Form10", "mntabla");
  EXPECT_EQ(numeros(), despues);
}

TEST_F(LaFranja, ConservaLoElegidoYNoMezclaEstructuras) {
  abrirEjemplo("01-rapida-un-tramo.cvr");
  programa.aplicacion.mostrar("Form12");
  campo("Form12", "Text10")->selectAll();
  QTest::keyClicks(campo("Form12", "Text10"), "2.5");
  elegir("Form10", "mnst");
  auto* combo = vista("Form19")->findChild<QComboBox*>();
  combo->setFocus();
  QTest::keyClick(combo, Qt::Key_Down);
  ASSERT_EQ(combo->currentIndex(), 1);

  const Lienzo& dibujo = programa.aplicacion.cargada("Form19")->buscar<PictureBox>("P")->lienzo;
  const auto pintado = dibujo.version();

  abrirEjemplo("21-vertical-sin-obstaculos.cvv");
  QTest::qWait(5);
  EXPECT_EQ(dibujo.version(), pintado) << "drawn anew from a record in between";
  EXPECT_EQ(dice("Form19"), "Rápida 01-rapida-un-tramo.cvr, calculado antes del último OK");
  const QWidget* marco = programa.sistema.marco("Form19");
  dialogos.esperaAviso();
  actualizar("Form19");
  EXPECT_EQ(programa.sistema.marco("Form19"), marco);

  elegir("Form10", "mntperfil");
  EXPECT_EQ(dice("Form11"), "Con los valores del último OK: Caída Vertical 21-vertical-sin-obstaculos.cvv");
  elegir("Form16", "mngrafico");
  EXPECT_EQ(franja("Form17"), nullptr);

  programa.aplicacion.mostrar("Form10");
  QTest::keyClick(campo("Form10", "Text5"), Qt::Key_Return);
  actualizar("Form19");
  EXPECT_EQ(vista("Form19")->findChild<QComboBox*>()->currentIndex(), 1);
  EXPECT_EQ(dice("Form11"), "Caída Vertical 21-vertical-sin-obstaculos.cvv, calculado antes del último OK");
  actualizar("Form11");
  EXPECT_EQ(franja("Form11"), nullptr);
  actualizar("Form12");
  EXPECT_EQ(campo("Form12", "Text10")->text(), "2.5");
  EXPECT_EQ(franja("Form12"), nullptr);
}

}  // namespace
}  // namespace calvento
