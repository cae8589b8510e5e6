#pragma once

#include <gtest/gtest.h>
#include <initializer_list>
#include <vector>

#include "plataforma/lienzo.h"

namespace calvento {

/// One point of an outline, worked by hand.
struct Esperado {
  std::size_t i;
  double x, y;
};

inline void comparar(const std::vector<Punto>& puntos, std::initializer_list<Esperado> tabla, const char* que) {
  for (const auto& t : tabla) {
    ASSERT_LT(t.i, puntos.size()) << que;
    EXPECT_NEAR(puntos[t.i].x, t.x, 2e-6) << que << " point " << t.i;
    EXPECT_NEAR(puntos[t.i].y, t.y, 2e-6) << que << " point " << t.i;
  }
}

}  // namespace calvento
