#include "qt/colores.h"

#include <algorithm>
#include <cmath>

#include <QWidget>

namespace calvento {

namespace {

constexpr double contrasteMinimo = 3.0;

double luminancia(const QColor& c) {
  const auto lineal = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
  return 0.2126 * lineal(c.redF()) + 0.7152 * lineal(c.greenF()) + 0.0722 * lineal(c.blueF());
}

/// A light background turns rosy, a dark one wine red; both keep their lightness, so the text stays readable.
QColor tenido(const QColor& fondo) {
  constexpr double parte = 0.3;
  const QColor falta(0xe0, 0x30, 0x28);
  const auto mezcla = [](int a, int b) { return static_cast<int>(std::lround(a + parte * (b - a))); };
  return {mezcla(fondo.red(), falta.red()), mezcla(fondo.green(), falta.green()), mezcla(fondo.blue(), falta.blue())};
}

bool fondoPorDefecto(Color c) { return c == color::ventana; }
bool textoPorDefecto(Color c) { return c == color::textoBoton || c == color::textoVentana; }

}  // namespace

QColor aQt(Color c, const QPalette& paleta) {
  if (!c.esDelSistema()) return QColor(c.rojo(), c.verde(), c.azul());
  if (c == color::caraBoton) return paleta.color(QPalette::Window);
  if (c == color::ventana) return paleta.color(QPalette::Base);
  return paleta.color(QPalette::WindowText);
}

double contraste(const QColor& a, const QColor& b) {
  const double la = luminancia(a), lb = luminancia(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor textoPara(const QColor& fondo) {
  return contraste(Qt::black, fondo) >= contraste(Qt::white, fondo) ? QColor(Qt::black) : QColor(Qt::white);
}

QColor legibleSobre(const QColor& texto, const QColor& fondo) {
  const float paso = textoPara(fondo) == QColor(Qt::black) ? -0.05F : 0.05F;
  float h = 0, s = 0, l = 0;
  texto.getHslF(&h, &s, &l);
  QColor c = texto;
  for (; contraste(c, fondo) < contrasteMinimo && l >= 0 && l <= 1; l += paso)
    c = QColor::fromHslF(h, s, std::clamp(l, 0.0F, 1.0F));
  return c;
}

void aplicarColores(QWidget& widget, Color fondo, Color texto, bool marcado) {
  widget.setPalette(QPalette());  // what the window and the desktop give
  widget.setAutoFillBackground(false);
  if (fondoPorDefecto(fondo) && textoPorDefecto(texto) && !marcado) return;

  QPalette paleta = widget.palette();
  const QPalette::ColorRole papel = widget.backgroundRole();
  QColor suelo = paleta.color(papel);
  if (!fondoPorDefecto(fondo)) {
    suelo = aQt(fondo, paleta);
    paleta.setColor(QPalette::Base, suelo);
    paleta.setColor(papel, suelo);
    widget.setAutoFillBackground(true);
  }
  if (marcado) {
    suelo = tenido(paleta.color(QPalette::Base));
    paleta.setColor(QPalette::Base, suelo);
  }
  QColor letra;
  if (!textoPorDefecto(texto))
    letra = legibleSobre(aQt(texto, paleta), suelo);
  else if (fondo == color::caraBoton)
    letra = paleta.color(QPalette::WindowText);
  else
    letra = textoPara(suelo);
  for (const auto grupo : {QPalette::Active, QPalette::Inactive})
    for (const auto rol : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
      paleta.setColor(grupo, rol, letra);
  widget.setPalette(paleta);
}

}  // namespace calvento
