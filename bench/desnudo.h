#pragma once

#include <cmath>

namespace calvento {

// The floors: the same steps in bare numbers, a 4-byte iterate included, and the same bound of rounds.

[[gnu::noinline]] inline float yCriticoDesnudo(double Q, double b, double z) {
  const double K = Q * Q / 9.81;
  float y = 1;
  float anterior = 0;
  for (int vuelta = 0; vuelta < 100000 && !(std::fabs(double{y} - double{anterior}) < 0.001); ++vuelta) {
    const double yy = y;
    const double A = (b + z * yy) * yy;
    const double T = b + 2 * z * yy;
    const double F = A * A * A / T - K;
    const double dF = 3 * A * A - 2 * z * A * A * A / (T * T);
    anterior = y;
    y = static_cast<float>(yy - F / dF);
  }
  return y;
}

[[gnu::noinline]] inline float yNormalDesnudo(double Q, double b, double z, double n, double S) {
  const double W = std::sqrt(1 + z * z);
  const double gasto = Q * n / std::sqrt(S);
  const double K = gasto * gasto * gasto;
  float y = 1;
  float anterior = 0;
  for (int vuelta = 0; vuelta < 100000 && !(std::fabs(double{y} - double{anterior}) < 0.001); ++vuelta) {
    const double yy = y;
    const double A = (b + z * yy) * yy;
    const double P = b + 2 * yy * W;
    const double T = b + 2 * z * yy;
    const double A4 = A * A * A * A;
    const double A5 = A4 * A;
    const double F = A5 / (P * P) - K;
    const double dF = (5 * P * T * A4 - 4 * W * A5) / (P * P * P);
    anterior = y;
    y = static_cast<float>(yy - F / dF);
  }
  return y;
}

[[gnu::noinline]] inline double y1ResaltoDesnudo(double Q, double y, double v, double cotaA, double cotaB, double B) {
  const double a = -((cotaA + y - cotaB) + v * v / 19.62);
  const double c = Q * Q / (19.62 * B * B);
  const double p = -a * a / 3;
  const double q = (2 * a * a * a + 27 * c) / 27;
  const double discriminante = q * q / 4 + p * p * p / 27;
  if (discriminante > 0) return 0;
  if (discriminante == 0) return std::pow(-4 * q, 1.0 / 3);
  const double tercio = p / 3;
  const double c0 = -0.5 * q / std::sqrt(-(tercio * tercio * tercio));
  const double theta = std::atan(std::sqrt(1 - c0 * c0) / c0);
  return 2 * std::sqrt(-tercio) * std::cos((theta + 4 * 3.1415) / 3) - a / 3;
}

}  // namespace calvento
