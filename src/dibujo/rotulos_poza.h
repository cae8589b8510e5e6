#pragma once

#include <span>

#include "dibujo/geometria_poza.h"
#include "dibujo/rotulos.h"

// The labels and dimensions that the figures have in common, each at its place relative to the stations.

namespace calvento {

/// Level of the lengths in a dimension chain, and of a title, under its base, m.
inline constexpr double nivelLongitudes = 0.4;
inline constexpr double nivelTitulos = 0.6;

/// Upright text centred on x by the width of a sample, or by its own.
void rotuloCentrado(Lienzo& lienzo, double x, double y, std::string texto, std::string_view muestra);
void rotuloCentrado(Lienzo& lienzo, double x, double y, std::string texto);
/// Depth of the basin, at the top of the exit ramp.
void rotuloProfundidad(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p, std::string_view comienzo);
/// Conjugate depths: the smaller one on the floor at the toe, the larger one at its dimension.
void rotulosConjugados(Lienzo& lienzo, const Valores& v, double xPie, double xResalto, std::string_view unidad);
void rotuloTiranteAbajo(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p);
void rotuloProyeccion(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p);
/// Lengths of both ramps, of the basin and of the outlet transition in the chain under a base.
void rotulosLongitudesPoza(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p, double base);
/// Those from the foot of the exit ramp on; `transicion` is the length of the outlet transition as it is written.
void rotulosLongitudesSalida(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p, double base,
                             const std::string& transicion);
void rotuloCanalAbajo(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p);
/// Widths written on the axis of the plan, from their halves.
void rotulosAnchos(Lienzo& lienzo, std::span<const AnchoEn> anchos, double eje);
/// Arrows from wall to wall at each of those widths.
void flechasAnchos(Lienzo& lienzo, std::span<const AnchoEn> anchos, double eje);
/// Titles of plan and section, about the middle of the basin.
void titulos(Lienzo& lienzo, double xMedio, double yPlanta, double ySeccion);

/// The short bar at the top of the exit ramp on the level of the basin floor.
void barraPoza(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p);
/// Stations and elevations of several points of the bed.
void paresDeEstacion(Lienzo& lienzo, const Letra& letra, const Valores& v, std::span<const ParEstacion> pares);

// Slanted labels.
void rotuloRampaEntrada(Lienzo& lienzo, const Letra& letra, const Valores& v, const EstacionesPoza& p);
void rotuloRampaSalida(Lienzo& lienzo, const Letra& letra, const Valores& v, const EstacionesPoza& p);
void rotuloPendiente(Lienzo& lienzo, const Letra& letra, const RotuloPendiente& r, const std::string& delante = {});
/// Slope of the upstream canal: a tenth of a metre under a point of its bed.
RotuloPendiente pendienteArriba(const Valores& v, Punto fondo);
/// Discharge at half the depth over that point.
void rotuloCaudalArriba(Lienzo& lienzo, const Letra& letra, const Valores& v, const RotuloPendiente& bajo,
                        double tirante, std::string caudal);
/// Slope of the downstream canal.
RotuloPendiente pendienteAbajo(const Valores& v, const EstacionesPoza& p);
void rotulosCanalAbajo(Lienzo& lienzo, const Letra& letra, const Valores& v, const EstacionesPoza& p,
                       std::string velocidad);
/// What the drops write of the discharge upstream, and of the downstream canal.
std::string caudalArriba(const Valores& v);
std::string tiranteYVelocidadAbajo(const Valores& v);
/// Name of the energy line, along the stretch between two of its points.
void rotuloEnergia(Lienzo& lienzo, const Letra& letra, Punto inicio, Punto fin);

}  // namespace calvento
