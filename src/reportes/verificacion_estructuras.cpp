#include <array>
#include <optional>
#include <span>
#include <vector>

#include "caida_vertical/calculo_vertical.h"
#include "comun/numeros.h"
#include "estructura/pasos.h"
#include "hidraulica/marchas_a_la_vez.h"
#include "hidraulica/resalto.h"
#include "reportes/tramos_rapida.h"
#include "reportes/verificacion.h"

namespace calvento {

namespace {

constexpr int caudales = 10;

/// Ten discharges times three reaches may all fail to converge, and the window must still open at once.
constexpr int vueltasDeEstacion = 10000;

Real momentoEnPoza(Real Q, const Seccion& poza, Real y) {
  return funcionMomento(Q, poza.area(y), y, poza.b, poza.espejo(y));
}

Real energiaAbajo(const DesignState& e, Real Q) {
  const Real yd = YNORMAL(Q, e.bAbajo, e.zAbajo, e.nAbajo, e.sAbajo);
  const Real Vd = Q / Seccion{e.bAbajo, e.zAbajo}.area(yd);
  return nivelEnergia(Vd, e.cotaAbajo, yd);
}

/// Depth at the crest: normal depth where the canal flows fast, else critical depth in the basin's section.
Real entradaInclinada(const DesignState& e, Real Q) {
  const Real yn = YNORMAL(Q, e.bArriba, e.zArriba, e.nArriba, e.sArriba);
  const Real F = Seccion{e.bArriba, e.zArriba}.froude(Q, yn);
  if (F > 1) return YNORMAL(Q, e.bEntradaCaida, e.zArriba, e.nArriba, e.sArriba);
  return YCRITICO(Q, e.bEntradaCaida, e.zPozaCaida);
}

/// Length of the jump in multiples of its height by the side slope; the parameter window's K is not asked here.
std::optional<Real> kTrapezoidal(const DesignState& e) {
  const Real z = e.zPozaCaida;
  if (!(e.tipoTanque == 6)) return std::nullopt;
  return Round(2.249 * cubo(z) - 3.594 * z * z + 7.007 * z + 5.002, 2);
}

/// Marches some discharges down all reaches. A reach that cannot be marched hands on the depth at its head.
void descender(const DesignState& e, std::span<Descenso> tanda) {
  for (const TramoRapida& t : tramosRapida(e)) {
    // each station starts at half the depth of the one before, not at nine tenths as in the profile
    const TramoMarcha tramo{0, e.bRapida, e.zRapida, e.nRapida, t.S, t.cotaA, t.cotaB, 0.5, vueltasDeEstacion};
    marcharALaVez(tramo, tanda, [](std::size_t, const EstacionMarcha&) {});
    for (Descenso& d : tanda) d.fallo.reset();
  }
}

/// Depths at the end of the chute. A discharge without a critical depth starts from the depth at which the one before
/// ended, so it has to wait for that one.
std::vector<Real> tirantesAlFinal(const DesignState& e) {
  std::vector<Descenso> todos;
  std::size_t terminados = 0;
  const auto terminar = [&] {
    descender(e, std::span(todos).subspan(terminados));
    terminados = todos.size();
  };
  for (int n = 1; n <= caudales; ++n) {
    const Real Q = caudalVerificado(e, n);
    std::optional<Real> yc;
    pasandoFallos([&] { yc = YCRITICO(Q, e.bRapida, e.zRapida); });
    if (!yc) {
      terminar();
      yc = todos.empty() ? Real(0) : todos.back().y;
    }
    todos.push_back({Q, *yc, {}});
  }
  terminar();
  std::vector<Real> finales;
  for (const Descenso& d : todos) finales.push_back(d.y);
  return finales;
}

/// Basin of a free fall; here the bottom width of the momentum function is the plain one.
void filaSinObstaculos(FilaVerificacion& f, const DesignState& e, Real W) {
  const CaidaLibre caida = caidaLibre(e.cotaFin - e.cotaPoza, f.Q / e.bPozaCaida);
  f.y1 = caida.y1;
  f.y2 = caida.y2;
  f.M1 = funcionMomento(f.Q, W * f.y1, f.y1, e.bPozaCaida, W);
  f.M2 = funcionMomento(f.Q, W * f.y2, f.y2, e.bPozaCaida, W);
  f.longitud = caida.Ld + (f.y2 - f.y1) * e.kLongPoza;
}

/// Impact basin; here it is the width with the contraction, unlike in the other: meant.
void filaConObstaculos(FilaVerificacion& f, const DesignState& e, Real W) {
  const Real yn = YNORMAL(f.Q, e.bArriba, e.zArriba, e.nArriba, e.sArriba);
  const Real yc = YCRITICO(f.Q, e.bPozaCaida, 0);
  f.y2 = 2.15 * yc;
  const Real h = yn - (e.cotaFin - e.cotaPoza);
  f.longitud = alcanceImpacto(yc, h, h - f.y2) + 0.8 * yc + 1.75 * yc;
  f.y1 = conjugadoRectangular(f.y2, f.Q / W);
  f.M1 = funcionMomento(f.Q, W * f.y1, f.y1, W, W);
  f.M2 = funcionMomento(f.Q, W * f.y2, f.y2, W, W);
}

}  // namespace

void verificarInclinada(Rejilla& tabla, const DesignState& e, const Form2& parametros, Dialogos& dialogos) {
  prepararVerificacion(tabla, verificacionInclinada);
  const Seccion poza{e.bPozaCaida, e.zPozaCaida};
  FilaVerificacion f;
  for (int n = 1; n <= caudales; ++n) {
    f.Q = caudalVerificado(e, n);
    const Real y = entradaInclinada(e, f.Q);
    // the crest's elevation has the rise in it already; the energy takes it once more, unlike in the chute: meant
    f.y1 = Yoo(f.Q, y, {e.bEntradaCaida, e.zPozaCaida}, poza, e.cotaFin, e.cotaPoza, e.sobreelevacion, dialogos);
    f.M1 = momentoEnPoza(f.Q, poza, f.y1);
    f.y2 = YY(f.Q, f.y1, poza);
    f.M2 = momentoEnPoza(f.Q, poza, f.y2);
    f.Ep = nivelEnergia(f.Q / poza.area(f.y2), e.cotaPoza, f.y2);
    f.Ea = energiaAbajo(e, f.Q);
    LONGRESALTO(f, e, poza, parametros, kTrapezoidal(e));
    escribirVerificacion(tabla, n, f, verificacionInclinada);
  }
}

void verificarRapida(Rejilla& tabla, const DesignState& e, const Form2& parametros, Dialogos& dialogos) {
  prepararVerificacion(tabla, verificacionRapida);
  const auto finales = tirantesAlFinal(e);
  const Seccion rapida{e.bRapida, e.zRapida};
  const Seccion poza{e.bPoza, e.zPoza};
  const Seccion abajo{e.bAbajo, e.zAbajo};
  FilaVerificacion f;
  Real V2 = 0, yd = 0, Vd = 0;
  for (int n = 1; n <= caudales; ++n) {
    const Real y = finales[static_cast<std::size_t>(n - 1)];
    f.Q = caudalVerificado(e, n);
    // one statement each: the one that fails leaves its value as the row before had it, and the next ones go on
    pasandoFallos([&] { f.y1 = Round(Yoo(f.Q, y, rapida, poza, e.cotaFin, e.cotaPoza, 0, dialogos), 3); });
    pasandoFallos([&] { f.M1 = momentoEnPoza(f.Q, poza, f.y1); });
    pasandoFallos([&] { f.y2 = YY(f.Q, f.y1, poza); });
    pasandoFallos([&] { f.M2 = momentoEnPoza(f.Q, poza, f.y2); });
    pasandoFallos([&] { V2 = f.Q / poza.area(f.y2); });
    pasandoFallos([&] { f.Ep = nivelEnergia(V2, e.cotaPoza, f.y2); });
    pasandoFallos([&] { yd = YNORMAL(f.Q, e.bAbajo, e.zAbajo, e.nAbajo, e.sAbajo); });
    pasandoFallos([&] { Vd = f.Q / abajo.area(yd); });
    pasandoFallos([&] { f.Ea = nivelEnergia(Vd, e.cotaAbajo, yd); });
    pasandoFallos([&] { LONGRESALTO(f, e, poza, parametros); });
    pasandoFallos([&] { escribirVerificacion(tabla, n, f, verificacionRapida); });
  }
}

void verificarVertical(Rejilla& tabla, const DesignState& e) {
  prepararVerificacion(tabla, verificacionVertical);
  if (!(e.tipoTanque == 0 || e.tipoTanque == 1)) return;
  const Real W = e.bPozaCaida + 2 * e.longTransVert;
  FilaVerificacion f;
  for (int n = 1; n <= caudales; ++n) {
    f.Q = caudalVerificado(e, n);
    e.tipoTanque == 1 ? filaSinObstaculos(f, e, W) : filaConObstaculos(f, e, W);
    f.Ep = nivelEnergia(f.Q / (W * f.y2), e.cotaPoza, f.y2);
    f.Ea = energiaAbajo(e, f.Q);
    escribirVerificacion(tabla, n, f, verificacionVertical);
  }
}

}  // namespace calvento
