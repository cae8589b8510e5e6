// What a table and a canvas tell of themselves.
#include <functional>
#include <gtest/gtest.h>
#include <string>

#include "plataforma/lienzo.h"
#include "plataforma/rejilla.h"

namespace calvento {
namespace {

TEST(Avisos, UnaTablaDiceLoQueCambiaYCallaLoQueQuedaIgual) {
  Rejilla t(3, 2);
  std::string dicho;
  t.alCambiar([&](CambioRejilla que) { dicho += "eca"[static_cast<int>(que)]; });
  const struct {
    const char* que;
    std::function<void()> accion;
    const char* dice;  // structure, cells (c), widths (a)
  } casos[] = {
      {"text", [&] { t.poner(2, 1, "a"); }, "c"},
      {"same text", [&] { t.poner(2, 1, "a"); }, ""},
      {"heading", [&] { t.poner(0, 1, "a"); }, "e"},
      {"colour", [&] { t.pintar(1, 0, color::celda); }, "c"},
      {"same colour", [&] { t.pintar(1, 0, color::celda); }, ""},
      {"alignment", [&] { t.alinear(1, Alineacion::derecha); }, "c"},
      {"width", [&] { t.ponerAncho(0, 77); }, "a"},
      {"size", [&] { t.dimensionar(4, 2); }, "e"},
      {"headings", [&] { t.ponerTitulos(2, true); }, "ee"},
      {"a copy is another table", [&] { Rejilla(t).poner(1, 1, "b"); }, ""},
      {"taken over from another", [&] { t = Rejilla(5, 5); }, "e"},
      {"still told", [&] { t.poner(4, 4, "c"); }, "c"},
      {"nobody listens", [&] { t.alCambiar(nullptr), t.poner(4, 4, "d"); }, ""},
  };
  for (const auto& c : casos) {
    dicho.clear();
    c.accion();
    EXPECT_EQ(dicho, c.dice) << c.que;
  }
}

TEST(Avisos, UnLienzoDiceCadaTrazo) {
  Lienzo l(10, 10);
  int veces = 0;
  l.alCambiar([&] { ++veces; });
  const std::function<void()> acciones[] = {[&] {
                                              l.Line({0, 0}, {1, 1});
                                            },
                                            [&] {
                                              l.Polyline({{0, 0}, {1, 1}});
                                            },
                                            [&] {
                                              l.Polygon({{0, 0}, {1, 1}});
                                            },
                                            [&] {
                                              l.Circle({0, 0}, 1);
                                            },
                                            [&] { l.Print("a"); },
                                            [&] {
                                              l.LineCaja({0, 0}, {1, 1}, color::negro);
                                            },
                                            [&] { l.Scale(0, 1, 1, 0); },
                                            [&] { l.redimensionar(5, 5); },
                                            [&] { l.redimensionarSinCrecer(6, 6); },
                                            [&] { l.Cls(); },
                                            [&] { l = Lienzo(3, 3); }};
  int esperadas = 0;
  for (const auto& accion : acciones) {
    accion();
    EXPECT_EQ(veces, ++esperadas);
  }
}

}  // namespace
}  // namespace calvento
