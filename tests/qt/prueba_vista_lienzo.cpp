#include <memory>

#include <QImage>
#include <QPalette>
#include <QTest>

#include "apoyo/navegador_mudo.h"
#include "apoyo/tablas.h"
#include "dibujo/form3.h"
#include "pantalla.h"
#include "plataforma/lienzo.h"
#include "plataforma/ventana.h"
#include "qt/vista_lienzo.h"

namespace calvento {
namespace {

struct VentanaPrueba : Ventana {
  VentanaPrueba() : Ventana("VentanaPrueba") {
    Lienzo& l = GRAF.lienzo;
    l.Scale(0, 10, 20, 0);
    l.FillStyle = EstiloRelleno::solido;
    l.FillColor = color::azulClaro;
    l.Polygon({{0, 0}, {10, 0}, {10, 5}, {0, 5}});
  }
  PictureBox GRAF{*this, "GRAF", 200, 100};
};

/// A canvas of 20 by 10, its lower left quarter blue, on a dark desktop.
class EnPantalla : public testing::Test {
 protected:
  void mostrar(PictureBox& caja, int ancho, int alto) {
    vista->setPalette(QPalette(Qt::black));
    vista->resize(ancho, alto);
    vista->mostrar(caja);
    vista->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(vista.get()));
  }
  QColor punto(int x, int y) { return enPantalla(*vista).pixelColor(x, y); }
  std::unique_ptr<VentanaPrueba> v = std::make_unique<VentanaPrueba>();
  std::unique_ptr<VistaLienzo> vista = std::make_unique<VistaLienzo>();
};
const QColor azul(0, 0, 255), blanco(Qt::white);

TEST_F(EnPantalla, MuestraYRepiteElDibujoEnPapelBlanco) {
  mostrar(v->GRAF, 200, 100);
  EXPECT_EQ(punto(50, 75), azul);
  EXPECT_EQ(punto(50, 25), blanco);
  EXPECT_EQ(punto(150, 75), blanco);
  v->GRAF.lienzo.FillColor = color::verde;
  v->GRAF.lienzo.Polygon({{10, 5}, {20, 5}, {20, 10}, {10, 10}});
  EXPECT_EQ(punto(150, 25), QColor(0, 255, 0));

  // the rubber box lies above the drawing and goes without a trace
  const QImage sin = enPantalla(*vista);
  v->GRAF.recuadro = {true, {12, 8}, {18, 6}};
  const QImage con = enPantalla(*vista);
  EXPECT_NE(con, sin);
  EXPECT_EQ(con.copy(0, 0, 110, 100), sin.copy(0, 0, 110, 100));
  v->GRAF.recuadro = {};
  EXPECT_EQ(enPantalla(*vista), sin);
}

TEST_F(EnPantalla, OtroTamanoSeAvisaYSinAvisoSeGuardanLasProporciones) {
  mostrar(v->GRAF, 400, 400);  // the canvas, 400 by 200, stands in the middle
  EXPECT_EQ(punto(100, 250), azul);
  EXPECT_EQ(punto(100, 350), blanco);
  int avisos = 0;
  v->GRAF.Resize = [&](int ancho, int alto) {
    ++avisos;
    v->GRAF.lienzo.redimensionar(ancho, alto);
  };
  vista->resize(600, 300);
  EXPECT_EQ(avisos, 1);
  EXPECT_EQ(v->GRAF.lienzo.anchoPixeles(), 600);
  EXPECT_EQ(punto(150, 225), azul);
}

TEST_F(EnPantalla, SobreviveALaVentanaQueMuestraYAlReves) {
  mostrar(v->GRAF, 200, 100);
  v.reset();
  vista->resize(300, 100);
  EXPECT_EQ(punto(50, 75), blanco);

  VentanaPrueba otra;
  vista->mostrar(otra.GRAF);
  vista.reset();
  otra.GRAF.lienzo.Cls();
}

TEST_F(EnPantalla, UnaCajaArrastradaAmpliaElDibujoDeLaRapida) {
  DesignState estado = registro("rapida");
  NavegadorMudo navegador;
  const Form2 parametros(navegador);
  Form3 dibujo(estado, parametros, navegador);
  mostrar(dibujo.GRAF, 1000, 600);
  ASSERT_EQ(dibujo.GRAF.lienzo.anchoPixeles(), 1000) << "the drawing fills the widget";
  const EscalaLienzo antes = dibujo.GRAF.lienzo.escala();
  const double metro = antes.ancho / 1000;
  QTest::mousePress(vista.get(), Qt::LeftButton, {}, QPoint(600, 450));
  QTest::mouseMove(vista.get(), QPoint(500, 350));
  QTest::mouseRelease(vista.get(), Qt::LeftButton, {}, QPoint(400, 300));
  const EscalaLienzo& e = dibujo.GRAF.lienzo.escala();
  // 200 by 150 pixels of a canvas of 10 by 6: the height decides
  EXPECT_NEAR(-e.alto, 150 * metro, 1e-4);
  EXPECT_NEAR(e.ancho, 250 * metro, 1e-4);
  EXPECT_NEAR(e.izquierda + e.ancho / 2, antes.izquierda + 500 * metro, 1e-4);
  EXPECT_NEAR(e.arriba, antes.arriba - 300 * metro, 1e-4);
  // a click alone changes nothing
  QTest::mouseClick(vista.get(), Qt::LeftButton, {}, QPoint(10, 10));
  EXPECT_NEAR(dibujo.GRAF.lienzo.ScaleWidth(), 250 * metro, 1e-4);
}

}  // namespace
}  // namespace calvento
