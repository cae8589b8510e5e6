#include <gtest/gtest.h>
#include <memory>
#include <vector>

#include <QImage>
#include <QPalette>
#include <QTest>

#include "apoyo/navegador_mudo.h"
#include "dibujo/estado_rapida.h"
#include "dibujo/form3.h"
#include "plataforma/lienzo.h"
#include "plataforma/ventana.h"
#include "qt/vista_lienzo.h"

namespace calvento {
namespace {

struct VentanaPrueba : Ventana {
  VentanaPrueba() : Ventana("VentanaPrueba") {}
  PictureBox GRAF{*this, "GRAF", 200, 100};
};

void rellenar(Lienzo& l) {
  l.Cls();
  l.Scale(0, 10, 20, 0);
  l.FillStyle = EstiloRelleno::solido;
  l.FillColor = color::azulClaro;
  l.Polygon({{0, 0}, {10, 0}, {10, 5}, {0, 5}});
}

TEST(VistaLienzo, MuestraYRepiteElDibujoEnPapelBlanco) {
  VentanaPrueba v;
  rellenar(v.GRAF.lienzo);
  VistaLienzo vista;
  QPalette oscura;
  oscura.setColor(QPalette::Window, Qt::black);
  oscura.setColor(QPalette::Base, Qt::black);
  vista.setPalette(oscura);
  vista.resize(200, 100);
  vista.mostrar(v.GRAF);
  vista.show();
  const QImage i = vista.grab().toImage();
  EXPECT_EQ(i.pixelColor(50, 75), QColor(0, 0, 255));
  EXPECT_EQ(i.pixelColor(50, 25), QColor(Qt::white));
  EXPECT_EQ(i.pixelColor(150, 75), QColor(Qt::white));

  v.GRAF.lienzo.FillColor = color::verde;
  v.GRAF.lienzo.Polygon({{10, 5}, {20, 5}, {20, 10}, {10, 10}});
  v.GRAF.cambiado();
  EXPECT_EQ(vista.grab().toImage().pixelColor(150, 25), QColor(0, 255, 0));
}

TEST(VistaLienzo, ElPunteroLlegaEnCoordenadasDelDibujo) {
  VentanaPrueba v;
  rellenar(v.GRAF.lienzo);
  std::vector<Punto> puntos;
  v.GRAF.MouseDown = v.GRAF.MouseMoveEn = v.GRAF.MouseUp = [&](Punto p) { puntos.push_back(p); };
  VistaLienzo vista;
  vista.resize(200, 100);
  vista.mostrar(v.GRAF);
  vista.show();
  QTest::mousePress(&vista, Qt::RightButton, {}, QPoint(50, 25));
  QTest::mouseMove(&vista, QPoint(100, 50));
  QTest::mouseRelease(&vista, Qt::RightButton, {}, QPoint(150, 100));
  ASSERT_GE(puntos.size(), 2U);
  EXPECT_NEAR(puntos.front().x, 5, 1e-9);
  EXPECT_NEAR(puntos.front().y, 7.5, 1e-9);
  EXPECT_NEAR(puntos.back().x, 15, 1e-9);
  EXPECT_NEAR(puntos.back().y, 0, 1e-9);
}

TEST(VistaLienzo, OtroTamanoSeAvisaYSinAvisoSeGuardanLasProporciones) {
  VentanaPrueba v;
  rellenar(v.GRAF.lienzo);
  VistaLienzo vista;
  vista.resize(400, 400);
  vista.mostrar(v.GRAF);
  vista.show();
  QImage i = vista.grab().toImage();  // 400 by 200 in the middle
  EXPECT_EQ(i.pixelColor(100, 250), QColor(0, 0, 255));
  EXPECT_EQ(i.pixelColor(100, 350), QColor(Qt::white));

  int avisos = 0;
  v.GRAF.Resize = [&](int ancho, int alto) {
    ++avisos;
    v.GRAF.lienzo.redimensionar(ancho, alto);
  };
  vista.resize(600, 300);
  EXPECT_EQ(avisos, 1);
  EXPECT_EQ(v.GRAF.lienzo.anchoPixeles(), 600);
  i = vista.grab().toImage();
  EXPECT_EQ(i.pixelColor(150, 225), QColor(0, 0, 255));
}

TEST(VistaLienzo, ElRecuadroSePintaEncimaYDesaparece) {
  VentanaPrueba v;
  rellenar(v.GRAF.lienzo);
  VistaLienzo vista;
  vista.resize(200, 100);
  vista.mostrar(v.GRAF);
  vista.show();
  const QImage sin = vista.grab().toImage();
  v.GRAF.recuadro = {true, {12, 8}, {18, 6}};
  v.GRAF.cambiado();
  const QImage con = vista.grab().toImage();
  EXPECT_NE(con, sin);
  EXPECT_EQ(con.copy(0, 0, 110, 100), sin.copy(0, 0, 110, 100));
  v.GRAF.recuadro.visible = false;
  v.GRAF.cambiado();
  EXPECT_EQ(vista.grab().toImage(), sin);
}

TEST(VistaLienzo, SobreviveALaVentanaQueMuestra) {
  auto v = std::make_unique<VentanaPrueba>();
  rellenar(v->GRAF.lienzo);
  auto vista = std::make_unique<VistaLienzo>();
  vista->resize(200, 100);
  vista->mostrar(v->GRAF);
  vista->show();
  v.reset();
  vista->resize(300, 100);
  EXPECT_EQ(vista->grab().toImage().pixelColor(50, 75), QColor(Qt::white));

  VentanaPrueba otra;  // and the window survives its widget
  vista->mostrar(otra.GRAF);
  vista.reset();
  otra.GRAF.cambiado();
}

TEST(VistaLienzo, UnaCajaArrastradaAmpliaElDibujoDeLaRapida) {
  DesignState estado = rapidaDeMano();
  NavegadorMudo navegador;
  const Form2 parametros(navegador);
  Form3 dibujo(estado, parametros, navegador);
  VistaLienzo vista;
  vista.resize(1000, 600);
  vista.mostrar(dibujo.GRAF);
  vista.show();
  ASSERT_EQ(dibujo.GRAF.lienzo.anchoPixeles(), 1000) << "the drawing fills the widget";
  const EscalaLienzo antes = dibujo.GRAF.lienzo.escala();
  const double metro = antes.ancho / 1000;
  QTest::mousePress(&vista, Qt::LeftButton, {}, QPoint(600, 450));
  QTest::mouseMove(&vista, QPoint(500, 350));
  QTest::mouseRelease(&vista, Qt::LeftButton, {}, QPoint(400, 300));
  const EscalaLienzo& e = dibujo.GRAF.lienzo.escala();
  // 200 by 150 pixels of a canvas of 10 by 6: the height decides
  EXPECT_NEAR(-e.alto, 150 * metro, 1e-4);
  EXPECT_NEAR(e.ancho, 250 * metro, 1e-4);
  EXPECT_NEAR(e.izquierda + e.ancho / 2, antes.izquierda + 500 * metro, 1e-4);
  EXPECT_NEAR(e.arriba, antes.arriba - 300 * metro, 1e-4);
  // a click alone changes nothing
  QTest::mouseClick(&vista, Qt::LeftButton, {}, QPoint(10, 10));
  EXPECT_NEAR(dibujo.GRAF.lienzo.ScaleWidth(), 250 * metro, 1e-4);
}

}  // namespace
}  // namespace calvento
