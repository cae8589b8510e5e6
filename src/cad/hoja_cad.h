#pragma once

#include <array>
#include <vector>

#include "dibujo/bloques.h"
#include "dibujo/cotas.h"
#include "dibujo/rotulos.h"

namespace calvento {

/// Labels that are sent together.
struct GrupoTextos {
  std::vector<ParEstacion> pares;
  std::vector<RotuloPendiente> pendientes;
};

/// All that a structure sends, in the coordinates of its figure on the canvas.
struct HojaCad {
  /// At the start of the structure, along its reaches, at the end of the curve, at the foot of the ramp, at the outlet.
  std::array<GrupoTextos, 5> textos;
  std::vector<Punto> concreto;                  ///< DIBUJARAPIDA
  std::vector<Punto> corona;                    ///< DIBUJACANAL
  std::vector<std::vector<Punto>> bordesFondo;  ///< and the lines that it draws in the plan
  std::vector<Segmento> lineasPlanta;
  std::vector<Punto> superficie;  ///< DIBUJATIRANTES
  std::vector<Punto> canal;       ///< CANAL
  std::vector<Punto> canalAbajo;  ///< CANALB
  std::vector<Punto> muroBajo;    ///< PLANTA, and the other wall of it
  std::vector<Punto> muroAlto;
  std::vector<Punto> energia;  ///< DIBUJAGRADIENTE
  // ACOTAR
  std::vector<Punto> puntosControl;
  std::vector<CadenaCotas> cadenas;
  std::vector<CotaAltura> alturas;
  std::vector<AnchoEn> anchos;  ///< about the axis
  double eje = 0;
  std::vector<Segmento> distancias;
  std::vector<HileraDibujada> bloques;  ///< DIBUBABLOCKS
};

/// What all structures send alike, from the outlines and dimensions of a geometry.
template <class Geometria>
HojaCad hojaDe(const Geometria& g) {
  HojaCad h;
  h.concreto = g.concreto();
  h.corona = g.corona();
  h.canal = g.canal();
  h.canalAbajo = g.canalAbajo();
  h.energia = g.energia();
  h.puntosControl = g.puntosControl();
  h.cadenas = {cadenaSeccion(g)};
  h.alturas = alturasAcotadas(g);
  h.anchos = anchosAcotados(g);
  return h;
}

/// Puts the plan of a structure with a curve and an entrance ramp into its sheet.
void ponerPlanta(HojaCad& hoja, const PlantaPoza& planta, double eje);

}  // namespace calvento
