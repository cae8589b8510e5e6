#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "apoyo/navegador_mudo.h"
#include "dibujo/estado_rapida.h"
#include "dibujo/form3.h"

namespace calvento {
namespace {

struct DibujoRapida : testing::Test {
  DesignState estado = rapidaDeMano(3);
  NavegadorMudo navegador;
  Form2 parametros{navegador};
};

/// Place of the first upright or slanted text in the order of drawing.
std::size_t primerTexto(const Lienzo& l, bool girado) {
  const auto& p = l.primitivas();
  return static_cast<std::size_t>(std::find_if(p.begin(), p.end(),
                                               [&](const Primitiva& q) {
                                                 const auto* t = std::get_if<PrimTexto>(&q);
                                                 return t != nullptr && (t->letra.angulo != 0) == girado;
                                               }) -
                                  p.begin());
}

TEST_F(DibujoRapida, VistasDeUnaRapidaDeNumerosRedondos) {
  // widest water 6, so the plan's axis stands at 112.09 + 0.0734 (velocity head) + 0.2 + 3 + 0.15; the outlet
  // transition ends 20 + 4 + 1 + 8 + 1.875 + 3 behind the start
  constexpr double eje = 115.51339;
  constexpr double fin = 37.875;
  const struct {
    const char* clave;
    double x1, x2, y1, y2;
  } casos[] = {{"todo", -9, fin + 5, 102.15, eje + 6.15},
               {"tanque", 18.5, fin + 1.3, 102.75, 105.3 + 1.834862},
               {"planta", 18.5, fin + 1.3, eje - 3, eje + 3},
               {"scontrol", -7, 3, 108, eje + 4}};
  Form3 f(estado, parametros, navegador);
  EXPECT_FLOAT_EQ(estado.progresivaFinPoza.valor(), 1034.875F) << "without the outlet transition";
  EXPECT_NEAR(f.GRAF.lienzo.ScaleLeft(), 18.5, 1e-4) << "opens on the basin";
  constexpr double proporcion = 433.0 / 865;
  for (const auto& c : casos) {
    f.Toolbar1.ButtonClick(c.clave);
    const double mitadX = std::max((c.x2 - c.x1) / 2, (c.y2 - c.y1) / 2 / proporcion);
    const double mitadY = mitadX * proporcion;
    EXPECT_NEAR(estado.vistaX1.valor(), (c.x1 + c.x2) / 2 - mitadX, 1e-4) << c.clave;
    EXPECT_NEAR(estado.vistaX2.valor(), (c.x1 + c.x2) / 2 + mitadX, 1e-4) << c.clave;
    EXPECT_NEAR(estado.vistaY1.valor(), (c.y1 + c.y2) / 2 - mitadY, 1e-4) << c.clave;
    EXPECT_NEAR(estado.vistaY2.valor(), (c.y1 + c.y2) / 2 + mitadY, 1e-4) << c.clave;
  }
  EXPECT_EQ(f.vistas(), (std::vector<std::string_view>{"vistaTodo", "vistaTanque", "vistaPlanta", "vistaControl"}));
}

TEST_F(DibujoRapida, RotulosGiradosAntesODespuesDeLosDerechos) {
  Form3 f(estado, parametros, navegador);
  for (const char* clave : {"tanque", "planta", "scontrol", "max", "min"}) {
    f.Toolbar1.ButtonClick(clave);
    EXPECT_LT(primerTexto(f.GRAF.lienzo, false), primerTexto(f.GRAF.lienzo, true)) << clave;
  }
  f.Toolbar1.ButtonClick("todo");
  EXPECT_LT(primerTexto(f.GRAF.lienzo, true), primerTexto(f.GRAF.lienzo, false));
}

TEST_F(DibujoRapida, SusBotonesAbrenLasOtrasVentanasYElDeImprimirNada) {
  Form3 f(estado, parametros, navegador);
  const EscalaLienzo antes = f.GRAF.lienzo.escala();
  for (const char* clave : {"seccion", "Trayectoria", "Reporte", "imprime", "Copiar", "Exportar"}) {
    const auto& claves = f.Toolbar1.claves();
    EXPECT_NE(std::find(claves.begin(), claves.end(), clave), claves.end()) << clave;
    f.Toolbar1.ButtonClick(clave);
  }
  EXPECT_EQ(navegador.llamadas, (std::vector<std::string>{"mostrar Form19", "mostrar Form8", "mostrar Form11",
                                                          "copiar Form3", "mostrar Form12"}));
  EXPECT_EQ(f.GRAF.lienzo.escala(), antes);
}

TEST_F(DibujoRapida, UnRegistroVacioSeAbreSinDibujo) {
  DesignState vacio;
  Form3 f(vacio, parametros, navegador);
  for (const std::string& clave : f.Toolbar1.claves()) EXPECT_NO_THROW(f.Toolbar1.ButtonClick(clave)) << clave;
}

}  // namespace
}  // namespace calvento
