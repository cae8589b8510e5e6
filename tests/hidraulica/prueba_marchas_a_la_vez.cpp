#include <gtest/gtest.h>
#include <random>

#include "hidraulica/marchas_a_la_vez.h"

namespace calvento {
namespace {

struct Recorrido {
  std::vector<float> tirantes;
  double final = 0;
  std::string fallo;
};

Recorrido solo(TramoMarcha t, const Descenso& d) {
  Recorrido r;
  t.Q = d.Q;
  try {
    r.final =
        Real(marchar(t, d.y, [&](const EstacionMarcha& s) { r.tirantes.push_back(Single(s.y).valor()); })).valor();
  } catch (const FalloAritmetico& f) {
    r.fallo = f.what();
    r.final = d.y.valor();
  }
  return r;
}

TEST(MarchasALaVez, EachGoesAsItGoesAlone) {
  std::mt19937 azar(20261123);
  const auto entre = [&](double a, double b) { return std::uniform_real_distribution(a, b)(azar); };
  int fallidos = 0, llegados = 0;
  for (int caso = 0; caso < 300; ++caso) {
    TramoMarcha t{0,  entre(0.3, 5), caso % 3 == 0 ? 0 : entre(0, 2), entre(0.011, 0.03), entre(0.001, 0.6), 100, 0,
                  0.9};
    t.cotaB = 100 - entre(0.2, 30);
    if (caso % 2 == 0) t.amortiguacion = 0.5;
    t.limiteVueltas = caso % 5 == 0 ? 9 : 1000;
    std::vector<Descenso> todos;
    for (int i = 0; i < caso % 12; ++i) todos.push_back({entre(0.05, 20), entre(0.02, 3), {}});
    // depths with no area, none that the 4-byte store holds, none at all
    if (caso % 4 == 1) todos.insert(todos.begin() + caso % 2, {{1, 0, {}}, {1, 1e39, {}}, {0, 1, {}}});
    if (caso % 7 == 3) todos.push_back({3, -2, {}});
    const auto antes = todos;

    std::vector<Recorrido> juntos(todos.size());
    marcharALaVez(t, todos,
                  [&](std::size_t i, const EstacionMarcha& s) { juntos[i].tirantes.push_back(Single(s.y).valor()); });
    for (std::size_t i = 0; i < todos.size(); ++i) {
      const Recorrido esperado = solo(t, antes[i]);
      EXPECT_EQ(todos[i].fallo ? todos[i].fallo->what() : "", esperado.fallo) << caso << " " << i;
      EXPECT_EQ(juntos[i].tirantes, esperado.tirantes) << caso << " " << i;
      EXPECT_EQ(todos[i].y.valor(), esperado.final) << caso << " " << i;
      ++(todos[i].fallo ? fallidos : llegados);
    }
  }
  EXPECT_GT(fallidos, 100);
  EXPECT_GT(llegados, 500);
}

TEST(MarchasALaVez, WhatFailedBeforeStays) {
  const TramoMarcha t{0, 2, 0, 0.015, 0.1, 10, 0, 0.9};
  std::vector<Descenso> todos = {{2, 0.5, FalloAritmetico(Motivo::divisionPorCero)}, {2, 0.5, {}}};
  marcharALaVez(t, todos, [&](std::size_t i, const EstacionMarcha&) { EXPECT_EQ(i, 1U); });
  EXPECT_EQ(todos[0].y, Real(0.5));
  EXPECT_EQ(todos[0].fallo->motivo(), Motivo::divisionPorCero);
  EXPECT_FALSE(todos[1].fallo);
}

}  // namespace
}  // namespace calvento
