// Controls and widgets joined: what the scenes of tests/guiones/escritorio/banco.txt cannot say.
#include <QAccessible>
#include <QGuiApplication>

#include "banco.h"
#include "qt/cadena.h"
#include "qt/colores.h"

namespace calvento {
namespace {

struct EnlaceBanco : testing::Test, BancoEnPantalla {};

TEST_F(EnlaceBanco, UnCampoQueSeCorrigeASiMismoNoDaVueltas) {
  enlazar();
  int cambios = 0;
  v.Text2.Change = [&] {
    ++cambios;
    if (v.Text2.Text.valor().size() > 3) v.Text2.Text = "999";
    v.Text1.Text = v.Text2.Text.valor();
  };
  QTest::keyClicks(texto2, "12345");
  EXPECT_EQ(texto2->text(), "999");
  EXPECT_EQ(texto1->text(), "999");
  EXPECT_EQ(cambios, 3 + 2 * 2);  // three keys; two that are corrected, each with the change that corrects it
}

TEST_F(EnlaceBanco, SinBotonPredeterminadoLaTeclaEsDelCampo) {
  enlazar();
  v.Command1.Enabled = false;
  v.Text2.KeyReturn = [this] { v.hecho += "Return"; };
  QTest::keyClick(texto2, Qt::Key_Return);
  EXPECT_EQ(v.hecho, "Return");
}

TEST_F(EnlaceBanco, ElTextoLlegaUnaVezVengaDeDondeVenga) {
  enlazar();
  texto2->setFocus();
  std::vector<std::string> cambios;
  v.Text2.Change = [&] { cambios.push_back(v.Text2.Text.valor()); };
  auto* accesible = QAccessible::queryAccessibleInterface(texto2);
  accesible->setText(QAccessible::Value, "2,5");
  accesible->editableTextInterface()->insertText(3, "1");
  QInputMethodEvent compuesto;
  compuesto.setCommitString("7");
  texto2->setCursorPosition(0);
  QCoreApplication::sendEvent(texto2, &compuesto);
  QTest::keyClick(texto2, Qt::Key_Z, Qt::ControlModifier);
  v.Text2.Text = std::string("4,5");  // the program's: as it is, and no change of the user's beside its own
  EXPECT_EQ(cambios, (std::vector<std::string>{"2.5", "2.51", "72.51", "2.51", "4,5"}));
  EXPECT_EQ(texto2->text(), "4,5");
  v.Text2.Text = std::string("2\xF1");  // bytes that are no letters stay what the file had
  EXPECT_EQ(v.Text2.Text.valor(), "2\xF1");
}

TEST_F(EnlaceBanco, LoQueUnManejadorLanzaSeDiceYElProgramaSigueHastaQueSeSuelta) {
  int pasos = 0;
  v.Text2.MouseMove = [&] { ++pasos; };
  enlazar();
  v.Command1.Click = [] { throw std::runtime_error("roto"); };
  QTest::mouseClick(vista.findChild<QPushButton*>("Command1"), Qt::LeftButton);
  QTest::keyClick(texto2, Qt::Key_Return);
  EXPECT_EQ(fallos, (std::vector<std::string>{"roto", "roto"}));
  QTest::keyClicks(texto2, "1");
  EXPECT_EQ(v.Text2.Text.valor(), "1");
  QTest::mouseMove(texto2, QPoint(5, 5));
  QTest::mouseMove(texto2, QPoint(9, 5));
  EXPECT_GE(pasos, 1);

  enlace->soltar();
  QTest::keyClicks(texto2, "2");
  v.Text1.Text = std::string("nuevo");
  EXPECT_EQ(v.Text2.Text.valor(), "1");
  EXPECT_EQ(texto1->text(), "12,5");
}

TEST_F(EnlaceBanco, TodoTextoSeLeeEnUnEscritorioClaroYEnUnoOscuro) {
  enlazar();
  const QPalette antes = QGuiApplication::palette();
  for (const QColor fondoEscritorio : {QColor(0xef, 0xef, 0xef), QColor(0x2b, 0x2b, 0x2b)}) {
    QPalette p(fondoEscritorio);
    if (fondoEscritorio.lightness() < 128) p.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    QApplication::setPalette(p);
    QTest::qWait(0);
    const auto legible = [&](const std::string& que) {
      const QPalette t = texto2->palette(), r = rotulo->palette();
      EXPECT_GE(contraste(t.color(QPalette::Text), t.color(QPalette::Base)), 3.0) << que;
      EXPECT_GE(contraste(r.color(QPalette::WindowText), r.color(QPalette::Window)), 3.0) << que;
    };
    legible("default colours");
    const QColor base = texto2->palette().color(QPalette::Base);
    EXPECT_EQ(base, p.color(QPalette::Base));
    v.Text2.Text = std::string("1.2.3");
    legible("marked");
    EXPECT_GE(std::abs(texto2->palette().color(QPalette::Base).hslSaturation() - base.hslSaturation()), 50);
    v.Text2.Text = std::string();
    EXPECT_EQ(texto2->palette().color(QPalette::Base), base);
    v.Text2.BackColor = color::caraBoton;
    EXPECT_NE(texto2->palette().color(QPalette::Base), base) << "a closed field does not look closed";
    for (const Color fondo : {color::ventana, color::caraBoton, color::celda, color::celdaElegida, color::negro})
      for (const Color letra : {color::textoBoton, color::textoGris, color::rojo, color::azul, color::blanco}) {
        v.Text2.BackColor = v.Label1.BackColor = fondo;
        v.Text2.ForeColor = v.Label1.ForeColor = letra;
        legible("background " + std::to_string(fondo.valor) + ", text " + std::to_string(letra.valor));
      }
    v.Text2.BackColor = v.Label1.BackColor = color::ventana;
    v.Text2.ForeColor = v.Label1.ForeColor = color::textoBoton;
    EXPECT_EQ(texto2->palette().color(QPalette::Base), base) << "the default does not come back";
  }
  QApplication::setPalette(antes);
}

}  // namespace
}  // namespace calvento
