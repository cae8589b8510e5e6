#include "qt/figura_memoria.h"

#include "dibujo/svg.h"
#include "memoria/boceto_rotulado.h"
#include "qt/cadena.h"
#include "qt/pintor.h"
#include "qt/trazos_qt.h"

namespace calvento {

namespace {

TrazosQt trazosDe(const BocetoRotulado& boceto) {
  return TrazosQt(QStringLiteral(":/bocetos/") + aQt(boceto.nombre) + QStringLiteral(".pic"));
}

void pintarBoceto(const BocetoRotulado& boceto, QPainter& pintor, const QRectF& destino) {
  const TrazosQt dibujo = trazosDe(boceto);
  dibujo.pintar(pintor, dibujo.lugarEn(destino), rotulosSobre(boceto, dibujo.trazos().caja()));
}

}  // namespace

void pintarFigura(const Figura& figura, QPainter& pintor, const QRectF& destino) {
  if (const auto* lienzo = std::get_if<Lienzo>(&figura.dibujo))
    pintar(*lienzo, pintor, encuadre(*lienzo, destino));
  else
    pintarBoceto(std::get<BocetoRotulado>(figura.dibujo), pintor, destino);
}

QSizeF tamanoFigura(const Figura& figura) {
  const auto* boceto = std::get_if<BocetoRotulado>(&figura.dibujo);
  if (boceto == nullptr) return {figura.anchoMm, figura.altoMm};
  const QSizeF propio = trazosDe(*boceto).caja();
  return propio.isEmpty() ? QSizeF(figura.anchoMm, figura.altoMm)
                          : propio.scaled(QSizeF(figura.anchoMm, 1e6), Qt::KeepAspectRatio);
}

std::string svgDeFigura(const Figura& figura) {
  constexpr double pixelesPorMm = 96 / 25.4;
  HojaSvg hoja{figura.titulo, {}, tamanoFigura(figura).width() * pixelesPorMm, true};
  if (const auto* lienzo = std::get_if<Lienzo>(&figura.dibujo)) {
    hoja.ancho = encuadre(*lienzo, QRectF(QPointF(0, 0), tamanoFigura(figura) * pixelesPorMm)).width();
    return comoSvg(*lienzo, hoja);
  }
  const auto& boceto = std::get<BocetoRotulado>(figura.dibujo);
  const TrazosQt dibujo = trazosDe(boceto);
  return comoSvg(dibujo.trazos(), rotulosSobre(boceto, dibujo.trazos().caja()), hoja);
}

}  // namespace calvento
