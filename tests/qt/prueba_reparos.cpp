// Fields that are not what was meant, on the windows of the program: marked, and found again after the box.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include "apoyo/carpeta_prueba.h"
#include "apoyo/dialogos_guion.h"
#include "apoyo/mesa.h"
#include "plataforma/ventana_datos.h"
#include "qt/cadena.h"
#include "qt/programa.h"

namespace calvento {
namespace {

/// Looks at the fields while a box stands.
class DialogosMirones : public DialogosGuion {
 public:
  std::function<void()> mirar;
  void fallo(const std::string& texto) override {
    DialogosGuion::fallo(texto);
    disparar(mirar);
  }
};

class Reparos : public testing::Test {
 protected:
  QMainWindow& abierta(const char* nombre) {
    programa.aplicacion.arrancar();
    EXPECT_TRUE(QTest::qWaitFor([&] { return programa.sistema.vista("frmAbout") != nullptr; }));
    programa.aplicacion.descargar(*programa.aplicacion.cargar("frmAbout"));
    programa.aplicacion.mostrar(nombre);
    QTest::qWait(0);
    return *programa.sistema.vista(nombre);
  }
  static QLineEdit& campo(QMainWindow& vista, const char* nombre) {
    auto* w = vista.findChild<QLineEdit*>(QLatin1String(nombre));
    if (w == nullptr) throw std::runtime_error(nombre);
    return *w;
  }
  /// "Text6: what its tooltip says" of all fields that are marked, in the order of the window's children.
  static std::vector<std::string> marcados(QMainWindow& vista) {
    std::vector<std::string> todos;
    for (const QLineEdit* c : vista.findChildren<QLineEdit*>())
      if (!c->accessibleDescription().isEmpty()) todos.push_back(deQt(c->objectName() + ": " + c->toolTip()));
    std::sort(todos.begin(), todos.end());
    return todos;
  }
  void pulsarOK(QMainWindow& vista) {
    QTest::mouseClick(vista.findChild<QPushButton*>("Command3"), Qt::LeftButton);
    QTest::qWait(0);
  }

  DialogosMirones dialogos;
  Programa programa{dialogos};
};

using Textos = std::vector<std::string>;

TEST_F(Reparos, TrasElFalloElFocoEstaEnElPrimerDatoDudoso) {
  QMainWindow& v = abierta("Form10");
  programa.aplicacion.abrirProyecto(RAIZ_PROYECTO "/ejemplos/04-tres-tramos.cvr");
  EXPECT_EQ(marcados(v), Textos());
  const std::string antes = deQt(campo(v, "Text12").toolTip());
  campo(v, "Text8").setText("0.014.");
  campo(v, "Text12").setText("-0.015");
  campo(v, "Text9").setText("");
  campo(v, "Text25").setText("0");  // a station may be 0
  EXPECT_EQ(marcados(v), (Textos{"Text8: Se lee 0.014"})) << "an empty field may still be filled";

  Textos conLaCaja;
  dialogos.mirar = [&] { conLaCaja = marcados(v); };
  dialogos.esperaFallo(falloDivision);
  pulsarOK(v);
  EXPECT_EQ(conLaCaja, (Textos{"Text12: Debe ser mayor que 0", "Text8: Se lee 0.014", "Text9: Falta este dato"}));
  EXPECT_EQ(deQt(QApplication::focusWidget()->objectName()), "Text8");
  QTest::keyClicks(&campo(v, "Text8"), "0.014");
  QTest::keyClicks(&campo(v, "Text12"), "2");
  EXPECT_EQ(marcados(v), (Textos{"Text9: Falta este dato"}));
  EXPECT_EQ(deQt(campo(v, "Text12").toolTip()), antes);

  // a bottom width of 0 has a sense beside a side slope only
  campo(v, "Text12").setText("0.015");
  campo(v, "Text9").setText("0.001");
  campo(v, "Text16").setText("0");
  campo(v, "Text18").setText("0");
  dialogos.esperaFallo();
  pulsarOK(v);
  EXPECT_EQ(marcados(v), (Textos{"Text16: No puede ser 0 a la vez que Aguas abajo: Talud(Z)"}));
  campo(v, "Text18").setText("1");
  dialogos.tolera(DialogosGuion::Clase::aviso);
  pulsarOK(v);
  EXPECT_EQ(marcados(v), Textos()) << "the next OK takes the marks away";
}

TEST_F(Reparos, UnParametroDudosoSeAbreEnSuPestana) {
  QMainWindow& v = abierta("Form16");
  programa.aplicacion.abrirProyecto(RAIZ_PROYECTO "/ejemplos/21-vertical-sin-obstaculos.cvv");
  programa.aplicacion.mostrar("Form25");
  QMainWindow& p = *programa.sistema.vista("Form25");
  campo(p, "Text1").setText("5,");
  campo(p, "Text9").setText("0");
  p.findChild<QTabWidget*>("SSTab1")->setCurrentIndex(2);
  QTest::mouseClick(p.findChild<QPushButton*>("Command1"), Qt::LeftButton);
  dialogos.esperaFallo(falloDivision);
  pulsarOK(v);
  EXPECT_TRUE(p.isVisible());
  EXPECT_EQ(QApplication::focusWidget(), &campo(p, "Text9"));
  EXPECT_EQ(marcados(p), (Textos{"Text9: Debe ser mayor que 0"}));
  EXPECT_EQ(deQt(campo(p, "Text1").text()), "5.");
}

TEST_F(Reparos, LoQueTraeUnArchivoSeMarcaAlAbrir) {
  const CarpetaPrueba carpeta;
  std::string lineas = "2,5\n";
  for (int i = 1; i < 37; ++i) lineas += i == 30 ? "0.20 m\n" : "1\n";
  QMainWindow& v = abierta("Form10");
  programa.aplicacion.mostrar("Form2");
  for (const auto clase : {DialogosGuion::Clase::aviso, DialogosGuion::Clase::fallo, DialogosGuion::Clase::pregunta})
    dialogos.tolera(clase);
  programa.aplicacion.abrirProyecto(carpeta.escribir("coma.cvr", lineas));
  EXPECT_EQ(marcados(v), (Textos{"Text5: Se lee 2"}));
  EXPECT_EQ(marcados(*programa.sistema.vista("Form2")), (Textos{"Text5: Se lee 0.2"}));
  // a calculator, and its results, which are no fields of the user's
  programa.aplicacion.mostrar("Form15");
  QMainWindow& c = *programa.sistema.vista("Form15");
  QTest::keyClicks(&campo(c, "Text1"), "1..5");
  EXPECT_EQ(marcados(c), (Textos{"Text1: Se lee 1"}));
}

std::string leido(const QObject* objeto, QAccessible::Text que) {
  return deQt(QAccessible::queryAccessibleInterface(const_cast<QObject*>(objeto))->text(que));
}

TEST_F(Reparos, LosResultadosDicenQueSonYCuantoValen) {
  const struct {
    const char* ejemplo;
    const char* ventana;
    const char* rotulo;
    const char* nombre;
    const char* unidad;
    const char* hoja;  ///< another window, which the design opens; empty: the data window itself
  } casos[] = {
      {"03-dos-tramos.cvr", "Form10", "Label27", "Sobre elevación en la sección de control", " m", ""},
      {"03-dos-tramos.cvr", "Form10", "Label35", "Ahogamiento que iguala los niveles de agua a la salida", "", ""},
      {"14-inclinada-llegada-rapida.cvi", "Form1", "Label41", "Régimen del canal aguas arriba", "", ""},
      {"21-vertical-sin-obstaculos.cvv", "Form16", "Label48", "Sobre elevación en la sección de control", " m", ""},
      {"06-canal-principal-usbr-iii.cvr", "Form10", "Label5", "Altura del bloque de rampa", " m", "Form21"},
      {"06-canal-principal-usbr-iii.cvr", "Form10", "Label3", "Número de bloques", "", "Form21"},
  };
  for (const auto clase : {DialogosGuion::Clase::aviso, DialogosGuion::Clase::pregunta}) dialogos.tolera(clase);
  for (const auto& c : casos) {
    abierta(c.ventana);
    programa.aplicacion.abrirProyecto(std::string(RAIZ_PROYECTO "/ejemplos/") + c.ejemplo);
    if (*c.hoja != '\0') programa.aplicacion.mostrar(c.hoja);
    const auto* etiqueta = programa.sistema.vista(*c.hoja != '\0' ? c.hoja : c.ventana)->findChild<QLabel*>(c.rotulo);
    auto* accesible = QAccessible::queryAccessibleInterface(const_cast<QLabel*>(etiqueta));
    const std::string texto = deQt(etiqueta->text());
    ASSERT_FALSE(texto.empty()) << c.rotulo;
    EXPECT_EQ(leido(etiqueta, QAccessible::Name), c.nombre);
    EXPECT_EQ(leido(etiqueta, QAccessible::Value), texto + c.unidad) << c.rotulo;
    ASSERT_NE(accesible->textInterface(), nullptr);
    EXPECT_EQ(deQt(accesible->textInterface()->text(0, 200)), texto + c.unidad);
    EXPECT_TRUE(accesible->state().readOnly);
  }
}

TEST_F(Reparos, CadaCampoDeDatosDiceSuUnidad) {
  const std::vector<std::string> unidades = {" (m³/s)", " (m)", " (m/m)", " (%)", " (grados)", ", sin unidad"};
  for (const char* nombre : {"Form10", "Form1", "Form16", "Form2", "Form25"}) {
    QMainWindow& v = abierta(nombre);
    for (const QLineEdit* c : v.findChildren<QLineEdit*>()) {
      const std::string dicho = leido(c, QAccessible::Name);
      EXPECT_EQ(
          std::count_if(unidades.begin(), unidades.end(), [&](const std::string& u) { return dicho.ends_with(u); }), 1)
          << nombre << '.' << deQt(c->objectName()) << ": " << dicho;
    }
  }
  EXPECT_EQ(leido(&campo(abierta("Form2"), "Text6"), QAccessible::Name), "Bordo libre: En canal de rampa (m)");
}

}  // namespace
}  // namespace calvento
