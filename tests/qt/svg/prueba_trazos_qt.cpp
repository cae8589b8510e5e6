#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include <QDirIterator>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include "qt/cadena.h"
#include "qt/trazos_qt.h"

namespace calvento {
namespace {

template <class Pintar>
QImage imagen(QSize tamano, Pintar&& pintar) {
  QImage i(tamano, QImage::Format_ARGB32_Premultiplied);
  i.fill(Qt::white);
  QPainter p(&i);
  pintar(p, QRectF(i.rect()));
  return i;
}

bool parecidos(QRgb p, QRgb q) {
  return std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))}) <= 40;
}

/// Points without their like in the other picture, where it may lie one beside: letters have their own raster.
int distintos(const QImage& a, const QImage& b) {
  int n = 0;
  for (int y = 1; y + 1 < a.height(); ++y)
    for (int x = 1; x + 1 < a.width(); ++x) {
      bool hay = a.pixel(x, y) == b.pixel(x, y);
      for (int i = 0; i < 9 && !hay; ++i) hay = parecidos(a.pixel(x, y), b.pixel(x - 1 + i % 3, y - 1 + i / 3));
      n += !hay;
    }
  return n;
}

TEST(TrazosQt, CadaDibujoEsElDeSuSvg) {
  int dibujos = 0;
  for (QDirIterator i(RAIZ_PROYECTO "/recursos", {"*.svg"}, QDir::Files, QDirIterator::Subdirectories); i.hasNext();) {
    const QString archivo = i.next(), nombre = archivo.mid(archivo.indexOf("/recursos/") + 9).chopped(4) + ".pic";
    QSvgRenderer svg(archivo);
    const TrazosQt trazos(':' + nombre);
    ASSERT_TRUE(svg.isValid() && trazos.valido()) << deQt(nombre);
    EXPECT_EQ(trazos.tamano().toSize(), svg.defaultSize()) << deQt(nombre);
    const bool esIcono = nombre.startsWith("/iconos/");
    for (const double escala : esIcono ? std::vector{1.0, 1.5, 2.0, 3.0} : std::vector{2.0}) {
      const QSize tamano = svg.defaultSize() * escala;
      const QImage suya = imagen(tamano, [&](QPainter& p, const QRectF& r) { svg.render(&p, r); });
      const QImage nuestra = imagen(tamano, [&](QPainter& p, const QRectF& r) { trazos.pintar(p, r); });
      const QImage blanca = imagen(tamano, [](QPainter&, const QRectF&) {});
      EXPECT_LE(distintos(suya, nuestra), distintos(suya, blanca) / 100) << deQt(nombre) << " at " << escala;
      if (esIcono) {
        const QPixmap icono = QIcon(':' + nombre).pixmap(tamano);
        const QImage pintado = imagen(tamano, [&](QPainter& p, const QRectF&) { p.drawPixmap(0, 0, icono); });
        EXPECT_LE(distintos(nuestra, pintado), 0) << deQt(nombre) << " at " << escala;
      }
    }
    ++dibujos;
  }
  EXPECT_GT(dibujos, 40);
}

TEST(TrazosQt, UnIconoApagadoEsGrisYUnoQueNoHayNoEsNada) {
  const QImage i = QIcon(":/iconos/abrir.pic").pixmap(24, QIcon::Disabled).toImage();
  int color = 0, tinta = 0;
  for (int y = 0; y < i.height(); ++y)
    for (int x = 0; x < i.width(); ++x) {
      tinta += i.pixelColor(x, y).alpha() > 128;
      color += i.pixelColor(x, y).alpha() > 128 && i.pixelColor(x, y).hslSaturation() > 60;
    }
  EXPECT_TRUE(tinta > 150 && color == 0) << tinta << ", " << color;
  EXPECT_TRUE(QIcon(":/iconos/no_hay.pic").isNull());
  // a picture that is cut off ends there
  struct Contador : PintorTrazos {
    void camino(const std::vector<Paso>&, const Brocha&, const PlumaTrazo&) override { ++partes; }
    void rotulo(const RotuloTrazo&) override { ++partes; }
    int partes = 0;
  } entero, cortado;
  QFile f(":/bocetos/rapida.pic");
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  const std::string datos = f.readAll().toStdString();
  Trazos(datos).repetir(entero);
  for (std::size_t n = 0; n < datos.size(); n += 997) Trazos(std::string_view(datos).substr(0, n)).repetir(cortado);
  EXPECT_TRUE(entero.partes > 50 && cortado.partes > entero.partes);
}

}  // namespace
}  // namespace calvento
