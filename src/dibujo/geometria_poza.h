#pragma once

#include <array>
#include <span>
#include <vector>

#include "dibujo/trazo.h"
#include "dibujo/valores.h"

// What the figures of the structures with a curve, an entrance ramp and a basin have in common, in world metres.

namespace calvento {

/// Metres of canal drawn before and behind the structure.
inline constexpr double canalDibujado = 5;
/// Thickness of the lining of canal and chute, square to the slope, m.
inline constexpr double espesorRevestimiento = 0.1;
/// Depth of the cut-offs at the toe of the chute and at the outlet, m.
inline constexpr double profDentellon = 0.25;
/// Pieces in which a curve is drawn.
inline constexpr int trozosCurva = 10;

/// Vertical thickness of a lining that lies on a slope.
double espesorVertical(double pendiente);

/// Stations behind the curve into the basin, m.
struct EstacionesPoza {
  double xPT;      ///< end of the curve, point of tangency
  double lRampaE;  ///< length of the entrance ramp
  double xPoza0;   ///< upstream end of the basin floor
  double xPoza1;   ///< downstream end of the basin floor
  double lRampaS;  ///< length of the exit ramp
  double xPoza2;   ///< top of the exit ramp
  double xTrans;   ///< end of the outlet transition
  double xSalida;  ///< end of the drawn downstream canal
};
EstacionesPoza estacionesPoza(const Valores& v, double xPT);

/// Bed of the downstream canal at a distance behind the top of the exit ramp.
double fondoAbajo(const Valores& v, double distancia);

/// Elevation of the energy line at the toe of the jump. The tenth taken off the velocity head is meant.
double energiaPieResalto(const Valores& v);

/// Surface of the water from the toe of the jump to the end of the figure: 17 points.
void trazarSuperficiePoza(Trazo& trazo, const Valores& v, const EstacionesPoza& p);

/// Bed of that water, back from the end of the figure to the end of the curve: 6 points.
void trazarFondoPoza(Trazo& trazo, const Valores& v, const EstacionesPoza& p);

/// Upper side of the concrete from the end of the outlet transition back to the end of the curve: 5 points.
void trazarPisoPoza(Trazo& trazo, const Valores& v, const EstacionesPoza& p);

/// Underside of the concrete from the foot of the entrance ramp to the end of the outlet transition, with the corners
/// on the bisectors and the end cut-off: 7 points.
void trazarBajoPoza(Trazo& trazo, const Valores& v, const EstacionesPoza& p);

/// Lining of a canal under its bed from one point to another, closed: 5 points.
std::vector<Punto> revestimiento(Punto inicio, Punto fin, double pendiente);
/// Lining of the downstream canal that begins at xTrans, closed: 5 points.
std::vector<Punto> revestimientoAbajo(const Valores& v, const EstacionesPoza& p);

/// Top of the lining over the ends of the outlet transition and of the downstream canal: 2 points.
void trazarCoronaSalida(Trazo& trazo, const Valores& v, const EstacionesPoza& p);
/// Control points of the bed from the end of the curve to the end of the outlet transition: 5 points.
void anadirPuntosPoza(std::vector<Punto>& puntos, const Valores& v, const EstacionesPoza& p);

/// Energy line from the toe of the jump to the end of the figure: 5 points.
void trazarEnergiaPoza(Trazo& trazo, const Valores& v, const EstacionesPoza& p);

/// Half a width at a station of the plan.
struct AnchoEn {
  double x;
  double medio;
};
/// Water of the plan about its axis, closed: two points for each station and one.
std::vector<Punto> aguaPlanta(std::span<const AnchoEn> anchos, double eje);
/// One wall of the plan between its inner and its outer side, closed: lado is -1 for the lower one, 1 for the upper
/// one.
std::vector<Punto> muroPlanta(std::span<const AnchoEn> dentro, std::span<const AnchoEn> fuera, double eje, int lado);
/// The outer side of walls of equal thickness.
std::vector<AnchoEn> caraExterior(std::span<const AnchoEn> dentro);
/// Lines across the plan, each from side to side.
std::vector<Segmento> lineasTransversales(std::span<const AnchoEn> anchos, double eje);
/// An edge of the bed in plan: lado as in muroPlanta.
std::vector<Punto> bordeFondo(std::span<const AnchoEn> anchos, double eje, int lado);

/// The plan of a structure with a curve and an entrance ramp.
struct PlantaPoza {
  const Valores& v;
  const EstacionesPoza& p;
  /// Start of the drawn canal, start of the inlet transition, and the ends of the stretch behind it that is as wide as
  /// the entry of the curve.
  std::array<double, 4> x;
  double bEntrada;  ///< width of the bed in that stretch
  double bPoza;     ///< width of the basin floor

  /// Half width of the bed at the end of the curve, which widens evenly over curve and ramp.
  double medioAnchoPT() const;
  /// Half widths of the water at the nine stations.
  std::array<AnchoEn, 9> anchos() const;
  /// Half widths of the lines across the plan.
  std::array<AnchoEn, 8> transversales() const;
  /// Edges of the bed about the axis, three stretches on each side.
  std::vector<std::vector<Punto>> bordesFondo(double eje) const;
  /// Hatch of both ramps.
  std::vector<Segmento> rayado(double eje) const;
};

/// Hatch of an exit ramp in plan, on a floor of that width.
std::vector<Segmento> rayadoRampaSalida(const EstacionesPoza& p, double eje, double anchoPoza);

}  // namespace calvento
