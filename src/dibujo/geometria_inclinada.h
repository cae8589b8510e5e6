#pragma once

#include <array>
#include <vector>

#include "dibujo/geometria_poza.h"

namespace calvento {

/// The outlines of an inclined drop in world metres: X runs from the crest, Y is the elevation. The window paints them
/// and the CAD export sends them. Every outline has its number of points whatever the record holds.
class GeometriaInclinada {
 public:
  explicit GeometriaInclinada(const DesignState& estado);

  const Valores& valores() const { return v; }
  const EstacionesPoza& estaciones() const { return p; }
  /// Start of the drawn upstream canal, of the inlet transition and of the control section.
  double xCanal() const { return xTransE() - canalDibujado; }
  double xTransE() const { return xControl() - v.longTransEntrada; }
  double xControl() const { return -v.longControl; }
  /// Bed of the upstream canal at a distance before the crest: it lies deeper than the crest by the rise.
  double fondoArriba(double distancia) const { return v.cotaFin - v.sobreelevacion + distancia * v.sArriba; }
  /// Upstream end of the crest's top.
  Punto inicioControl() const { return {xControl(), v.sArriba * v.longControl + v.cotaFin}; }
  /// Bed of the crest curve.
  double curva(double x) const { return arco(x, v.radioCurva); }
  /// Centre of the crest curve.
  Punto centroCurva() const;
  /// Foot of the sill's ramp on the bed of the canal.
  Punto puntoUmbral() const;
  /// Elevation of the energy line at the crest.
  double energiaCresta() const { return v.vFin * v.vFin / dosG + v.yFin + v.cotaFin; }

  std::vector<Punto> agua() const;        ///< water body: 52 points
  std::vector<Punto> superficie() const;  ///< its upper side: 31 points
  std::vector<Punto> concreto() const;    ///< concrete of the drop: 39 points
  std::vector<Punto> canal() const;       ///< lining of the upstream canal with the sill: 7 points
  /// Lining of the downstream canal: 5 points.
  std::vector<Punto> canalAbajo() const { return revestimientoAbajo(v, p); }
  std::vector<Punto> corona() const;         ///< top of the lining: 6 points
  std::vector<Punto> energia() const;        ///< energy line: 7 points
  std::vector<Punto> puntosControl() const;  ///< control points of the bed: 8

  /// The plan, about its axis.
  PlantaPoza planta() const { return {v, p, {xCanal(), xTransE(), xControl(), 0}, v.bEntradaCaida, v.bPozaCaida}; }

 private:
  double arco(double x, double radio) const;
  void trazarSuperficie(Trazo& trazo) const;
  void trazarCurva(Trazo& trazo, double sobre) const;
  void trazarCurvaDeVuelta(Trazo& trazo, int hasta) const;

  Valores v;
  EstacionesPoza p;
};

}  // namespace calvento
