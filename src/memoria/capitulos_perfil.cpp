// Profile and trajectory.
#include "caida_vertical/calculo_vertical.h"
#include "estructura/pasos.h"
#include "memoria/laminas.h"
#include "memoria/redaccion.h"
#include "reportes/estaciones.h"
#include "reportes/perfil_hidraulico.h"
#include "reportes/tramos_rapida.h"
#include "reportes/trayectoria.h"

namespace calvento::redaccion {

namespace {

using enum Alineacion;

void perfilRapida(Redaccion& r) {
  const DesignState& e = r.e;
  r.parrafo(
      "La superficie del agua se calcula por tramos fijos, desde la sección de control hacia abajo, con 100 "
      "secciones en cada tramo:");
  r.formula("z_{1} + Y_{1} + V_{1}²/2g = z_{2} + Y_{2} + V_{2}²/2g + S_{f} ΔL", "", "S_{f} = (n V / R^{2/3})²");
  std::vector<std::vector<std::string>> filas;
  const Single longitudes[] = {e.longTramo1, e.longTramo2, e.longTramo3};
  const auto tramos = tramosRapida(e);
  for (std::size_t i = 0; i < tramos.size(); ++i)
    filas.push_back({std::to_string(i + 1), n(tramos[i].cotaA.valor()), n(tramos[i].cotaB.valor()),
                     texto(Round(tramos[i].S, 5)), n(d(longitudes[i]), 2)});
  r.tabla("Tramos de la rápida", {"Tramo", "Elev. inicio (m)", "Elev. fin (m)", "S (m/m)", "L (m)"}, std::move(filas),
          {centro, centro, centro, centro, centro});
  r.formula("F = V / √(g A / T)", "al final de la rápida, Y = " + con(e.yFin, "m") + ", V = " + con(e.vFin, "m/s"),
            n(d(e.frFin)));
}

void perfilVertical(Redaccion& r) {
  r.parrafo("El agua baja del tirante normal al crítico antes de la cresta. Distancias negativas: aguas arriba.");
  std::vector<std::vector<std::string>> filas;
  for (const FilaPerfilCaida& f : r.e.perfilCaida) filas.push_back({n(f.x), n(f.tirante)});
  r.tabla("Curva de descenso sobre la cresta", {"X (m)", "Tirante (m)"}, std::move(filas), {centro, centro});
}

void puntosInclinada(Redaccion& r) {
  const DesignState& e = r.e;
  double x = d(e.progresivaInicio);
  std::vector<std::vector<std::string>> filas;
  const auto punto = [&](const char* nombre, double mas, Single cota) {
    x += mas;
    filas.push_back({nombre, textoEstacion(Real(x)), n(d(cota))});
  };
  punto("Cresta", 0, e.cotaFin);
  punto("Fin de la curva", d(e.xTrayectoria), e.cotaTrayectoria);
  punto("Pie de la rampa", (d(e.cotaTrayectoria) - d(e.cotaPoza)) * d(e.zRampaEntrada), e.cotaPoza);
  punto("Fin de la poza", d(e.longPoza), e.cotaPoza);
  punto("Canal aguas abajo", (d(e.cotaAbajo) - d(e.cotaPoza)) * d(e.zRampaSalida), e.cotaAbajo);
  r.tabla("Puntos del perfil", {"Punto", "Progresiva", "Elevación (m)"}, std::move(filas), {izquierda, centro, centro});
}

}  // namespace

void perfil(Redaccion& r) {
  r.capitulo("Perfil hidráulico");
  r.intentar([&] {
    if (r.x.rapida()) perfilRapida(r);
    r.bloque(graficoPerfil(r.x));
    if (r.x.inclinada()) return puntosInclinada(r);
    if (r.x.vertical()) return perfilVertical(r);
    Rejilla t;
    tablaPerfil(t, r.e);
    r.tabla("Perfil de la rápida (TIRANTE*: con el aire que el agua arrastra)", t);
  });
}

void trayectoria(Redaccion& r) {
  const DesignState& e = r.e;
  r.capitulo(r.x.rapida() ? "Trayectoria" : r.x.inclinada() ? "Curva de la cresta" : "Caída del chorro");
  r.intentar([&] {
    const std::string S = texto(Round(r.x.vertical() ? e.sArriba : e.sUltimoTramo, 5));
    if (r.x.rapida()) {
      r.parrafo(
          "La losa sigue una parábola más tendida que el chorro libre, con 1.5² veces su altura de velocidad, hasta "
          "la tangente con la rampa de ingreso.");
      r.formula("Y = B X + A X²", "X desde el fin de la rápida, Y hacia arriba", "");
      r.formula("A = −(S² + 1) g / (4.5 V²)", "−(" + S + "² + 1) · 9.81 / (4.5 · " + n(d(e.vFin)) + "²)",
                texto(Round(e.trayA, 6)) + " 1/m");
      r.formula("B = −S", "", texto(Round(e.trayB, 4)));
      r.formula("X_{T} = −(2 B + 1) / (2 Z_{1} A)",
                "−(2 · " + texto(Round(e.trayB, 4)) + " + 1) / (2 · " + n(d(e.zRampaEntrada), 2) + " · " +
                    texto(Round(e.trayA, 6)) + ")",
                con(e.xTrayectoria, "m"));
      r.formula("Elevación del final", n(d(e.cotaFin)) + " − |A X_{T}² + B X_{T}|", con(e.cotaTrayectoria, "m"));
      Lienzo plano(680, 300);
      DIBUJATRAYECTORIA(plano, e);
      hacerLegible(plano, 75);
      r.bloque(Figura{"Trayectoria", std::move(plano), 170, 75});
      Rejilla t;
      tablaTrayectoria(t, e);
      r.tabla("Coordenadas de la trayectoria", t);
    } else if (r.x.inclinada()) {
      if (d(e.frArriba) > 1)
        r.formula("R = Y / (e^{1.5/F²} − 1)", "Y = " + n(d(e.yFin)) + ", F = " + n(d(e.frArriba)),
                  con(e.radioCurva, "m, en múltiplos de 0.05", 2));
      else
        r.formula("R = 3.5 Y_{c}", "3.5 · " + n(d(e.yFin)), con(e.radioCurva, "m, en múltiplos de 0.05", 2));
      r.formula("X_{T} = R / √(Z_{1}² + 1) − R sen α",
                n(d(e.radioCurva), 2) + " / √(" + n(d(e.zRampaEntrada), 2) + "² + 1) − " + n(d(e.radioCurva), 2) +
                    " · sen " + n(e.anguloCaida, 5),
                con(e.xTrayectoria, "m"));
      r.parrafo("La curva termina en la elevación " + con(e.cotaTrayectoria, "m") +
                ", tangente a la rampa de ingreso.");
    } else {
      const double h = d(e.cotaFin) - d(e.cotaAbajo), q = d(e.Q) / d(e.bPozaCaida);
      r.formula("h", n(d(e.cotaFin)) + " − " + n(d(e.cotaAbajo)), con(h, "m, desnivel"));
      r.formula("q = Q / B", n(d(e.Q)) + " / " + n(d(e.bPozaCaida)), con(q, "m²/s"));
      const CaidaLibre c = caidaLibre(Real(h), Real(q));
      if (d(e.tipoTanque) == 1) {
        r.formula("D = q² / (g h³)", n(q) + "² / (9.81 · " + n(h) + "³)", n(c.D.valor(), 5));
        r.formula("L_{d} = 4.3 h D^{0.27}", "4.3 · " + n(h) + " · " + n(c.D.valor(), 5) + "^{0.27}",
                  con(c.Ld.valor(), "m"));
      } else {
        r.formula("L_{1}", "alcance del chorro hasta el fondo", con(e.longTramo1, "m"));
        r.formula("L_{2} = 0.8 Y_{c}", "0.8 · " + n(d(e.ycControl)), con(e.longTramo2, "m, hasta los bloques"));
        r.formula("L_{3} = 1.75 Y_{c}", "1.75 · " + n(d(e.ycControl)), con(e.longTramo3, "m, detrás de los bloques"));
      }
      r.formula("Y_{p} = h D^{0.22}", "tirante al pie de la caída", con(e.yVert94, "m"));
      r.formula("L", "longitud total desde la cresta", con(e.longRapida, "m"));
    }
  });
}

}  // namespace calvento::redaccion
