// The faces of the drops' windows, changed as a user does: by menu, option and key, on the real widgets.
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

#include "apoyo/dialogos_guion.h"
#include "qt/boceto.h"
#include "qt/cadena.h"
#include "qt/programa.h"

namespace calvento {
namespace {

class Caras : public testing::Test {
 protected:
  QMainWindow& abierta(const char* nombre) {
    programa.aplicacion.mostrar(nombre);
    QMainWindow* vista = programa.sistema.vista(nombre);
    if (vista == nullptr) throw std::runtime_error("no window");
    return *vista;
  }
  static QWidget& w(QMainWindow& vista, const char* nombre) {
    auto* widget = vista.findChild<QWidget*>(QLatin1String(nombre));
    if (widget == nullptr) throw std::runtime_error(std::string("no ") + nombre);
    return *widget;
  }
  static void teclear(QMainWindow& vista, const char* campo, const char* texto) {
    auto& linea = dynamic_cast<QLineEdit&>(w(vista, campo));
    linea.selectAll();
    QTest::keyClicks(&linea, QLatin1String(texto));
  }
  static void pulsar(QMainWindow& vista, const char* opcion) {
    QTest::mouseClick(&w(vista, opcion), Qt::LeftButton, {}, QPoint(8, w(vista, opcion).height() / 2));
  }
  static void canalArriba(QMainWindow& vista, const char* pendiente) {
    teclear(vista, "Text5", "1");
    teclear(vista, "Text6", "1");
    teclear(vista, "Text7", "0");
    teclear(vista, "Text8", "0.015");
    teclear(vista, "Text9", pendiente);
    teclear(vista, "Text23", "1.4");
  }
  static std::vector<std::string> visibles(QMainWindow& vista, std::initializer_list<const char*> nombres) {
    std::vector<std::string> si;
    for (const char* n : nombres)
      if (!w(vista, n).isHidden()) si.emplace_back(n);
    return si;
  }

  DialogosGuion dialogos;
  Programa programa{dialogos};
};

using Nombres = std::vector<std::string>;

TEST_F(Caras, ElMenuCambiaElRegimenDeLaCaidaInclinada) {
  QMainWindow& v = abierta("Form1");
  const auto capas = {"LineasControl", "Frame1", "Label62", "Label19", "LineasSuper", "Label35", "Label45"};
  const Nombres subcritica{"LineasControl", "Frame1", "Label62", "Label19"};
  const Nombres supercritica{"LineasSuper", "Label35", "Label45"};
  EXPECT_EQ(visibles(v, capas), subcritica);

  auto* regimen = v.findChild<QAction*>(QStringLiteral("mnsuper"));
  ASSERT_NE(regimen, nullptr);
  EXPECT_TRUE(regimen->isCheckable() && !regimen->isChecked());
  regimen->trigger();
  EXPECT_TRUE(regimen->isChecked());
  EXPECT_EQ(visibles(v, capas), supercritica);
  // what the calculation fills cannot be typed, and looks so
  for (const char* campo : {"Text4", "Text20"}) {
    EXPECT_FALSE(w(v, campo).isEnabled()) << campo;
    EXPECT_NE(w(v, campo).palette().color(QPalette::Base), w(v, "Text2").palette().color(QPalette::Base)) << campo;
  }
  regimen->trigger();
  EXPECT_FALSE(regimen->isChecked());
  EXPECT_EQ(visibles(v, capas), subcritica);
  EXPECT_TRUE(w(v, "Text4").isEnabled() && w(v, "Text20").isEnabled());
}

TEST_F(Caras, UnCanalRapidoQuitaLaSeccionDeControlMientrasSeTeclea) {
  QMainWindow& v = abierta("Form1");
  canalArriba(v, "0.001");
  EXPECT_FALSE(w(v, "Frame1").isHidden());
  EXPECT_FALSE(dynamic_cast<QLabel&>(w(v, "Label27")).text().isEmpty());
  teclear(v, "Text9", "0.02");
  EXPECT_TRUE(w(v, "Frame1").isHidden());
  EXPECT_EQ(visibles(v, {"LineasControl", "LineasSuper", "Label7", "Label45"}), Nombres{});
  EXPECT_EQ(deQt(dynamic_cast<QLabel&>(w(v, "Label41")).text()), "FLUJO SUPER CRITICO, EN CANAL AGUAS ARRIBA");
}

TEST_F(Caras, LasCapasCubrenElBocetoYNoTapanLosCampos) {
  for (const auto& [ventana, capas] :
       {std::pair{"Form1", std::vector{"LineasControl", "LineasSuper"}}, std::pair{"Form16", std::vector{"Bloques"}}}) {
    QMainWindow& v = abierta(ventana);
    QWidget& hoja = w(v, "boceto");
    const QObjectList hijos = hoja.children();
    for (const char* capa : capas) {
      EXPECT_EQ(w(v, capa).geometry(), hoja.rect()) << capa;
      for (const char* dato : {"cajaControl", "Frame2", "Frame6"})
        EXPECT_LT(hijos.indexOf(&w(v, capa)), hijos.indexOf(&w(v, dato))) << capa << " lies over " << dato;
    }
    for (const QWidget* hijo : v.findChildren<QWidget*>()) {
      const auto* b = dynamic_cast<const Boceto*>(hijo);
      EXPECT_TRUE(b == nullptr || b->sizeHint().isValid()) << deQt(hijo->objectName()) << " has no drawing";
    }
    const QSize ventanaEntera = v.sizeHint().expandedTo(v.minimumSizeHint());
    EXPECT_LE(ventanaEntera.width(), 1318);
    EXPECT_LE(ventanaEntera.height(), 636);
  }
}

TEST_F(Caras, LaOpcionConObstaculosMuestraLosBloques) {
  QMainWindow& v = abierta("Form16");
  const auto texto = [&](const char* n) { return deQt(dynamic_cast<QLabel&>(w(v, n)).text()); };
  EXPECT_TRUE(w(v, "Bloques").isHidden());
  EXPECT_EQ(texto("Label32") + " " + texto("Label24"), "Ld Lr");
  pulsar(v, "Option2");
  EXPECT_FALSE(w(v, "Bloques").isHidden());
  EXPECT_EQ(texto("Label32") + " " + texto("Label24"), "L1+L2 L3");
  EXPECT_EQ(programa.aplicacion.estado.tipoTanque, 0);
  pulsar(v, "Option1");
  EXPECT_TRUE(w(v, "Bloques").isHidden());
  EXPECT_FALSE(dynamic_cast<QRadioButton&>(w(v, "Option2")).isChecked());
  EXPECT_EQ(programa.aplicacion.estado.tipoTanque, 1);
}

TEST_F(Caras, LosAgujerosDeVentilacionHabilitanSusDatos) {
  abierta("Form16");
  QMainWindow& v = abierta("Form25");
  dynamic_cast<QTabWidget&>(w(v, "SSTab1")).setCurrentIndex(2);
  const auto activos = [&] {
    Nombres si;
    for (const char* n : {"Text2", "Label4", "Combo1", "Label27", "Text10", "Label50", "Label52", "Combo2", "Label53"})
      if (w(v, n).isEnabled()) si.emplace_back(n);
    return si;
  };
  const Nombres contraccion{"Text2", "Label4"};
  const Nombres tubos{"Combo1", "Label27", "Text10", "Label50", "Label52", "Combo2", "Label53"};
  EXPECT_EQ(activos(), contraccion);
  pulsar(v, "Option4");
  EXPECT_EQ(activos(), tubos);
  EXPECT_EQ(programa.aplicacion.estado.tipoTransVert, 1);
  // a diameter chosen by the keyboard is the one that the calculation reads
  QTest::keyClick(&w(v, "Combo2"), Qt::Key_End);
  EXPECT_EQ(programa.aplicacion.cargar<Form25>("Form25")->Combo2.Text(), "6");
  pulsar(v, "Option3");
  EXPECT_EQ(activos(), contraccion);
  EXPECT_EQ(programa.aplicacion.estado.tipoTransVert, 0);
}

}  // namespace
}  // namespace calvento
