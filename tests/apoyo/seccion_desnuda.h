#pragma once

#include <cmath>

namespace calvento::desnuda {

// the section in bare doubles, apart from the program's own
inline double area(double b, double z, double y) { return y * (b + z * y); }
inline double alturaVelocidad(double Q, double b, double z, double y) {
  return std::pow(Q / area(b, z, y), 2) / (2 * 9.81);
}
inline double energia(double Q, double b, double z, double y) { return y + alturaVelocidad(Q, b, z, y); }
/// Slope of the energy line by Manning's relation.
inline double friccion(double Q, double b, double z, double n, double y) {
  const double A = area(b, z, y);
  const double P = b + 2 * y * std::hypot(1, z);
  return std::pow(Q * n / A, 2) * std::pow(P / A, 4.0 / 3);
}
/// First moment of the section about the surface plus the flux of momentum, m³.
inline double impulso(double Q, double b, double z, double y) {
  return b * y * y / 2 + z * y * y * y / 3 + Q * Q / (9.81 * area(b, z, y));
}
/// The zero of a function that changes its sign once between a and c.
template <class F>
double cero(double a, double c, F f) {
  const bool sube = f(c) > 0;
  for (int i = 0; i < 200; ++i) ((f((a + c) / 2) > 0) == sube ? c : a) = (a + c) / 2;
  return (a + c) / 2;
}

struct FinDeMarcha {
  double y, perdida;
};
/// Depth and loss of energy, m, at the end of a reach of a steep canal with depth y at its head, by a fine integration
/// of the gradually varied flow dE/dx = S - Sf; lengths are horizontal.
inline FinDeMarcha marchaFina(double y, double L, double Q, double b, double z, double n, double S) {
  constexpr int pasos = 400000;
  const double dx = L / pasos;
  double perdida = 0;
  for (int i = 0; i < pasos; ++i) {
    const double A = area(b, z, y), Sf = friccion(Q, b, z, n, y) * std::hypot(1, S);
    perdida += Sf * dx;
    y += dx * (S - Sf) / (1 - Q * Q * (b + 2 * z * y) / (9.81 * A * A * A));
  }
  return {y, perdida};
}
/// Critical depth of a rectangle.
inline double critico(double Q, double b) { return std::cbrt(Q * Q / (b * b * 9.81)); }
/// The fast depth that has the energy E in a rectangle, its velocity head counted `factor` times.
inline double tiranteRapido(double Q, double b, double E, double factor = 1) {
  double y = 0;
  for (int i = 0; i < 300; ++i) y = Q / (b * std::sqrt(19.62 * (E - y) / factor));
  return y;
}

}  // namespace calvento::desnuda
