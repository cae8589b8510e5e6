#include "reportes/trayectoria.h"

#include "comun/numeros.h"

namespace calvento {

namespace {

constexpr int filas = 50;
constexpr Color cafe{16512};

Real parabola(const DesignState& e, Real x) { return e.trayB * x + e.trayA * x * x; }

Real pasoDeTabla(Real X) {
  if (X <= 1.5) return 0.1;
  if (X <= 3.75) return 0.25;
  if (X <= 7.5) return 0.5;
  return 1;
}

void ponerFila(Rejilla& tabla, int n, Real x, Real y, Real elevacion) {
  tabla.poner(n, 0, texto(n));
  tabla.poner(n, 1, formato(x, "0.00"));
  tabla.poner(n, 2, formato(y, "0.000"));
  tabla.poner(n, 3, formato(elevacion, "0.000"));
}

void imprimirEn(Lienzo& l, Real x, Real y, std::string rotulo) {
  l.CurrentX = x.valor();
  l.CurrentY = y.valor();
  l.Print(std::move(rotulo));
}

}  // namespace

void tablaTrayectoria(Rejilla& tabla, const DesignState& e) {
  tabla = Rejilla(filas, 0);
  tabla.formatoColumnas("^ Nº |^   x(m)   |^   y(m)   |^Elevación(m) ");
  const Single X = e.xTrayectoria;
  const Real paso = pasoDeTabla(X);
  int n = 1;
  // as 4-byte numbers, so that an end on a step is met: 7 × 0.1 is 0.7
  for (Single x = 0; x <= X; x = paso * (n - 1)) {
    const Real y = parabola(e, x);
    ponerFila(tabla, n++, x, y, e.cotaFin + y);
  }
  // the end has the stored elevation, whatever the parabola gives
  ponerFila(tabla, n, X, parabola(e, X), e.cotaTrayectoria);
}

LimitesTrayectoria limitesTrayectoria(const DesignState& e) {
  const Real X = e.xTrayectoria;
  return {X + X / 16, -0.8184176 * X - X / 16, X / 8};
}

void DIBUJATRAYECTORIA(Lienzo& l, const DesignState& e) {
  const LimitesTrayectoria limites = limitesTrayectoria(e);
  const Real X = e.xTrayectoria;
  l.Cls();
  l.Scale(0, limites.y2.valor(), limites.x2.valor(), limites.y1.valor());
  l.DrawStyle = EstiloLinea::solida;
  l.Font = {"Arial", 12};
  imprimirEn(l, X / 6, -0.7 * X, "Y= " + formato(e.trayB, "0.0000") + " X  " + formato(e.trayA, "0.000000") + " X²");
  l.Font = {"Arial", 8};
  imprimirEn(l, X / 25, X / 14, "P.C.: " + texto(e.cotaFin));
  const auto punto = [&](Real x) { return Punto{x.valor(), parabola(e, x).valor()}; };
  constexpr int piezas = 10;
  for (int i = 0; i < piezas; ++i) l.Line(punto(i * X / piezas), punto((i + 1) * X / piezas), cafe);

  const Real Y = parabola(e, X);
  l.DrawWidth = 1;
  l.DrawStyle = EstiloLinea::puntos;
  l.Line({0, Y.valor()}, {X.valor(), Y.valor()}, color::negro);
  imprimirEn(l, 0.7 * X, Y, "P.T.: " + texto(e.cotaTrayectoria));
}

}  // namespace calvento
