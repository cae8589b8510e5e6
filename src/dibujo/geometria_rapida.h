#pragma once

#include <array>
#include <span>
#include <vector>

#include "dibujo/geometria_poza.h"

namespace calvento {

/// One reach of the chute as it is drawn.
struct TramoRapida {
  Punto inicio;      ///< upstream end of the bed
  Punto fin;         ///< downstream end of the bed
  double longitud;   ///< horizontal length as designed
  double pendiente;  ///< slope as designed
};

/// The outlines of a chute in world metres: X runs from the control section, Y is the elevation. The window paints
/// them and the CAD export sends them. Every outline has its number of points whatever the record holds.
class GeometriaRapida {
 public:
  explicit GeometriaRapida(const DesignState& estado);

  const Valores& valores() const { return v; }
  const EstacionesPoza& estaciones() const { return p; }
  double xCanal() const { return -canalDibujado - v.longTransEntrada; }
  /// Bed of the upstream canal at a distance before the control section.
  double fondoArriba(double distancia) const { return v.cotaInicio + distancia * v.sArriba; }
  /// Bed of the trajectory.
  double parabola(double x) const;
  std::span<const TramoRapida> tramos() const { return {tramos_.data(), static_cast<std::size_t>(v.numTramos)}; }
  /// Foot of the inlet sill on the bed of the canal.
  Punto puntoUmbral() const;
  /// Elevation of the energy line at the end of the chute.
  double energiaFin() const;

  /// Water body: rows of the profile + 53 + numTramos points.
  std::vector<Punto> agua() const;
  /// The upper side of the water body: rows of the profile + 31 points.
  std::vector<Punto> superficie() const;
  /// Concrete of trajectory, ramps and basin: 36 points.
  std::vector<Punto> concreto() const;
  /// Lining of the upstream canal, sill and chute: 2 numTramos + 8 points.
  std::vector<Punto> canal() const;
  /// Lining of the downstream canal: 5 points.
  std::vector<Punto> canalAbajo() const { return revestimientoAbajo(v, p); }
  /// Top of the lining from end to end: numTramos + 7 points.
  std::vector<Punto> corona() const;
  /// Energy line from end to end: numTramos + 7 points.
  std::vector<Punto> energia() const;
  /// Control points of the bed: numTramos + 7 of them.
  std::vector<Punto> puntosControl() const;

  /// The plan, about its axis.
  PlantaPoza planta() const { return {v, p, {xCanal(), -v.longTransEntrada, 0, v.longRapida}, v.bRapida, v.bPoza}; }

 private:
  double fondoEnFila(std::size_t fila, double x) const;
  void trazarSuperficie(Trazo& trazo) const;
  void trazarTrayectoria(Trazo& trazo, bool deVuelta, double sobre) const;
  double xCoronaRampa() const;
  double cargaVelocidad(double tirante) const;

  Valores v;
  EstacionesPoza p;
  std::array<TramoRapida, 3> tramos_;
};

}  // namespace calvento
