#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "comun/real.h"
#include "plataforma/navegador.h"

namespace calvento {

/// One computed section of the chute.
struct FilaPerfil {
  Single x;          ///< distance from the start of the chute, m
  Single tirante;    ///< depth, m
  Single cota;       ///< bed elevation, m
  Single velocidad;  ///< m/s
  Single energia;    ///< elevation of the energy line, m
};

/// One point of the drawdown above the crest of a vertical drop.
struct FilaPerfilCaida {
  double x = 0;        ///< distance from the crest, negative upstream, m
  double tirante = 0;  ///< depth, m
};

/// The one record of all design values, shared by all windows for the whole run. The three structures use the same
/// fields: a field holds the value of whichever structure was calculated last, and a calculation that stops half way
/// leaves the fields it has written. There is no rollback, and the record is never cleared.
/// Design values are 4-byte stores, whose rounding is part of the results. Lengths in m, velocities in m/s, slopes in
/// m/m, side slopes horizontal to vertical.
struct DesignState {
  // Project
  std::string rutaArchivo;  ///< name of the project file last opened or saved, for all three structures
  bool esNuevo = false;     ///< the current structure has no file yet
  Calculo calculo;          ///< the last one, of whichever structure

  // Data of the canal and its structure
  Single Q;                                   ///< design discharge, m³/s; the calculators write it too
  Single progresivaInicio;                    ///< chainage at the start of the structure
  Single bArriba, zArriba, nArriba, sArriba;  ///< upstream canal: width, side slope, Manning n, slope
  Single bAbajo, zAbajo, nAbajo, sAbajo;      ///< downstream canal
  Single bRapida, zRapida, nRapida;           ///< chute section
  Single sTramo1, sTramo2, sTramo3;           ///< slopes of the reaches
  std::int16_t numTramos = 0;                 ///< number of reaches, 1 to 3
  Single bPoza, zPoza;                        ///< basin of the chute: width, side slope
  Single bPozaCaida, zPozaCaida;              ///< basin of a drop; the chute copies its width before a block sheet
  Single cotaInicio, cotaTramo2, cotaTramo3;  ///< elevations at the start of the reaches
  Single cotaFin;                             ///< elevation at the end of the chute, or at the crest of a drop
  Single cotaAbajo;                           ///< elevation of the downstream canal
  Single zRampaEntrada, zRampaSalida;         ///< slopes of the ramps into and out of the basin
  Single ahogamiento;                         ///< submergence margin of the jump, fraction
  Single anguloTransicion;                    ///< flare angle of the transitions, degrees
  Single tipoTanque;  ///< basin: 0 none, 1 to 6 the row of the basin table; vertical drop: 1 without, 0 with obstacles

  // Upstream canal and control section
  Single ynArriba, vArriba, frArriba;  ///< normal depth, velocity, Froude number
  Single ycControl;                    ///< depth at the control section
  Single sobreelevacion;               ///< rise of the control sill
  Single bEntradaCaida;                ///< width at the entry of a drop
  Single longControl;                  ///< drop: length of the control section

  // Chute
  Single longRapida, longTramo1, longTramo2, longTramo3;  ///< horizontal lengths; the jump calculator writes longRapida
  Single yTramo1, yTramo2;                                ///< depths at the end of reaches 1 and 2
  Single sUltimoTramo;                                    ///< slope of the last reach
  Single yFin, vFin, frFin;                               ///< end of the chute or crest of a drop
  std::vector<FilaPerfil> perfil;                         ///< 100 rows per reach

  // Trajectory or curve into the basin
  Single trayA, trayB;     ///< parabola, coefficients of x² (1/m) and of x
  Single xTrayectoria;     ///< horizontal length up to the tangent with the ramp
  Single xTrayectoriaInt;  ///< the same on the inner side of the slab
  Single cotaTrayectoria;  ///< elevation of its end
  Single radioCurva;       ///< inclined drop: radius of the crest curve
  Single zCaida;           ///< inclined drop: slope of the approach to the crest
  double anguloCaida = 0;  ///< inclined drop: arctangent of the canal slope, rad

  // Jump and basin
  Single y1, v1, fr1;  ///< smaller conjugate depth, its velocity and Froude number
  Single y2, v2;       ///< larger conjugate depth and its velocity
  Single cotaPoza;     ///< elevation of the basin floor
  Single profPoza;     ///< depth of the floor below the downstream canal
  Single longPoza;     ///< basin length
  Single kLongPoza;    ///< coefficient of the basin length rule in force

  // Downstream canal
  Single ynAbajo, vAbajo, frAbajo;
  Single progresivaFinPoza;  ///< chainage at the end of the outlet, set when a drawing opens

  // Walls, top widths and transitions
  Single hArriba, hAbajo, hRapida, hPoza;                      ///< lining heights
  Single espejoArriba, espejoAbajo, espejoRapida, espejoPoza;  ///< top widths; working space of the jump balance
  Single longTransEntrada, longTransSalida;                    ///< lengths of the transitions

  // Vertical drop
  Single yVert94;                       ///< depth at the foot of the fall
  Single longTransVert;                 ///< lateral contraction on each side, or 0
  Single tipoTransVert;                 ///< aeration: 0 lateral contraction, 1 vent pipes
  Single numTubos, diamTubo, longTubo;  ///< vent pipes: number, diameter, length
  std::string tipoTubo;                 ///< pipe material
  std::vector<FilaPerfilCaida> perfilCaida;

  // Drawing and CAD export
  Single vistaX1, vistaX2, vistaY1, vistaY2;        ///< view rectangle of the open drawing
  double dibX = 0, dibY = 0, dibX2 = 0, dibY2 = 0;  ///< corners of the zoom box
  Single cadIntervaloV, cadIntervaloH, cadAlturaTexto;
};

/// A 4-byte field of the record under its name.
struct CampoSingle {
  std::string_view nombre;
  Single DesignState::*campo;
};
/// All 4-byte fields but those of the views, which are no design values.
std::span<const CampoSingle> camposSingle();

/// Steps of the rulers: the series 1, 2, 5 from 0.0001 to 1000000.
std::span<const float> pasosEje();

}  // namespace calvento
