// Every window of the program finds its widgets, and every widget that can be worked its control.
#include <gtest/gtest.h>
#include <set>

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSlider>
#include <QSpinBox>
#include <QTableView>

#include "apoyo/dialogos_guion.h"
#include "plataforma/ventana_datos.h"
#include "qt/boceto.h"
#include "qt/cadena.h"
#include "qt/programa.h"
#include "qt/vista_lienzo.h"

namespace calvento {
namespace {

/// What is typed after a field is entered takes the place of what stands there.
void entrarEnCadaCampo(QMainWindow& vista) {
  for (QLineEdit* campo : vista.findChildren<QLineEdit*>(QRegularExpression("^Text"))) {
    if (!campo->isEnabled() || campo->isReadOnly()) continue;
    campo->setText("12");
    campo->deselect();
    QFocusEvent foco(QEvent::FocusIn, Qt::OtherFocusReason);
    QCoreApplication::sendEvent(campo, &foco);
    EXPECT_EQ(campo->selectedText(), "12") << deQt(campo->objectName()) << " is not selected by its focus";
  }
}

class VentanaCompleta : public testing::TestWithParam<std::string> {};

TEST_P(VentanaCompleta, SeEnlazaConSuDiseno) {
  DialogosGuion dialogos;
  Programa programa(dialogos);
  // reports need a design, and those of the drops what only these have
  programa.aplicacion.cargar<VentanaDatos>("Form10")->abrir(RAIZ_PROYECTO "/ejemplos/04-tres-tramos.cvr");
  programa.aplicacion.estado.bEntradaCaida = programa.aplicacion.estado.bPozaCaida = 2;
  Ventana* ventana = programa.aplicacion.cargar(GetParam());
  ASSERT_NE(ventana, nullptr) << "no class";
  QMainWindow vista;
  ventanaUi(GetParam())->construir(vista);
  try {
    Enlace enlace(*ventana, vista, [](const std::string& texto) { ADD_FAILURE() << texto; });
    entrarEnCadaCampo(vista);
    enlace.soltar();
  } catch (const FalloEnlace& fallo) {
    FAIL() << fallo.what();
  }
  if (dynamic_cast<VentanaDatos*>(ventana) == nullptr) {  // a data window bears the name of its project
    EXPECT_EQ(deQt(vista.windowTitle()), ventana->Caption.valor());
  }
  const bool conUnidades = std::set<std::string>{"Form10", "Form1", "Form16", "Form2", "Form25"}.contains(GetParam());
  const QRegularExpression unidad(conUnidades ? R"( \((m³/s|m|m/m|%|grados)\)$|, sin unidad$)" : ".");
  for (const QLineEdit* campo : vista.findChildren<QLineEdit*>())
    EXPECT_TRUE(unidad.match(campo->accessibleName()).hasMatch())
        << deQt(campo->objectName() + " says to a screen reader: " + campo->accessibleName());
  for (const QWidget* hijo : vista.findChildren<QWidget*>()) {
    const auto* b = dynamic_cast<const Boceto*>(hijo);
    EXPECT_TRUE(b == nullptr || b->sizeHint().isValid()) << deQt(hijo->objectName()) << " has no drawing";
  }
  // it fits the area that the main window leaves on the screen of a small portable computer
  const QSize entera = vista.sizeHint().expandedTo(vista.minimumSizeHint());
  EXPECT_LE(entera.width(), 1318);
  EXPECT_LE(entera.height(), 636);
}

std::vector<std::string> nombres() {
  std::vector<std::string> todos;
  for (const VentanaUi& v : ventanasUi()) todos.emplace_back(v.nombre);
  return todos;
}

INSTANTIATE_TEST_SUITE_P(Todas, VentanaCompleta, testing::ValuesIn(nombres()),
                         [](const auto& caso) { return caso.param; });

TEST(EnlaceCompleto, CadaVentanaDelProgramaTieneSuDiseno) {
  DialogosGuion dialogos;
  const Programa programa(dialogos);
  for (const std::string_view nombre : programa.aplicacion.nombres()) EXPECT_NE(ventanaUi(nombre), nullptr) << nombre;
}

/// A window whose design lacks two of its controls, has one of another kind, and brings a field too many.
struct Manca : Ventana {
  Manca() : Ventana("Manca") {}
  TextBox Text1{*this, "Text1"};
  TextBox Text2{*this, "Text2"};
  CommandButton Command1{*this, "Command1"};
  Toolbar Toolbar1{*this, "Toolbar1", {"nada"}};
};

TEST(EnlaceIncompleto, NombraTodoLoQueFalta) {
  Manca ventana;
  QMainWindow vista;
  for (const char* nombre : {"Text1", "Command1", "Text9"})
    (new QLineEdit(&vista))->setObjectName(QLatin1String(nombre));
  std::vector<std::string> solos{"Command1", "Text9"};
  // each kind that can be worked, none of its own parts
  for (QWidget* w : std::initializer_list<QWidget*>{new QPlainTextEdit, new QTextEdit, new QRadioButton, new QComboBox,
                                                    new QSpinBox, new QSlider, new QTableView, new VistaLienzo}) {
    w->setParent(&vista);
    solos.push_back("(" + std::string(w->metaObject()->className()) + " sin nombre)");
  }
  solos.emplace_back("mnsuelto");
  (new QAction(&vista))->setObjectName("mnsuelto");
  try {
    const Enlace enlace(ventana, vista, nullptr);
    FAIL() << "joined";
  } catch (const FalloEnlace& fallo) {
    EXPECT_EQ(fallo.controlesSolos(), (std::vector<std::string>{"Text2", "Command1", "Toolbar1"}));
    EXPECT_EQ(fallo.widgetsSolos(), solos);
    EXPECT_TRUE(
        std::string(fallo.what())
            .starts_with("Manca:\ncontroles sin widget: Text2 Command1 Toolbar1\nwidgets sin control: Command1 Text9"));
  }
  ventana.Text1.Text = "1";  // nothing of the failed joint is left behind
}

}  // namespace
}  // namespace calvento
