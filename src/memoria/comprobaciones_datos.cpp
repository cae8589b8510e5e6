#include <algorithm>

#include "comun/numeros.h"
#include "hidraulica/solvers.h"
#include "memoria/lista.h"

namespace calvento::lista {

namespace {

void camposNumericos(Lista& l, const Diseno& x) {
  int malos = 0;
  std::string cuales;
  const auto mirar = [&](const std::vector<Linea<Dato>>& lineas, const TextosVentana& textos) {
    for (const Linea<Dato>& linea : lineas)
      for (const Dato& dato : linea.piezas) {
        const auto it =
            std::find_if(textos.begin(), textos.end(), [&](const auto& t) { return t.first == dato.control; });
        if (it == textos.end() || it->second.empty() || esNumero(it->second)) continue;
        ++malos;
        cuales += (cuales.empty() ? "«" : ", «") + it->second + "» en " + std::string(linea.lugar) +
                  (dato.simbolo.empty() ? "" : " (" + std::string(dato.simbolo) + ")");
      }
  };
  mirar(x.ficha->datos, x.campos);
  mirar(x.ficha->datosParametros, x.parametros);
  l.observar("Campos numéricos", malos == 0, malos, 0, "campos",
             {"Todos los campos con texto son números.",
              "Se leyó solo el número con que empieza el texto de: " + cuales + ". Escriba el número solo."});
}

void valoresUsuales(Lista& l, const Diseno& x) {
  const DesignState& e = x.e;
  int raros = 0;
  std::string cuales;
  const auto mirar = [&](const char* lugar, const char* simbolo, Single valor, double minimo, double maximo) {
    if (d(valor) >= minimo && d(valor) <= maximo) return;
    ++raros;
    cuales += std::string(cuales.empty() ? "" : "; ") + simbolo + " = " + texto(valor) + " en " + lugar;
  };
  const auto canal = [&](const char* lugar, Single rugosidad, Single talud, Single pendiente) {
    mirar(lugar, "n", rugosidad, 0.00799, 0.10001);
    mirar(lugar, "Z", talud, 0, 4);
    mirar(lugar, "S", pendiente, 0, 1);
  };
  canal("el canal aguas arriba", e.nArriba, e.zArriba, e.sArriba);
  canal("el canal aguas abajo", e.nAbajo, e.zAbajo, e.sAbajo);
  if (x.rapida()) {
    canal("la rápida", e.nRapida, e.zRapida, e.sTramo1);
    if (e.numTramos >= 2) mirar("el tramo 2", "S", e.sTramo2, 0, 1);
    if (e.numTramos >= 3) mirar("el tramo 3", "S", e.sTramo3, 0, 1);
  }
  if (!x.vertical()) mirar("la poza", "Z", Single(poza(x).z), 0, 4);
  l.observar(
      "Valores usuales", raros == 0, raros, 0, "valores",
      {"Rugosidades entre 0.008 y 0.1, taludes hasta 4 y pendientes hasta 1.",
       "Fuera de lo usual (n de 0.008 a 0.1, Z hasta 4, S hasta 1): " + cuales + ". Revise si está bien escrito."},
      chow);
}

void tirantesPequenos(Lista& l, const Diseno& x) {
  const DesignState& e = x.e;
  double menor = std::min({d(e.ynArriba), d(e.ynAbajo), d(e.y1)});
  if (x.rapida()) menor = std::min(menor, d(e.yFin));
  l.observar(
      "Tirantes de más de 3 cm", menor >= 0.03, menor, 0.03, "m",
      {"Los tirantes están en el intervalo en que el cálculo es exacto.",
       "El menor tirante es de " + n(menor) +
           " m: los tirantes se hallan con 0.001 m de tolerancia, y bajo 3 cm el normal o el crítico puede quedar "
           "hasta 7 mm por encima del verdadero. Use un canal más angosto."});
}

}  // namespace

void deDatos(Lista& l, const Diseno& x) {
  camposNumericos(l, x);
  valoresUsuales(l, x);
  tirantesPequenos(l, x);
}

namespace {

constexpr double toleranciaManning = 0.5;  ///< % of the discharge
constexpr double toleranciaCritica = 1.5;  ///< % of 1, whose error is three times that of the depth

/// Names of the checks of one canal, and how its depths stand in sentences.
struct NombresCanal {
  const char *manning, *critico, *regimen, *lugar;
};

void manning(Lista& l, const NombresCanal& nombres, const Canal& c, double Q, double yn) {
  const double residuo = 100 * std::fabs(c.caudalUniforme(yn) / Q - 1);
  l.anadir(nombres.manning, residuo <= toleranciaManning, residuo, toleranciaManning, "%",
           {"Con Yn = " + n(yn) + " m la fórmula de Manning da " + n(c.caudalUniforme(yn)) + " m³/s.",
            "Con Yn = " + n(yn) + " m la fórmula de Manning da " + n(c.caudalUniforme(yn)) + " m³/s en vez de " + n(Q) +
                ": el tirante normal no es exacto. Un canal más angosto, de más tirante, se calcula mejor."},
           chow);
}

void critico(Lista& l, const char* nombre, const Canal& c, double Q, double yc) {
  const double residuo = 100 * std::fabs(c.condicionCritica(Q, yc) - 1);
  l.anadir(nombre, residuo <= toleranciaCritica, residuo, toleranciaCritica, "%",
           {"Con Yc = " + n(yc) + " m, Q²T/(gA³) = " + n(c.condicionCritica(Q, yc), 4) + ".",
            "Con Yc = " + n(yc) + " m, Q²T/(gA³) = " + n(c.condicionCritica(Q, yc), 4) +
                " y debería ser 1: el tirante crítico no es exacto."},
           chow);
}

double tiranteCritico(const Canal& c, Single Q) {
  double yc = std::nan("");
  pasandoFallos([&] { yc = d(YCRITICO(Q, c.b, c.z)); });
  return yc;
}

void regimen(Lista& l, const NombresCanal& nombres, double F, std::string_view rapido) {
  const std::string flujo = "El " + std::string(nombres.lugar) + " tiene F = " + n(F);
  l.observar(nombres.regimen, F < 0.86, F, 0.86, "",
             {flujo + ": flujo subcrítico.",
              F <= 1.13 ? flujo + ", cerca del crítico: la superficie ondula y el tirante es incierto. Cambie su "
                                  "pendiente o su sección."
                        : flujo + ": flujo supercrítico. " + std::string(rapido)},
             chow);
}

/// The energy that the canal has and the one that the control section takes at critical depth.
void sobreelevacion(Lista& l, const Diseno& x, double yc) {
  constexpr const char* nombre = "Sobre elevación en el control";
  const double Q = d(x.e.Q);
  const Canal arriba = canalArriba(x.e), c = control(x);
  const double E1 = arriba.energia(Q, d(x.e.ynArriba)), Ec = c.energia(Q, yc);
  const double dh = E1 - Ec;
  if (dh > -0.0005) {
    l.anadir(nombre, true, dh, 0, "m",
             {"La energía del canal, " + n(E1) + " m, alcanza para la crítica, " + n(Ec) +
                  " m: el canal conserva su tirante normal.",
              {}},
             chow);
    return;
  }
  const double y =
      ecuaciones::raiz([&](double t) { return arriba.energia(Q, t) - Ec; }, d(x.e.ynArriba), d(x.e.ynArriba) + 2 * Ec);
  l.anadir(
      nombre, false, dh, 0, "m",
      {{},
       "Al canal le faltan " + n(-dh) + " m de energía para pasar por el control: se remansa " +
           n(y - d(x.e.ynArriba)) + " m sobre su tirante normal. Con b = " + n(ecuaciones::anchoCritico(Q, E1, c.z)) +
           " m la sobre elevación sería 0: ensanche " + (x.rapida() ? "la rápida." : "la poza.")},
      chow);
}

}  // namespace

void deCanales(Lista& l, const Diseno& x) {
  const DesignState& e = x.e;
  const double Q = d(e.Q);
  const Canal arriba = canalArriba(e), abajo = canalAbajo(e);
  constexpr NombresCanal nombresArriba{"Manning, canal aguas arriba", "Tirante crítico, canal aguas arriba",
                                       "Régimen del canal aguas arriba", "canal aguas arriba"};
  constexpr NombresCanal nombresAbajo{"Manning, canal aguas abajo", "Tirante crítico, canal aguas abajo",
                                      "Régimen del canal aguas abajo", "canal aguas abajo"};
  manning(l, nombresArriba, arriba, Q, d(e.ynArriba));
  critico(l, nombresArriba.critico, arriba, Q, tiranteCritico(arriba, e.Q));
  const double F = arriba.froude(Q, d(e.ynArriba));
  if (x.inclinada() && F > 1.13)
    l.anadir(nombresArriba.regimen, true, F, 1.13, "",
             {"El canal llega en régimen supercrítico: la caída empieza en una curva, sin sección de control.", {}},
             chow);
  else
    regimen(l, nombresArriba, F, "La rápida empieza con su tirante normal, sin sección de control.");

  constexpr const char* nombreControl = "Tirante crítico en el control";
  if (d(e.frArriba) > 1) {
    l.noAplica(nombreControl, "El canal llega en régimen supercrítico: no hay sección de control.");
    l.noAplica("Sobre elevación en el control", "El canal llega en régimen supercrítico: no hay sección de control.");
  } else {
    critico(l, nombreControl, control(x), Q, d(e.ycControl));
    sobreelevacion(l, x, d(e.ycControl));
  }

  manning(l, nombresAbajo, abajo, Q, d(e.ynAbajo));
  critico(l, nombresAbajo.critico, abajo, Q, tiranteCritico(abajo, e.Q));
  regimen(l, nombresAbajo, abajo.froude(Q, d(e.ynAbajo)),
          "Su tirante no retiene el resalto fuera de la poza: confíe solo en la profundidad de esta.");
}

}  // namespace calvento::lista
