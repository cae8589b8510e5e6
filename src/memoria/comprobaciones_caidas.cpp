#include <algorithm>

#include "memoria/lista.h"

namespace calvento::lista {

namespace {

void desnivel(Lista& l, const Diseno& x) {
  const DesignState& e = x.e;
  const double limite = x.vertical() ? 4.6 : 4.5;
  // the question is asked before the crest is raised
  const double caida = d(e.cotaFin) - (x.inclinada() ? d(e.sobreelevacion) : 0) - d(e.cotaAbajo);
  l.anadir("Desnivel de la caída", caida > 0 && caida < limite + 1e-4, caida, limite, "m",
           {"El desnivel, " + n(caida) + " m, es de una caída.",
            caida > 0 ? "El desnivel, " + n(caida) + " m, pasa de " + n(limite, 1) +
                            " m: diseñe una rápida o dos caídas más bajas."
                      : "La salida no está más baja que la cresta. Corrija las elevaciones."},
           canalesPequenos);
}

void curva(Lista& l, const Diseno& x) {
  const DesignState& e = x.e;
  const double sobreFondo = d(e.cotaTrayectoria) - d(e.cotaPoza);
  l.anadir("Curva de la cresta", sobreFondo > 0 && d(e.xTrayectoria) > 0, sobreFondo, 0, "m",
           {"La curva termina sobre la rampa, " + n(sobreFondo) + " m más alta que el fondo de la poza.",
            "La curva de radio " + n(d(e.radioCurva), 2) +
                " m termina más abajo que la poza: la caída es demasiado baja para ella. Ensanche la poza o aumente el "
                "desnivel."});
}

/// Loss of the air through the pipes as they are built, with the discharge of air that the nappe takes away.
void ventilacion(Lista& l, const Diseno& x) {
  constexpr const char* nombre = "Aireación de la lámina";
  const DesignState& e = x.e;
  if (d(e.tipoTransVert) == 0) {
    const double contraccion = d(e.longTransVert);
    l.anadir(
        nombre, contraccion > 0, contraccion, 0, "m",
        {"El aire entra por la contracción de " + n(contraccion, 2) + " m a cada lado.",
         "Sin contracción ni tubos no entra aire bajo la lámina, que se pega al muro y vibra. Dé una contracción o "
         "use agujeros de ventilación."},
        canalesPequenos);
    return;
  }
  const double H = canalArriba(e).energia(d(e.Q), d(e.ynArriba));
  const double aire = 0.1 * d(e.bPozaCaida) * 1.48 * std::pow(H, 1.5) / std::pow(d(e.yVert94) / d(e.ynArriba), 1.5);
  const double D = d(e.diamTubo), area = std::acos(-1.0) * D * D / 4;
  const double v = aire / (d(e.numTubos) * area);
  constexpr double friccion = 0.02, local = 0.5 + 1.1 + 1, densidad = 830, admitida = 0.04;
  const double perdida = (local + friccion * d(e.longTubo) / D) * v * v / dosG / densidad;
  const double necesarios = d(e.numTubos) * std::sqrt(perdida / admitida);
  l.observar(
      nombre, perdida <= admitida, perdida, admitida, "m",
      {n(d(e.numTubos), 0) + " tubos llevan " + n(aire) + " m³/s de aire con " + n(perdida) +
           " m de agua de subpresión.",
       n(d(e.numTubos), 0) + " tubos llevarían " + n(aire) + " m³/s de aire con " + n(perdida) +
           " m de agua de subpresión, más de la admitida: la fricción de varios tubos delgados es mayor que la de "
           "uno grueso de igual área. Ponga " +
           n(std::ceil(necesarios), 0) + " o un diámetro mayor."});
}

void cresta(Lista& l, const Diseno& x) {
  const DesignState& e = x.e;
  const double H = canalArriba(e).energia(d(e.Q), d(e.ynArriba));
  const double B = d(e.Q) / (1.48 * std::pow(H, 1.5));
  const double desvio = 100 * (d(e.bPozaCaida) / B - 1);
  l.observar("Ancho de la cresta", std::fabs(desvio) <= 15, d(e.bPozaCaida), B, "m",
             {"El ancho es el que propone la fórmula del vertedero, dentro de 15 %.",
              "Con la energía del canal la fórmula del vertedero propone " + n(B) + " m: " +
                  (desvio < 0 ? "una cresta más angosta levanta el agua del canal."
                              : "una cresta más ancha baja su tirante y lo acelera.")});
}

void pie(Lista& l, const Diseno& x) {
  const DesignState& e = x.e;
  const double altura = d(e.cotaFin) - d(e.cotaPoza);
  const double agua = std::max(d(e.yVert94), d(e.cotaAbajo) + d(e.ynAbajo) - d(e.cotaPoza));
  l.anadir("Caída libre de la lámina", agua < altura, agua, altura, "m",
           {"El agua de la poza, " + n(agua) + " m, queda bajo la cresta.",
            "El agua de la poza, " + n(agua) +
                " m, llega a la cresta: la lámina no cae libre. Aumente el desnivel o el "
                "ancho."},
           rand);
}

}  // namespace

void deCaidas(Lista& l, const Diseno& x) {
  desnivel(l, x);
  if (x.inclinada()) return curva(l, x);
  cresta(l, x);
  pie(l, x);
  ventilacion(l, x);
}

}  // namespace calvento::lista
