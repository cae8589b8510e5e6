#pragma once

#include "hidraulica/solvers.h"
#include "modelo/design_state.h"
#include "plataforma/rejilla.h"

namespace calvento {

/// The two numbers by which roll waves on a steep chute are judged.
struct NumerosOndas {
  Real Nv;  ///< Vedernikov
  Real M;   ///< Montuori
};

/// Flow at one station of the chute.
struct FlujoEstacion {
  Real y;        ///< depth, m
  Real v, A, T;  ///< velocity, area, top width
  Real X;        ///< distance from the start of the chute, m
  Real perdida;  ///< energy lost since there, m
};

/// The Vedernikov number as shape factor times Froude number, and the Montuori number, both on the slope of the energy
/// line between the start of the chute and the station. The shape factor multiplies by its last bracket, and is meant
/// to. Fails for a section without bottom width, at the start of the chute and without a loss.
NumerosOndas numerosOndas(const Seccion& canal, const FlujoEstacion& flujo);

/// "Flujo Estable" below the line Nv = 9.201 M + 1.106, otherwise "Flujo Inestable y Pulsátil".
const char* claseFlujo(const NumerosOndas& numeros);

/// Stations of the chute with both numbers and the class for the design discharge, a half and a fifth of it. Fails
/// where one of the flows cannot be computed.
void tablaEstabilidad(Rejilla& tabla, const DesignState& estado);

}  // namespace calvento
