#include <algorithm>
#include <array>

#include "memoria/lista.h"
#include "poza/tabla_tanques.h"

namespace calvento::lista {

namespace {

/// Energy before the fall or at the end of the chute against that of the smaller conjugate depth, with the tenth of the
/// velocity head that the design loses.
void energiaAntes(Lista& l, const Diseno& x, const Canal& p) {
  constexpr const char* nombre = "Energía antes del resalto";
  const DesignState& e = x.e;
  const double Q = d(e.Q), y1 = d(e.y1), v1 = p.velocidad(Q, y1);
  if (x.vertical() && d(e.tipoTanque) == 0)
    return l.noAplica(nombre, "El chorro rompe en los bloques: Y1 es solo el conjugado de Y2.");
  if (x.vertical()) {
    const double disponible = d(e.cotaFin) - d(e.cotaPoza) + control(x).energia(Q, d(e.ycControl));
    const double E1 = y1 + v1 * v1 / dosG;
    l.anadir(nombre, E1 <= disponible, 100 * E1 / disponible, 100, "%",
             {"El agua llega al resalto con " + n(E1) + " m de los " + n(disponible) + " m que tenía sobre la cresta.",
              "El resalto empezaría con " + n(E1) + " m de energía y la caída da solo " + n(disponible) +
                  " m: las fórmulas no valen para esta caída. Cambie el ancho."},
             rand);
    return;
  }
  // in the inclined drop the rise stands in the crest's elevation and is counted once more, on the safe side
  const double antes = d(e.cotaFin) + d(e.yFin) + d(e.vFin) * d(e.vFin) / dosG +
                       (x.inclinada() ? d(e.sobreelevacion) : 0) - d(e.cotaPoza);
  const double despues = y1 + 1.1 * v1 * v1 / dosG;
  const double residuo = 100 * std::fabs(despues / antes - 1);
  const bool sinHondura = d(e.profPoza) == 0;
  l.anadir(
      nombre, residuo <= 1, residuo, 1, "%",
      {"Al pie de la rampa, Y1 + 1.1 V1²/2g = " + n(despues) + " m, la energía con que llega el agua.",
       sinHondura ? "El canal aguas abajo está tan alto que la poza no necesita profundidad: su fondo quedó a la "
                    "cota del canal y el resalto, ahogado, no es el de este cálculo. Baje la salida o prescinda de "
                    "la poza."
                  : "Al pie de la rampa, Y1 + 1.1 V1²/2g = " + n(despues) + " m y el agua llega con " + n(antes) +
                        " m: el tirante conjugado menor no cierra el balance. Revise elevaciones y ancho."},
      chow);
}

void momento(Lista& l, const Diseno& x, const Canal& p) {
  const double Q = d(x.e.Q);
  const bool deRand = x.vertical() && d(x.e.tipoTanque) == 1;
  // the relations of a free fall hold for the crest's width and are measurements
  const Canal c = deRand ? control(x) : p;
  const double limite = deRand ? 15 : 0.5;
  const double M1 = c.momento(Q, d(x.e.y1)), M2 = c.momento(Q, d(x.e.y2));
  const double residuo = 100 * std::fabs(M1 / M2 - 1);
  l.anadir("Momento a ambos lados del resalto", residuo <= limite, residuo, limite, "%",
           {"La función de momento vale " + n(M1, 4) + " m³ antes y " + n(M2, 4) + " m³ después" +
                (deRand ? ", dentro de la dispersión de los ensayos." : "."),
            "La función de momento vale " + n(M1, 4) + " m³ antes y " + n(M2, 4) +
                " m³ después: los tirantes no son conjugados. Cambie el ancho de la poza o el ahogamiento."},
           deRand ? rand : chow);
}

void tirantes(Lista& l, const Diseno& x, const Canal& p) {
  const DesignState& e = x.e;
  const std::string pareja = "Y1 = " + n(d(e.y1)) + " m, Y2 = " + n(d(e.y2)) + " m";
  const std::string sinUso =
      " Longitud y profundidad de la poza no sirven: cambie el ancho o el talud de la poza, el ahogamiento o la "
      "elevación "
      "de salida.";
  const bool haySalto = haySaltoEn(e);
  l.anadir("Tirantes del resalto, Y1 < Y2", haySalto, d(e.y1), d(e.y2), "m",
           {pareja + ": hay resalto.",
            degenerado(e) ? "Resalto degenerado, Y1 = Y2 = " + n(d(e.y1)) +
                                " m: el cálculo terminó en la solución en que no hay resalto." + sinUso
                          : pareja + ": el cálculo terminó en tirantes que no son de un resalto." + sinUso},
           chow);
  if (!haySalto) return l.noAplica("Fr1 > 1", "No hay resalto.");
  const double F = p.froude(d(e.Q), d(e.y1));
  l.anadir("Fr1 > 1", F > 1, F, 1, "",
           {"El flujo llega al resalto en régimen supercrítico, Fr1 = " + n(F) + ".",
            "Fr1 = " + n(F) + ": el flujo llega subcrítico y no hay resalto. Revise el ancho de la poza."},
           chow);
}

}  // namespace

void deResalto(Lista& l, const Diseno& x) {
  const Canal p = poza(x);
  if (haySaltoEn(x.e)) {
    energiaAntes(l, x, p);
    momento(l, x, p);
  } else {
    l.noAplica("Energía antes del resalto", "No hay resalto.");
    l.noAplica("Momento a ambos lados del resalto", "No hay resalto.");
  }
  tirantes(l, x, p);
}

namespace {

void tipo(Lista& l, const Diseno& x, const Canal& p) {
  constexpr const char *factible = "Tipo de tanque factible", *intervalo = "Número de Froude del tipo de tanque";
  if (x.vertical()) {
    l.noAplica(factible, "La caída vertical no elige entre tipos de tanque.");
    l.noAplica(intervalo, "La caída vertical no elige entre tipos de tanque.");
    return;
  }
  const int elegido = static_cast<int>(std::clamp(d(x.e.tipoTanque), 0.0, 99.0));
  if (elegido < 1 || elegido > 6 || elegido >= x.tanques.filas()) {
    l.anadir(factible, false, elegido, 1, "tipo",
             {{},
              "No se ha elegido un tipo de tanque: la longitud de la poza no es de este diseño. Elija una fila de la "
              "tabla."},
             peterka);
    l.noAplica(intervalo, "No se ha elegido un tipo de tanque.");
    return;
  }
  const std::string& cual = x.tanques.texto(elegido, 0);
  const std::string& causa = x.tanques.texto(elegido, 3);
  l.anadir(factible, esFactible(x.tanques, elegido), elegido, elegido, "tipo",
           {cual + ": " + causa + ".", cual + " no es factible: " + causa + ". Elija otra fila de la tabla."}, peterka);

  struct Intervalo {
    double desde, hasta;
  };
  static constexpr std::array<Intervalo, 5> intervalos = {{{4.5, 15}, {2.5, 4.5}, {4.5, 1e9}, {4.5, 1e9}, {1.7, 17}}};
  if (elegido == 6) {
    l.noAplica(intervalo, "El tanque trapezoidal no tiene un intervalo de Froude.");
    return;
  }
  const Intervalo i = intervalos[static_cast<std::size_t>(elegido - 1)];
  const double F = p.froude(d(x.e.Q), d(x.e.y1));
  // a Froude number at the very limit is judged by the table, to whose digits it is known
  const bool dentro = F > i.desde * 0.999 && F < i.hasta * 1.001;
  l.anadir(intervalo, dentro, F,
           F < i.desde     ? i.desde
           : i.hasta < 1e9 ? i.hasta
                           : i.desde,
           "",
           {"Fr1 = " + n(F) + " está en el intervalo del tipo " + cual + ".",
            "Fr1 = " + n(F) + " queda fuera del intervalo del tipo " + cual + ". Elija otro tipo o cambie el ancho."},
           peterka);
}

/// How far the jet spreads on the ramp, by a flare of one to three times its Froude number.
void ancho(Lista& l, const Diseno& x) {
  constexpr const char* nombre = "Ancho de la poza";
  const DesignState& e = x.e;
  if (x.vertical()) return l.noAplica(nombre, "La poza de una caída vertical tiene el ancho de la cresta.");
  const double b0 = x.rapida() ? d(e.bRapida) : d(e.bEntradaCaida);
  const double F = x.rapida() ? d(e.frFin) : d(e.frArriba);
  const double B = x.rapida() ? d(e.bPoza) : d(e.bPozaCaida);
  const double rampa = (d(e.cotaFin) - d(e.cotaPoza)) * std::hypot(1, d(e.zRampaEntrada));
  const double W = b0 + 2 * rampa / (3 * F);
  l.anadir(nombre, B < W, B, W, "m",
           {"El chorro se abre en la rampa hasta " + n(W) + " m y llena la poza, de " + n(B) + " m.",
            "El chorro solo se abre en la rampa hasta " + n(W) + " m y la poza tiene " + n(B) +
                " m: habría remolinos a los lados. Reduzca el ancho de la poza a menos de ese valor."},
           canalesPequenos);
}

/// The energy level of the canal over that of the jump's end.
void sumergencia(Lista& l, const Diseno& x, const Canal& p) {
  const DesignState& e = x.e;
  const double Q = d(e.Q);
  const double E2 = p.energia(Q, d(e.y2));
  const double abajo = d(e.cotaAbajo) - d(e.cotaPoza) + canalAbajo(e).energia(Q, d(e.ynAbajo));
  const double k = 100 * (abajo / E2 - 1);
  // the floor of a vertical drop is built on the grid of 0.05 m, to the nearest
  const double limite = x.vertical() ? -100 * 0.0251 / E2 : -0.5;
  l.anadir(
      "Sumergencia del resalto", k >= limite, k, limite, "%",
      {"El canal aguas abajo tiene " + n(abajo) + " m de energía sobre el fondo de la poza y el fin del resalto " +
           n(E2) + " m.",
       "El fin del resalto tiene " + n(E2) + " m de energía sobre el fondo de la poza y el canal aguas abajo solo " +
           n(abajo) + " m: el resalto se corre fuera de la poza. Aumente el ahogamiento o la profundidad."},
      peterka);
}

void diezCaudales(Lista& l, const Rejilla& t) {
  constexpr int columnaCaudal = 1, columnaVeredicto = 9;
  int barridos = 0, filas = 0;
  std::string cuales;
  for (int f = t.filasTitulo(); f < t.filas() && t.columnas() > columnaVeredicto; ++f) {
    const std::string& veredicto = t.texto(f, columnaVeredicto);
    filas += !veredicto.empty();
    if (veredicto != "--") continue;
    ++barridos;
    cuales += (cuales.empty() ? "" : ", ") + t.texto(f, columnaCaudal);
  }
  l.anadir("Poza con diez caudales", barridos == 0 && filas == 10, barridos, 0, "caudales",
           {"La poza retiene el resalto del caudal de diseño a su décima parte.",
            barridos > 0 ? "El resalto es barrido con Q = " + cuales + " m³/s. Aumente el ahogamiento o la profundidad."
                         : std::string("La verificación no se pudo calcular con los diez caudales. Revise los datos.")},
           peterka);
}

void muros(Lista& l, const Diseno& x) {
  constexpr const char* nombre = "Revestimiento sobre el agua";
  const DesignState& e = x.e;
  double menor = std::nan("");
  std::string donde;
  const auto mirar = [&](Single altura, double tirante, const char* lugar) {
    if (d(altura) - tirante >= menor) return;
    menor = d(altura) - tirante;
    donde = lugar;
  };
  mirar(e.hArriba, d(e.ynArriba), "el canal aguas arriba");
  mirar(e.hAbajo, d(e.ynAbajo), "el canal aguas abajo");
  if (!x.vertical()) mirar(e.hPoza, d(e.y2), "la poza, sobre el tirante conjugado");
  if (x.rapida()) mirar(e.hRapida, d(e.yFin), "la rápida");
  l.anadir(nombre, menor > 0, menor, 0, "m",
           {"El menor bordo libre es de " + n(menor) + " m, en " + donde + ".",
            "El revestimiento no pasa del agua en " + donde + " (" + n(menor) + " m). Aumente el bordo libre."},
           canalesPequenos);
}

void desnivelDeEnergia(Lista& l, const Diseno& x) {
  const DesignState& e = x.e;
  const double abajo = d(e.cotaAbajo) + canalAbajo(e).energia(d(e.Q), d(e.ynAbajo));
  const double arriba = d(e.cotaFin) + d(e.yFin) + d(e.vFin) * d(e.vFin) / dosG;
  l.anadir("Energía de llegada sobre la de salida", abajo < arriba, arriba - abajo, 0, "m",
           {"Entre la llegada a la poza y el canal aguas abajo se disipan " + n(arriba - abajo) + " m de energía.",
            "El canal aguas abajo tiene " + n(abajo - arriba) +
                " m más de energía que el agua que llega a la poza: no hay nada que disipar. Revise las elevaciones."});
}

}  // namespace

void dePoza(Lista& l, const Diseno& x, const Rejilla& verificacion) {
  const Canal p = poza(x);
  if (!haySaltoEn(x.e)) {
    // without a jump there is nothing that a basin could be judged by
    for (const char* nombre : {"Tipo de tanque factible", "Número de Froude del tipo de tanque", "Ancho de la poza",
                               "Sumergencia del resalto", "Poza con diez caudales"})
      l.noAplica(nombre, "No hay resalto.");
  } else {
    tipo(l, x, p);
    ancho(l, x);
    sumergencia(l, x, p);
    diezCaudales(l, verificacion);
  }
  muros(l, x);
  desnivelDeEnergia(l, x);
}

}  // namespace calvento::lista
