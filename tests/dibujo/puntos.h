#pragma once

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <vector>

#include "plataforma/lienzo.h"

namespace calvento {

constexpr double toleranciaPuntos = 2e-6;

inline bool cerca(Punto a, Punto b) {
  return std::fabs(a.x - b.x) < toleranciaPuntos && std::fabs(a.y - b.y) < toleranciaPuntos;
}

/// One point of an outline, worked by hand.
struct Esperado {
  std::size_t i;
  double x, y;
};

/// Compares some points of an outline, and their number where it is given.
inline void comparar(const std::vector<Punto>& puntos, std::initializer_list<Esperado> tabla, const char* que,
                     std::size_t cuantos = 0) {
  EXPECT_TRUE(cuantos == 0 || puntos.size() == cuantos) << que << " has " << puntos.size();
  for (const auto& t : tabla) {
    ASSERT_LT(t.i, puntos.size()) << que;
    EXPECT_NEAR(puntos[t.i].x, t.x, toleranciaPuntos) << que << " point " << t.i;
    EXPECT_NEAR(puntos[t.i].y, t.y, toleranciaPuntos) << que << " point " << t.i;
  }
}

/// Area of a closed outline, in which every one of its points has a part.
inline double area(const std::vector<Punto>& p) {
  double doble = 0;
  for (std::size_t i = 0; i < p.size(); ++i)
    doble += p[i].x * p[(i + 1) % p.size()].y - p[(i + 1) % p.size()].x * p[i].y;
  return std::fabs(doble) / 2;
}

/// The primitives of one kind on a canvas, in the order of painting.
template <class P>
std::vector<P> pintadas(const Lienzo& l) {
  std::vector<P> elegidas;
  for (const Primitiva& p : l.primitivas())
    if (const auto* e = std::get_if<P>(&p)) elegidas.push_back(*e);
  return elegidas;
}

inline bool hayLinea(const std::vector<PrimLinea>& lineas, Punto a, Punto b) {
  return std::any_of(lineas.begin(), lineas.end(), [&](const PrimLinea& l) { return cerca(l.a, a) && cerca(l.b, b); });
}

/// All labels in the order of painting, between bars.
inline std::string rotulados(const std::vector<PrimTexto>& textos) {
  std::string s = "|";
  for (const PrimTexto& t : textos) s += t.texto + "|";
  return s;
}

}  // namespace calvento
