// The faces of the drops' windows, changed as a user does: by menu, option and key, on the real widgets.
#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QTabWidget>
#include <QTest>

#include "apoyo/dialogos_guion.h"
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
  static void pulsar(QMainWindow& vista, const char* opcion) {
    QTest::mouseClick(&w(vista, opcion), Qt::LeftButton, {}, QPoint(8, w(vista, opcion).height() / 2));
  }

  DialogosGuion dialogos;
  Programa programa{dialogos};
};

TEST_F(Caras, ElMenuCambiaElRegimenDeLaCaidaInclinada) {
  QMainWindow& v = abierta("Form1");
  auto* regimen = v.findChild<QAction*>(QStringLiteral("mnsuper"));
  ASSERT_NE(regimen, nullptr);
  ASSERT_TRUE(regimen->isCheckable());
  for (const bool super : {false, true, false}) {
    SCOPED_TRACE(super);
    EXPECT_EQ(regimen->isChecked(), super);
    for (const char* n : {"LineasControl", "Frame1", "Label62", "Label19"}) EXPECT_EQ(w(v, n).isHidden(), super) << n;
    for (const char* n : {"LineasSuper", "Label35", "Label45"}) EXPECT_EQ(w(v, n).isHidden(), !super) << n;
    // what the calculation fills cannot be typed, and looks so
    for (const char* n : {"Text4", "Text20"}) {
      EXPECT_EQ(w(v, n).isEnabled(), !super) << n;
      EXPECT_EQ(w(v, n).palette().color(QPalette::Base) == w(v, "Text2").palette().color(QPalette::Base), !super) << n;
    }
    regimen->trigger();
  }
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
  }
}

TEST_F(Caras, LasOpcionesDeLaCaidaVerticalCambianLoQueSePide) {
  QMainWindow& v = abierta("Form16");
  const auto cara = [&] {
    std::string s = w(v, "Bloques").isHidden() ? "" : "bloques ";
    for (const char* n : {"Label32", "Label24"}) s += deQt(dynamic_cast<QLabel&>(w(v, n)).text()) + " ";
    return s + (programa.aplicacion.estado.tipoTanque == 0 ? "0" : "1");
  };
  pulsar(v, "Option2");
  EXPECT_EQ(cara(), "bloques L1+L2 L3 0");
  pulsar(v, "Option1");
  EXPECT_EQ(cara(), "Ld Lr 1");

  QMainWindow& aire = abierta("Form25");
  dynamic_cast<QTabWidget&>(w(aire, "SSTab1")).setCurrentIndex(2);
  for (const auto& [opcion, tubos] : {std::pair{"Option4", true}, {"Option3", false}}) {
    pulsar(aire, opcion);
    for (const char* n : {"Text2", "Label4"}) EXPECT_EQ(w(aire, n).isEnabled(), !tubos) << n;
    for (const char* n : {"Combo1", "Label27", "Text10", "Label50", "Label52", "Combo2", "Label53"})
      EXPECT_EQ(w(aire, n).isEnabled(), tubos) << n;
    EXPECT_EQ(programa.aplicacion.estado.tipoTransVert, tubos ? 1 : 0);
  }
}

}  // namespace
}  // namespace calvento
