#include <algorithm>
#include <cstdlib>
#include <utility>

#include <QPainter>
#include <QSvgRenderer>

#include "dibujo/marco_dibujo.h"
#include "dibujo/svg.h"
#include "qt/escritorio.h"
#include "qt/pintor.h"

namespace calvento {
namespace {

/// Points darker or lighter than those of the other picture; a line of an image may lie half a pixel beside the file's.
int distintos(const QImage& a, const QImage& b) {
  int n = 0;
  for (int y = 1; y + 1 < a.height(); ++y)
    for (int x = 1; x + 1 < a.width(); ++x) {
      bool hay = false;
      for (int i = 0; i < 9 && !hay; ++i)
        hay = std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x - 1 + i % 3, y - 1 + i / 3))) <= 80;
      n += !hay;
    }
  return n;
}

TEST_F(EnElEscritorio, UnLectorDeSvgVeElDibujoComoElProgramaLoPinta) {
  quitarAcercaDe();
  for (const auto& [ejemplo, ventana] : {std::pair{"03-dos-tramos.cvr", "Form3"},
                                         {"11-inclinada-rectangular.cvi", "Form4"},
                                         {"22-vertical-con-obstaculos.cvv", "Form17"}}) {
    abrirEjemplo(ejemplo);
    auto* marco = programa.aplicacion.cargar<MarcoDibujo>(ventana);
    ASSERT_NE(marco, nullptr) << ventana;
    for (const std::string_view vista : {"vistaTodo", "vistaTanque"}) {
      ASSERT_TRUE(marco->ver(vista));
      const Lienzo& lienzo = marco->GRAF.lienzo;
      QImage pintado(lienzo.anchoPixeles() * 2, lienzo.altoPixeles() * 2, QImage::Format_RGB32), leido(pintado);
      {
        QPainter p(&pintado);
        pintar(lienzo, p, QRectF(pintado.rect()));
      }
      QSvgRenderer lector(QByteArray::fromStdString(comoSvg(lienzo, {"t", "d"})));
      ASSERT_TRUE(lector.isValid()) << ventana;
      QPainter p(&leido);
      lector.render(&p, QRectF(leido.rect()));
      p.end();
      QImage blanco(pintado.size(), QImage::Format_RGB32);
      blanco.fill(Qt::white);
      const int tinta = distintos(blanco, pintado);
      EXPECT_GT(tinta, 10000) << ventana;
      EXPECT_LE(std::max(distintos(pintado, leido), distintos(leido, pintado)), tinta / 20) << ventana << ' ' << vista;
      if (qEnvironmentVariableIsSet("VER")) {
        pintado.save(QString("/tmp/tz/p_%1.png").arg(ventana));
        leido.save(QString("/tmp/tz/l_%1.png").arg(ventana));
      }
    }
  }
}

}  // namespace
}  // namespace calvento
