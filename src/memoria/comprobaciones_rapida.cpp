#include <algorithm>
#include <array>

#include "memoria/lista.h"
#include "reportes/estaciones.h"
#include "reportes/tramos_rapida.h"

namespace calvento::lista {

namespace {

constexpr std::string_view montuori =
    "Montuori, C. (1963), discusión de «Stability Aspects of Flow in Open Channels», J. Hydraulics Div., ASCE; "
    "Aisenbrey, A. J. y otros (1978), Design of Small Canal Structures, USBR";

void elevaciones(Lista& l, const Diseno& x) {
  constexpr const char* nombre = "Elevaciones descendentes";
  const DesignState& e = x.e;
  const auto tramos = tramosRapida(e);
  double menor = std::nan("");
  std::string donde;
  const auto mirar = [&](double caida, const std::string& lugar) {
    if (caida >= menor) return;
    menor = caida;
    donde = lugar;
  };
  for (std::size_t i = 0; i < tramos.size(); ++i)
    mirar((tramos[i].cotaA - tramos[i].cotaB).valor(), "el tramo " + std::to_string(i + 1));
  mirar(d(e.cotaFin) - d(e.cotaPoza), "la trayectoria");
  if (tramos.empty()) {
    l.anadir(nombre, false, 0, 1, "tramos",
             {{}, "La rápida no tiene de 1 a 3 tramos: no hay perfil. Corrija el número."});
    return;
  }
  l.anadir(nombre, menor > 0, menor, 0, "m",
           {"Cada punto está más bajo que el anterior; la menor caída, " + n(menor) + " m, es la de " + donde + ".",
            "El fondo no baja en " + donde + " (" + n(menor) + " m). Corrija las elevaciones."});
}

void perfil(Lista& l, const Diseno& x) {
  const DesignState& e = x.e;
  const Canal c{d(e.bRapida), d(e.zRapida)};
  const double Q = d(e.Q);
  const auto tramos = tramosRapida(e);
  const std::size_t porTramo = tramos.empty() ? 0 : e.perfil.size() / tramos.size();
  double menorF = std::numeric_limits<double>::infinity(), mayorSubida = -menorF;
  double xF = 0, xSubida = 0;
  double anterior = std::nan("");
  for (std::size_t i = 0; porTramo > 0 && i < e.perfil.size(); ++i) {
    const FilaPerfil& f = e.perfil[i];
    const double F = c.froude(Q, d(f.tirante));
    if (!(F >= menorF)) menorF = F, xF = d(f.x);
    const TramoRapida& t = tramos[std::min(i / porTramo, tramos.size() - 1)];
    // the bed's fall from the elevations: the stored ones have the resolution of four bytes
    const double E = c.energia(Q, d(f.tirante));
    const double subida = E - anterior - (t.cotaA - t.cotaB).valor() / static_cast<double>(porTramo);
    if (!(subida <= mayorSubida) && i > 0) mayorSubida = subida, xSubida = d(f.x);
    anterior = E;
  }
  const auto estacion = [&](double en) { return textoEstacion(Real(d(e.progresivaInicio) + en)); };
  l.anadir(
      "Flujo supercrítico en la rápida", porTramo > 0 && menorF > 1, menorF, 1, "",
      {"El menor número de Froude de la rápida es " + n(menorF) + ".",
       "En " + estacion(xF) + " el número de Froude es " + n(menorF) +
           ": el flujo vuelve a ser subcrítico y puede haber un resalto en la rápida. Aumente la pendiente del tramo."},
      chow);
  // what a station keeps is one correction older than what it shows: a millimetre, and a part of the energy
  const double tolerancia = 0.001 + 0.0005 * anterior;
  l.anadir("Línea de energía descendente", porTramo > 0 && mayorSubida < tolerancia, mayorSubida, tolerancia, "m",
           {"La energía baja de una sección a la siguiente en toda la rápida.",
            "En " + estacion(xSubida) + " la línea de energía sube " + n(mayorSubida) +
                " m: el perfil no es un flujo posible. Revise pendientes y elevaciones de los tramos."},
           chow);
}

/// The ramp must be no steeper than the jet where that reaches the floor of the basin, and is to be tangent to it.
void trayectoria(Lista& l, const Diseno& x) {
  const DesignState& e = x.e;
  const double S = d(e.sUltimoTramo), a = -d(e.trayA), Z = d(e.zRampaEntrada);
  const double caida = d(e.cotaFin) - d(e.cotaPoza);
  const double alPiso = (std::sqrt(S * S + 4 * a * caida) - S) / (2 * a);
  const double zMin = 1 / (S + 2 * a * alPiso);
  const double X = d(e.xTrayectoria);
  l.anadir(
      "Talud de la rampa contra la parábola", Z >= zMin - 0.0005 && X > 0, Z, zMin, "",
      {"La rampa no es más empinada que el chorro al llegar al fondo (Z = " + n(zMin) + ").",
       X > 0 ? "La rampa es más empinada que el chorro al llegar al fondo (Z = " + n(zMin) +
                   "): la lámina se despega. Aumente el talud de la rampa de ingreso."
             : "La rápida es tan empinada como la rampa: no cabe una trayectoria. Reduzca el talud de la rampa o la "
               "pendiente del último tramo."},
      canalesPequenos);
  const double pendiente = S + 2 * a * X;
  const double angulo = std::fabs(std::atan(pendiente) - std::atan(1 / Z)) * 180 / std::acos(-1.0);
  l.observar("Tangencia de la trayectoria y la rampa", angulo < 1, angulo, 1, "°",
             {"La trayectoria termina con la pendiente de la rampa.",
              "La trayectoria termina con pendiente " + n(pendiente) + " y la rampa sigue con " + n(1 / Z) +
                  ": el punto de tangencia es exacto solo con talud 2; con el talud " + n(Z, 2) + " estaría a " +
                  n((1 / Z - S) / (2 * a)) + " m y no a " + n(X) + " m. Suavice el quiebre en obra."},
             canalesPequenos);
}

void estabilidadDelFlujo(Lista& l, const Rejilla& t) {
  static constexpr std::array<std::string_view, 3> nombres = {
      "Estabilidad del flujo con Q", "Estabilidad del flujo con Q/2", "Estabilidad del flujo con Q/5"};
  for (std::size_t i = 0; i < nombres.size(); ++i) {
    const int c = 3 * static_cast<int>(i) + 3;
    if (c >= t.columnas()) {
      l.anadir(nombres[i], false, std::nan(""), 0, "estaciones",
               {{}, "La estabilidad no se pudo calcular: revise los datos de la rápida."}, montuori);
      continue;
    }
    int inestables = 0;
    std::string desde;
    for (int f = t.filasTitulo() + 1; f < t.filas(); ++f)
      if (t.texto(f, c) != "Flujo Estable" && inestables++ == 0) desde = t.texto(f, 0);
    // a fifth of the discharge leaves the walls room for its waves
    const bool deQuinta = i == 2;
    l.anadir(
        nombres[i], inestables == 0, inestables, 0, "estaciones",
        {"Los números de Vedernikov y Montuori dan flujo estable en toda la rápida.",
         "Pueden nacer ondas desde la estación " + desde +
             (deQuinta ? ". Con tan poco caudal caben en el bordo libre, pero golpean la poza: una rápida más angosta "
                         "las reduce."
                       : ". Use una rápida más angosta o más corta, o dé bordo libre para las ondas y revise la "
                         "poza.")},
        montuori, deQuinta ? Estado::observacion : Estado::noCumple);
  }
}

}  // namespace

void deRapida(Lista& l, const Diseno& x, const Rejilla& estabilidad) {
  elevaciones(l, x);
  perfil(l, x);
  trayectoria(l, x);
  estabilidadDelFlujo(l, estabilidad);
}

}  // namespace calvento::lista
