#include <gtest/gtest.h>
#include <string>

#include <QImage>
#include <QPainter>

#include "dibujo/svg.h"
#include "plataforma/lienzo.h"
#include "plataforma/medidas.h"
#include "qt/pintor.h"

namespace calvento {
namespace {

QImage imagenDe(const Lienzo& lienzo, double veces = 1) {
  QImage imagen(static_cast<int>(lienzo.anchoPixeles() * veces), static_cast<int>(lienzo.altoPixeles() * veces),
                QImage::Format_RGB32);
  imagen.fill(Qt::red);
  QPainter p(&imagen);
  pintar(lienzo, p, QRectF(imagen.rect()));
  return imagen;
}

int noBlancos(const QImage& imagen, QRect zona) {
  zona = zona.intersected(imagen.rect());
  int n = 0;
  for (int y = zona.top(); y <= zona.bottom(); ++y)
    for (int x = zona.left(); x <= zona.right(); ++x) n += imagen.pixelColor(x, y).lightness() < 250;
  return n;
}

/// Smallest rectangle that holds all ink; empty where there is none.
QRect tintaDe(const QImage& imagen) {
  QRect caja;
  for (int y = 0; y < imagen.height(); ++y)
    for (int x = 0; x < imagen.width(); ++x)
      if (imagen.pixelColor(x, y).lightness() < 250) caja |= QRect(x, y, 1, 1);
  return caja;
}

/// 10 m by 5 m at 40 pixels to the metre, the vertical axis upward.
Lienzo hoja() {
  Lienzo l(400, 200);
  l.Scale(0, 105, 10, 100);
  return l;
}

TEST(Pintor, UnPoligonoMacizoCubreSuAreaYNadaMas) {
  Lienzo l = hoja();
  l.FillStyle = EstiloRelleno::solido;
  l.FillColor = color::cianClaro;
  l.ForeColor = color::azulClaro;
  l.Polygon({{2, 101}, {6, 101}, {6, 104}, {2, 104}});
  const QImage i = imagenDe(l);
  EXPECT_EQ(i.pixelColor(160, 100), QColor(0, 255, 255));  // inside
  EXPECT_EQ(i.pixelColor(160, 30), QColor(Qt::white));     // above
  EXPECT_EQ(i.pixelColor(160, 180), QColor(Qt::white));    // below
  EXPECT_NEAR(noBlancos(i, i.rect()), 160 * 120, 2 * 160 + 2 * 120 + 8);
  EXPECT_GT(i.pixelColor(160, 40).blue(), 200);  // blue outline
  EXPECT_LT(i.pixelColor(160, 40).red(), 160);
}

TEST(Pintor, ElRayadoQuedaDentroYSuTramaNoCambiaConElTamano) {
  for (const double veces : {1.0, 2.0, 3.0}) {
    Lienzo l = hoja();
    l.FillStyle = EstiloRelleno::cruzadoDiagonal;
    l.FillColor = color::grisMedio;
    l.Polygon({{1, 101}, {9, 101}, {9, 104.5}, {8.5, 104.5}, {6.5, 102}, {3.5, 102}, {3.5, 104.5}, {1, 104.5}});  // a U
    const QImage i = imagenDe(l, veces);
    const auto zona = [&](int x, int y, int w, int h) {
      return QRect(QPointF(x * veces, y * veces).toPoint(), QSizeF(w * veces, h * veces).toSize());
    };
    EXPECT_EQ(noBlancos(i, zona(0, 0, 400, 15)), 0);
    EXPECT_EQ(noBlancos(i, zona(0, 165, 400, 35)), 0);
    EXPECT_EQ(noBlancos(i, zona(145, 5, 110, 110)), 0) << "the opening of the U";
    // both families of strokes, each 8/√2 pixels apart: about a third of the area is inked
    const QRect dentro = zona(60, 60, 48, 48);
    EXPECT_NEAR(noBlancos(i, dentro) / double(dentro.width() * dentro.height()), 0.45, 0.2) << veces;
  }
}

TEST(Pintor, LosTextosEstanDerechosYEmpiezanEnSuEsquina) {
  Lienzo l = hoja();
  l.Font.puntos = 30;  // 40 pixels
  l.CurrentX = 2;
  l.CurrentY = 104;
  l.Print("L");
  const QImage i = imagenDe(l);
  const QRect t = tintaDe(i);
  EXPECT_NEAR(t.left(), 80, 6);
  EXPECT_NEAR(t.top(), 40 + 40 * (0.905 - 0.716), 3);  // capitals are 0.716 of the size
  EXPECT_NEAR(t.bottom(), 40 + 40 * 0.905, 3);         // on the base line
  const int mitad = t.top() + t.height() / 2;
  const int arriba = noBlancos(i, QRect(t.left(), t.top(), t.width(), t.height() / 2));
  const int abajo = noBlancos(i, QRect(t.left(), mitad, t.width(), t.height() / 2 + 1));
  EXPECT_GT(abajo, arriba + 20) << "the foot of the L is below";

  l.Font.angulo = 90;  // reads upward: the stem lies along the bottom, its foot to the right
  l.Cls();
  l.CurrentX = 5;
  l.CurrentY = 102;
  l.Print("L");
  const QRect v = tintaDe(imagenDe(l));
  EXPECT_LE(v.bottom(), 120);
  EXPECT_GE(v.left(), 200);
  EXPECT_GT(v.width(), v.height());
}

TEST(Pintor, UnTextoEsTanAnchoComoDiceLaTablaDeMedidasYCreceConElDibujo) {
  const std::string texto = "Canal aguas arriba; s=-0.001 Sección H";
  for (const double puntos : {0.6, 1.5, 3.0, 6.0, 8.0, 11.5}) {
    Lienzo l = hoja();
    l.Font.puntos = puntos;
    l.CurrentX = 1;
    l.CurrentY = 104;
    l.Print(texto);
    const double ancho = anchoTexto(texto) / 15.0 * puntos / 8;
    EXPECT_NEAR(tintaDe(imagenDe(l, 4)).right() / 4.0 - 40, ancho, 3) << puntos;
    l.redimensionar(800, 400);
    EXPECT_NEAR(tintaDe(imagenDe(l, 2)).right() / 2.0 - 80, 2 * ancho, 4) << puntos << ", a larger canvas";
    l.redimensionarSinCrecer(800, 400);
    EXPECT_NEAR(tintaDe(imagenDe(l, 2)).right() / 2.0 - 80, ancho, 3) << puntos << ", a ruler keeps its size";
  }
  // a letter far larger than the sheet: its left stem, from 0.08 to 0.17 of the size, stands where it belongs
  for (const auto& [x, izquierda] : {std::pair{5 - 0.125 * 8000 / 40, 0}, {10 - 0.085 * 8000 / 40, 400}}) {
    Lienzo l = hoja();
    l.Font.puntos = 6000;  // 8000 pixels
    l.CurrentX = x;
    l.CurrentY = 105 + 4000 / 40;
    l.Print("H");
    const QRect t = tintaDe(imagenDe(l));
    EXPECT_EQ(t.height(), 200);
    EXPECT_NEAR(t.left(), izquierda, 60);
  }
}

TEST(Pintor, EstilosDeLineaYAnchos) {
  const auto raya = [](EstiloLinea estilo, int grosor) {
    Lienzo l = hoja();
    l.DrawStyle = estilo;
    l.DrawWidth = grosor;
    l.Line({0, 102.0125}, {10, 102.0125});
    return noBlancos(imagenDe(l), QRect(0, 0, 400, 200));
  };
  const int solida = raya(EstiloLinea::solida, 1);
  EXPECT_NEAR(solida, 400, 4);
  EXPECT_NEAR(raya(EstiloLinea::solida, 3), 1200, 410);
  for (const EstiloLinea e :
       {EstiloLinea::guiones, EstiloLinea::puntos, EstiloLinea::guionPunto, EstiloLinea::guionPuntoPunto}) {
    EXPECT_LT(raya(e, 1), 0.9 * solida);
    EXPECT_GT(raya(e, 1), 0.3 * solida);
  }
}

TEST(Pintor, UnaLineaDeUnPixelCubrePixelesEnterosYEnUnVectorQuedaDondeEsta) {
  Lienzo l = hoja();
  l.FillStyle = EstiloRelleno::solido;
  l.FillColor = l.ForeColor = color::cianClaro;
  const auto esRojo = [](QColor c) { return c == QColor(255, 0, 0); };
  for (const int escala : {1, 2, 3})
    for (const double pixel :
         {60.0, 60.1, 60.25, 60.5, 60.75, 60.99, 0.0, 200.0}) {  // the last two: on the sheet's edges
      l.Cls();
      l.LineCaja({-1, 106}, {11, 99}, color::cianClaro);
      l.Line({0, 105 - pixel / 40}, {10, 105 - pixel / 40}, color::rojo);
      l.Polyline({{pixel / 20, 105}, {pixel / 20, 100}}, color::rojo);
      QImage i(400 * escala, 200 * escala, QImage::Format_RGB32);
      i.setDevicePixelRatio(escala);
      QPainter p(&i);
      pintar(l, p, QRectF(0, 0, 400, 200));
      p.end();
      int filas = 0, columnas = 0, mezclados = 0;
      for (int y = 0; y < i.height(); ++y) filas += esRojo(i.pixelColor(50 * escala, y));
      for (int x = 0; x < i.width(); ++x) columnas += esRojo(i.pixelColor(x, 30 * escala));
      for (int y = 0; y < i.height(); ++y)
        for (int x = 0; x < i.width(); ++x)
          mezclados += !esRojo(i.pixelColor(x, y)) && i.pixelColor(x, y) != QColor(0, 255, 255);
      EXPECT_TRUE(filas == escala && columnas == escala && mezclados == 0)
          << escala << ' ' << pixel << ": " << filas << ", " << columnas << ", " << mezclados;
    }
  l.Cls();
  l.Polyline({{0, 105 - 60.25 / 40}, {10, 105 - 60.25 / 40}});
  EXPECT_NE(comoSvg(l, {}).find("60.25"), std::string::npos) << comoSvg(l, {});
}

TEST(Pintor, LoLejanoNoEstorba) {
  // zoomed in a million times, the visible part of a figure is still there
  Lienzo l(400, 200);
  l.Scale(10, 100.00005, 10.0001, 100);
  l.FillStyle = EstiloRelleno::solido;
  l.FillColor = color::cianClaro;
  l.Polygon({{-500, 90}, {500, 90}, {500, 100.000025}, {-500, 100.000025}});
  l.DrawStyle = EstiloLinea::guionPunto;
  l.Line({-1e7, 100.0000375}, {1e7, 100.0000375}, color::rojo);
  const QImage i = imagenDe(l);
  EXPECT_EQ(i.pixelColor(200, 150), QColor(0, 255, 255));
  EXPECT_EQ(i.pixelColor(200, 80), QColor(Qt::white));
  EXPECT_GT(noBlancos(i, QRect(0, 48, 400, 4)), 200);
}

}  // namespace
}  // namespace calvento
