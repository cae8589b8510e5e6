// Controls and widgets joined: properties one way, the user's doings the other.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QStyleHints>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include "plataforma/campos.h"
#include "qt/cadena.h"
#include "qt/colores.h"
#include "qt/enlace.h"

namespace calvento {
namespace {

struct Banco : Ventana {
  Banco() : Ventana("Banco", "Prueba") { seleccionarAlEnfocar(*this); }
  Label Label1{*this, "Label1", "Caudal:"};
  TextBox Text1{*this, "Text1", "12,5"};
  TextBox Text2{*this, "Text2"};
  OptionButton Option1{*this, "Option1", 1, true};
  OptionButton Option2{*this, "Option2", 1, false};
  CheckBox Check1{*this, "Check1"};
  ComboBox Combo1{*this, "Combo1", {"uno", "dos"}, 0};
  UpDown UpDown1{*this, "UpDown1", 1, 3, 1};
  ProgressBar Bar1{*this, "Bar1"};
  StatusBar Barra{*this, "Barra"};
  CommandButton Command1{*this, "Command1"};
  CommandButton* botonPredeterminado() override { return &Command1; }
};

class EnlaceBanco : public testing::Test {
 protected:
  template <class W>
  W* poner(const char* nombre, QWidget* padre = nullptr) {
    auto* w = new W(padre != nullptr ? padre : vista.centralWidget());
    w->setObjectName(QLatin1String(nombre));
    if (padre == nullptr) vista.centralWidget()->layout()->addWidget(w);
    return w;
  }
  void enlazar() {
    vista.setCentralWidget(new QWidget);
    new QVBoxLayout(vista.centralWidget());
    rotulo = poner<QLabel>("Label1");
    rotulo->setText("Caudal:");
    texto1 = poner<QLineEdit>("Text1");
    texto1->setAccessibleName("Datos: Caudal");
    rotulo->setBuddy(texto1);
    texto2 = poner<QLineEdit>("Text2");
    for (const char* opcion : {"Option1", "Option2"}) poner<QRadioButton>(opcion);
    poner<QCheckBox>("Check1");
    poner<QComboBox>("Combo1");
    auto* flechas = poner<QWidget>("UpDown1");
    poner<QToolButton>("UpDown1_subir", flechas);
    poner<QToolButton>("UpDown1_bajar", flechas);
    poner<QProgressBar>("Bar1");
    vista.statusBar()->setObjectName("Barra");
    poner<QPushButton>("Command1");
    enlace = std::make_unique<Enlace>(v, vista, [this](const std::string& t) { fallos.push_back(t); });
    vista.show();
    vista.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&vista));
    vista.setFocus();
  }
  template <class W>
  W* widget(const char* nombre) {
    return vista.findChild<W*>(QLatin1String(nombre));
  }
  void TearDown() override {
    if (enlace) enlace->soltar();
  }

  Banco v;
  QMainWindow vista;
  QLabel* rotulo = nullptr;
  QLineEdit* texto1 = nullptr;
  QLineEdit* texto2 = nullptr;
  std::unique_ptr<Enlace> enlace;
  std::vector<std::string> fallos;
};

TEST_F(EnlaceBanco, LoQueElProgramaPoneSeVe) {
  v.Bar1.Max = 300;
  v.Bar1.Value = 149.6;
  v.Text2.Enabled = false;
  v.Check1.Visible = false;
  v.Barra.Panel1 = "pista";
  enlazar();
  EXPECT_EQ(texto1->text(), "12,5");  // a text of the program stays as it is
  EXPECT_FALSE(texto2->isEnabled());
  EXPECT_TRUE(widget<QCheckBox>("Check1")->isHidden());
  EXPECT_TRUE(widget<QRadioButton>("Option1")->isChecked());
  EXPECT_DOUBLE_EQ(widget<QProgressBar>("Bar1")->value() / double(widget<QProgressBar>("Bar1")->maximum()), 0.5);
  EXPECT_EQ(widget<QLabel>("Barra_panel1")->text(), "pista");

  v.Caption = "Otra";
  v.Label1.Caption = "Tirante (m):";
  v.Option2.Value = true;
  v.Check1.Value = true;
  v.Combo1.List = std::vector<std::string>{"2", "2.5", "3"};
  v.Combo1.ListIndex = 2;
  v.Text2.ToolTipText = "0 < Z2 < 2";
  EXPECT_EQ(vista.windowTitle(), "Otra");
  EXPECT_EQ(rotulo->text(), "Tirante (m):");
  EXPECT_EQ(texto1->accessibleName(), "Datos: Tirante (m)");
  EXPECT_TRUE(widget<QRadioButton>("Option2")->isChecked());
  EXPECT_TRUE(widget<QCheckBox>("Check1")->isChecked());
  EXPECT_EQ(widget<QComboBox>("Combo1")->currentText(), "3");
  EXPECT_EQ(texto2->toolTip(), "0 < Z2 < 2");
}

TEST_F(EnlaceBanco, LoQueElUsuarioHaceLlegaUnaVez) {
  enlazar();
  std::vector<std::string> hecho;
  v.Text2.Change = [&] { hecho.push_back("Change " + v.Text2.Text.valor()); };
  v.Option2.Click = [&] { hecho.push_back("Option2"); };
  v.Check1.Click = [&] { hecho.push_back(v.Check1.Value ? "marca" : "sin marca"); };
  v.Combo1.Click = [&] { hecho.push_back(v.Combo1.Text()); };
  v.UpDown1.UpClick = [&] { hecho.push_back("sube " + std::to_string(v.UpDown1.Value.valor())); };
  v.UpDown1.DownClick = [&] { hecho.push_back("baja " + std::to_string(v.UpDown1.Value.valor())); };
  v.Command1.Click = [&] { hecho.push_back("Command1"); };
  QTest::keyClicks(texto2, "2,5");
  QTest::mouseClick(widget<QRadioButton>("Option2"), Qt::LeftButton, {}, QPoint(8, 8));
  QTest::mouseClick(widget<QRadioButton>("Option2"), Qt::LeftButton, {}, QPoint(8, 8));  // was on already
  QTest::mouseClick(widget<QCheckBox>("Check1"), Qt::LeftButton, {}, QPoint(8, 8));
  QTest::keyClick(widget<QComboBox>("Combo1"), Qt::Key_Down);
  for (int i = 0; i < 3; ++i) QTest::mouseClick(widget<QToolButton>("UpDown1_subir"), Qt::LeftButton);
  QTest::mouseClick(widget<QToolButton>("UpDown1_bajar"), Qt::LeftButton);
  QTest::mouseClick(widget<QPushButton>("Command1"), Qt::LeftButton);
  QTest::keyClick(texto2, Qt::Key_Return);
  EXPECT_EQ(hecho, (std::vector<std::string>{"Change 2", "Change 2.", "Change 2.5", "Option2", "marca", "dos", "sube 2",
                                             "sube 3", "sube 3", "baja 2", "Command1", "Command1"}));
  EXPECT_EQ(texto2->text(), "2.5");

  hecho.clear();
  v.Command1.Enabled = false;  // the default button of the Return key
  QTest::keyClick(texto2, Qt::Key_Return);
  EXPECT_TRUE(hecho.empty());
  v.Text2.KeyReturn = [&] { hecho.push_back("Return"); };
  QTest::keyClick(texto2, Qt::Key_Return);
  EXPECT_EQ(hecho, (std::vector<std::string>{"Return"}));
}

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

TEST_F(EnlaceBanco, LaComaPegadaSeVuelvePunto) {
  enlazar();
  for (const auto& [pegado, leido] : std::vector<std::pair<QString, QString>>{
           {"2,5", "2.5"}, {"1.234,56", "1234.56"}, {"1,234.56", "1234.56"}, {"-0,75", "-0.75"}, {"12.5", "12.5"}}) {
    v.Text2.Text = std::string();
    QGuiApplication::clipboard()->setText(pegado);
    texto2->setFocus();
    texto2->paste();
    EXPECT_EQ(texto2->text(), leido) << deQt(pegado);
    EXPECT_EQ(v.Text2.Text.valor(), deQt(leido));
  }
  // typing goes on where it was
  v.Text2.Text = std::string("27");
  texto2->setCursorPosition(1);
  QTest::keyClicks(texto2, ",1");
  EXPECT_EQ(texto2->text(), "2.17");
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
}

TEST_F(EnlaceBanco, LoQueNoEsTodoNumeroSeMarcaVengaComoVenga) {
  v.Text2.ToolTipText = "0 < Z < 2";
  enlazar();
  const auto pegar = [&](const char* t) {
    QGuiApplication::clipboard()->setText(t);
    texto2->selectAll();
    texto2->paste();
  };
  const auto teclear = [&](const char* t) {
    texto2->clear();
    QTest::keyClicks(texto2, t);
  };
  const auto escribir = [&](const char* t) { v.Text2.Text = std::string(t); };
  const QColor limpio = texto2->palette().color(QPalette::Base);
  const struct {
    const char* texto;
    const char* tecleado;
    const char* aviso;  ///< of what is typed and pasted
    const char* avisoEscrito;
  } casos[] = {
      {"2.5", "2.5", "", ""},
      {"2,5", "2.5", "", "Se lee 2"},
      {"1,250.50", "1250.50", "", "Se lee 1"},
      {"1.250,50", "1250.50", "", "Se lee 1.25"},
      {"1,250,300.5", "1250300.5", "", "Se lee 1"},
      {"1.250.50", "1.250.50", "Se lee 1.25", "Se lee 1.25"},
      {"2.5 m3/s", "2.5 m3/s", "Se lee 2.5", "Se lee 2.5"},
      {"abc", "abc", "Se lee 0", "Se lee 0"},
      {"1e999", "1e999", "Número demasiado grande", "Número demasiado grande"},
      {"", "", "", ""},
  };
  for (const auto& c : casos)
    for (const auto& [poner, leido, aviso] :
         std::vector<std::tuple<std::function<void(const char*)>, const char*, std::string>>{
             {teclear, c.tecleado, c.aviso}, {pegar, c.tecleado, c.aviso}, {escribir, c.texto, c.avisoEscrito}}) {
      poner(c.texto);
      EXPECT_EQ(deQt(texto2->text()), leido) << c.texto;
      EXPECT_EQ(deQt(texto2->toolTip()), aviso.empty() ? "0 < Z < 2" : aviso) << c.texto;
      EXPECT_EQ(deQt(texto2->accessibleDescription()), aviso) << c.texto;
      EXPECT_EQ(texto2->palette().color(QPalette::Base) == limpio, aviso.empty()) << c.texto;
    }
}

TEST_F(EnlaceBanco, ElFocoEligeTodo) {
  enlazar();
  v.Text2.Text = std::string("345");
  texto1->setFocus(Qt::OtherFocusReason);
  QTest::keyClick(texto1, Qt::Key_Tab);
  EXPECT_EQ(texto2->selectedText(), "345");
  QTest::keyClicks(texto2, "6");
  EXPECT_EQ(v.Text2.Text.valor(), "6");
  // a click that brings the focus selects, the next one only moves the cursor
  v.Text1.Text = std::string("niño");
  QTest::mouseClick(texto1, Qt::LeftButton, {}, QPoint(6, texto1->height() / 2));
  EXPECT_EQ(texto1->selectedText(), QStringLiteral("niño"));
  EXPECT_EQ(v.Text1.SelLength, 5);  // bytes of the control's text
  QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 50);
  QTest::mouseClick(texto1, Qt::LeftButton, {}, QPoint(6, texto1->height() / 2));
  EXPECT_FALSE(texto1->hasSelectedText());
  EXPECT_EQ(v.Text1.SelLength, 0);
  v.Text1.Enabled = false;  // another property leaves cursor and selection alone
  v.Text1.Enabled = true;
  EXPECT_FALSE(texto1->hasSelectedText());
}

TEST_F(EnlaceBanco, UnaLetraConAltNoBorraElNumeroElegido) {
  enlazar();
  texto1->setFocus();
  texto1->selectAll();
  QTest::keyClick(texto1, Qt::Key_A, Qt::AltModifier);
  EXPECT_EQ(deQt(texto1->text()), "12,5");
  // what the key beside the space bar types on a Spanish keyboard stays
  QKeyEvent arroba(QEvent::KeyPress, Qt::Key_At, Qt::GroupSwitchModifier, "@");
  QCoreApplication::sendEvent(texto1, &arroba);
  EXPECT_EQ(deQt(texto1->text()), "@");
}

TEST_F(EnlaceBanco, LoQueUnManejadorLanzaSeDiceYElProgramaSigueHastaQueSeSuelta) {
  int pasos = 0;
  v.Text2.MouseMove = [&] { ++pasos; };
  enlazar();
  v.Command1.Click = [] { throw std::runtime_error("roto"); };
  QTest::mouseClick(widget<QPushButton>("Command1"), Qt::LeftButton);
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
