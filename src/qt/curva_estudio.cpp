#include "qt/curva_estudio.h"

#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "qt/cadena.h"
#include "qt/exportar_dibujo.h"
#include "qt/pintor.h"

namespace calvento {

CurvaEstudio::CurvaEstudio(QWidget* padre) : QWidget(padre) {
  setMouseTracking(true);
  setMinimumSize(260, 200);
  setAccessibleName(QStringLiteral("Curva del estudio"));
}

void CurvaEstudio::mostrar(GraficoEstudio grafico) {
  grafico_ = std::move(grafico);
  redibujar();
}

void CurvaEstudio::redibujar() {
  lienzo_.redimensionarSinCrecer(width(), height());
  lienzo_.Cls();
  if (!grafico_.vacio()) grafico_.dibujar(lienzo_);
  setAccessibleDescription(grafico_.vacio() ? QString() : aQt(grafico_.tituloY + " según " + grafico_.tituloX));
  update();
}

void CurvaEstudio::guardar(const std::string& archivo) const {
  exportarDibujo(lienzo_, archivo, {"Estudio de alternativas", grafico_.tituloY + " según " + grafico_.tituloX});
}

void CurvaEstudio::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  pintar(lienzo_, pintor, QRectF(rect()));
  if (!grafico_.vacio()) return;
  pintor.setPen(Qt::gray);
  pintor.drawText(rect(), Qt::AlignCenter, QStringLiteral("Sin datos que dibujar"));
}

void CurvaEstudio::resizeEvent(QResizeEvent*) { redibujar(); }

void CurvaEstudio::mouseMoveEvent(QMouseEvent* evento) {
  const auto leido = grafico_.leer(lienzo_, {evento->position().x(), evento->position().y()});
  leido ? QToolTip::showText(evento->globalPosition().toPoint(), aQt(leido->texto), this) : QToolTip::hideText();
}

void CurvaEstudio::mousePressEvent(QMouseEvent* evento) {
  const auto leido = grafico_.leer(lienzo_, {evento->position().x(), evento->position().y()});
  if (leido && alElegir) alElegir(leido->fila);
}

}  // namespace calvento
