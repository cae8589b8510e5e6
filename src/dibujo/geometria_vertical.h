#pragma once

#include <array>
#include <vector>

#include "dibujo/geometria_poza.h"

namespace calvento {

/// Where the height of the fall is dimensioned: in the ground before the face, m.
inline constexpr double xAlturaCaida = -0.6;

/// The outlines of a vertical drop in world metres: X runs from the face of the drop, Y is the elevation. The window
/// paints them and the CAD export sends them. Every outline has its number of points whatever the record holds.
class GeometriaVertical {
 public:
  explicit GeometriaVertical(const DesignState& estado);

  const Valores& valores() const { return v; }
  /// The floor begins at the face: xPoza0 is 0, and xPoza1 the end of the floor.
  const EstacionesPoza& estaciones() const { return p; }
  /// Start of the drawn upstream canal, of the inlet transition and of the control section.
  double xCanal() const { return xTransE() - canalDibujado; }
  double xTransE() const { return xControl() - v.longTransEntrada; }
  double xControl() const { return -v.longControl; }
  /// Bed of the upstream canal at a distance before the crest.
  double fondoArriba(double distancia) const { return v.cotaFin + distancia * v.sArriba; }
  /// Bed of the nappe: its lower side.
  double napa(double x) const { return v.cotaFin + v.trayB * x + v.trayA * x * x; }
  /// Depth at the upstream end of the figure, from the drawdown above the crest.
  double tiranteArriba() const;
  /// Middle of the jump behind the fall.
  double xResalto() const { return v.longRapida - v.longPoza / 2; }
  double energiaCresta() const { return v.vFin * v.vFin / dosG + v.yFin + v.cotaFin; }
  double energiaPoza() const { return v.v2 * v.v2 / dosG + v.y2 + v.cotaPoza; }
  /// Width between the walls of the basin.
  double anchoPoza() const { return 2 * v.longTransVert + v.bPozaCaida; }

  /// Water body: rows of the drawdown + 47 points. It writes the runs of the nappe into xTrayectoria of the record, one
  /// after the other, and leaves the one of the lower nappe there: that is meant, since later routines read it.
  std::vector<Punto> agua(DesignState& estado) const;
  /// The upper side of the water body, computed on a copy of the record: rows of the drawdown + 27 points.
  std::vector<Punto> superficie(DesignState estado) const;
  std::vector<Punto> concreto() const;       ///< concrete of drop and basin: 17 points
  std::vector<Punto> canal() const;          ///< lining of the upstream canal: 6 points
  std::vector<Punto> canalAbajo() const;     ///< lining of the downstream canal: 5 points
  std::vector<Punto> corona() const;         ///< top of the lining: 4 points
  std::vector<Punto> energia() const;        ///< energy line: 6 points
  std::vector<Punto> puntosControl() const;  ///< control points of the bed: 7

  /// Half widths of the water in plan: at the face the basin is wider than the control section by the contraction.
  std::array<AnchoEn, 8> anchosPlanta() const { return anchos(0); }
  /// The same of the outer side of the walls, whose step stands a wall's thickness upstream of the face.
  std::vector<AnchoEn> anchosMuro() const;
  /// Half widths of the lines across the plan.
  std::array<AnchoEn, 7> anchosTransversales() const;
  /// Edges of the bed in plan, two stretches on each side.
  std::vector<std::vector<Punto>> bordesFondo(double eje) const;
  /// Hatch of the exit ramp in plan.
  std::vector<Segmento> rayado(double eje) const { return rayadoRampaSalida(p, eje, anchoPoza()); }

 private:
  std::array<AnchoEn, 8> anchos(double xEscalon) const;
  void trazarSuperficie(Trazo& trazo, DesignState& estado) const;
  void trazarNapa(Trazo& trazo, double recorrido, bool deVuelta, double sobre) const;

  Valores v;
  EstacionesPoza p;
};

}  // namespace calvento
