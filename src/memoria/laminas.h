#pragma once

#include "memoria/documento.h"
#include "memoria/mesa.h"

namespace calvento {

/// Height of capital letters on paper below which no text may fall, and of the letters that have it, mm.
inline constexpr double menorLetraMm = 1.8;
inline constexpr double menorCuerpoMm = 2.55;

/// Paper sizes of a drawing on a sheet of its own, mm: lying and standing A4 without margins, heading and page number.
inline constexpr double ladoLargoLamina = 257, ladoCortoLamina = 165;

/// Makes all texts of a picture that will be so high on paper legible: smaller ones grow about their middle, and those
/// that would then lie on another one are moved a little or, at last, taken out. Returns how many were taken out.
int hacerLegible(Lienzo& lienzo, double altoMm);

/// Size in mm of the letters of a text on paper.
double cuerpoEnPapel(const Lienzo& lienzo, const PrimTexto& texto, double altoMm);

/// The drawing of the structure in its views, each on a sheet of its own.
std::vector<Figura> laminas(const Diseno& diseno, MesaInforme& mesa);

/// The cross-sections, for the text.
std::vector<Figura> secciones(const Diseno& diseno, MesaInforme& mesa);

/// Bed, water surface and energy line along the structure.
Figura graficoPerfil(const Diseno& diseno);

}  // namespace calvento
