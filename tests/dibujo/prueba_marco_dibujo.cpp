#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "apoyo/navegador_mudo.h"
#include "dibujo/marco_dibujo.h"

namespace calvento {
namespace {

/// A structure of its own: two layers, the second of which can fail, and three views.
class MarcoPrueba : public MarcoDibujo {
 public:
  MarcoPrueba(DesignState& e, Navegador& n) : MarcoDibujo("FormPrueba", {"todo", "max", "min", "Copiar"}, e, n) {
    const Rutina agua{"agua", [this](Lienzo& l) {
                        ++dibujos;
                        l.Cls();
                        l.ForeColor = color::azulClaro;
                        l.Polygon({{0, 100}, {10, 100}, {10, 102}});
                      }};
    const Rutina falla{"falla", [](Lienzo&) { fallar(Motivo::divisionPorCero); }};
    const Rutina lineas{"lineas", [](Lienzo& l) { l.Line({0, 100}, {1, 1}); }};
    const Rutina rotulo{"rotulo", [](Lienzo& l) { l.Print("P.C."); }};
    const auto fija = [](Vista v) { return [v] { return v; }; };
    abrir({{{"vistaTodo", fija({0, 100, 0, 10})},
            {"vistaTanque", fija({2, 4, 90, 100})},
            {"vistaControl", []() -> Vista { fallar(Motivo::desbordamiento); }}},
           {agua, falla, lineas, rotulo},
           {agua, falla, rotulo, lineas},
           {{"Exportar", "Form12"}}});
  }
  int dibujos = 0;
};

struct Marco : testing::Test {
  Marco() { estado.rutaArchivo = "prueba.cvr"; }
  DesignState estado;
  NavegadorMudo navegador;

  static std::size_t lugarDelRotulo(const Lienzo& l, const char* rotulo = "P.C.") {
    for (std::size_t i = 0; i < l.primitivas().size(); ++i)
      if (const auto* t = std::get_if<PrimTexto>(&l.primitivas()[i]); t != nullptr && t->texto == rotulo) return i;
    return 999;
  }
};

TEST_F(Marco, SeAbreEnElTanqueConSuArchivoComoTitulo) {
  MarcoPrueba m(estado, navegador);
  EXPECT_EQ(m.Caption.valor(), "prueba.cvr");
  EXPECT_FLOAT_EQ(estado.vistaY1.valor(), 90);
  EXPECT_FLOAT_EQ(estado.vistaY2.valor(), 100);
  EXPECT_NEAR(m.GRAF.lienzo.ScaleWidth(), 10 * 865.0 / 433, 1e-5);
  EXPECT_FALSE(m.Picture1.lienzo.primitivas().empty());
  EXPECT_FALSE(m.Picture2.lienzo.primitivas().empty());
}

TEST_F(Marco, DosOrdenesDeDibujoYLoQueFallaNoEstorba) {
  MarcoPrueba m(estado, navegador);
  const EscalaLienzo antes = m.GRAF.lienzo.escala();
  EXPECT_TRUE(m.ver("vistaControl"));
  EXPECT_EQ(m.GRAF.lienzo.escala(), antes) << "a view that cannot be computed leaves the former one";
  EXPECT_FALSE(m.ver("vistaPlanta")) << "this structure has none";
  EXPECT_EQ(lugarDelRotulo(m.GRAF.lienzo), 1U) << "label before lines in a view of a part";
  m.Toolbar1.ButtonClick("todo");
  EXPECT_EQ(lugarDelRotulo(m.GRAF.lienzo), 2U) << "lines before label in the whole";
  m.Toolbar1.ButtonClick("max");
  EXPECT_EQ(lugarDelRotulo(m.GRAF.lienzo), 1U);
  EXPECT_EQ(m.GRAF.lienzo.ForeColor, color::azulClaro) << "the legend leaves the pen alone";
}

TEST_F(Marco, BotonesDeAumento) {
  MarcoPrueba m(estado, navegador);
  m.ver("vistaTodo");
  const EscalaLienzo antes = m.GRAF.lienzo.escala();
  m.Toolbar1.ButtonClick("max");
  EXPECT_NEAR(m.GRAF.lienzo.ScaleWidth(), antes.ancho / 2, 1e-4);
  m.Toolbar1.ButtonClick("min");
  EXPECT_NEAR(m.GRAF.lienzo.ScaleWidth(), antes.ancho * 0.75, 1e-4);
  EXPECT_NEAR(m.GRAF.lienzo.ScaleLeft() + m.GRAF.lienzo.ScaleWidth() / 2, antes.izquierda + antes.ancho / 2, 1e-4);
  // however often one presses, nothing hangs and the figure stays undistorted
  for (const char* clave : {"max", "min"})
    for (int i = 0; i < 260; ++i) m.Toolbar1.ButtonClick(clave);
  EXPECT_NEAR(m.GRAF.lienzo.ScaleWidth() / 865 / (-m.GRAF.lienzo.ScaleHeight() / 433), 1, 1e-6);
}

TEST_F(Marco, CajaDeAumento) {
  estado.progresivaInicio = 100;
  MarcoPrueba m(estado, navegador);
  const int dibujos = m.dibujos;
  const struct {
    Punto a, b;
    bool vale;
  } casos[] = {{{3, 95}, {3, 95}, false},       // a click
               {{3, 95}, {3.009, 97}, false},   // too narrow
               {{3, 95}, {5, 95.0099}, false},  // too low
               {{5, 97}, {3.5, 94}, true}};     // dragged to the left and downward
  for (const auto& c : casos) {
    const EscalaLienzo antes = m.GRAF.lienzo.escala();
    m.GRAF.MouseDown(c.a);
    EXPECT_TRUE(m.GRAF.recuadro.valor().visible);
    m.GRAF.MouseMoveEn(c.b);
    EXPECT_EQ(m.GRAF.recuadro.valor().b, c.b);
    m.GRAF.MouseUp(c.b);
    EXPECT_FALSE(m.GRAF.recuadro.valor().visible);
    EXPECT_EQ(m.GRAF.lienzo.escala() != antes, c.vale) << c.b.x;
  }
  EXPECT_EQ(m.Label5.Caption.valor(), "(103.500,94.000)") << "the pointer as station and elevation";
  EXPECT_EQ(m.dibujos, dibujos + 1);
  EXPECT_EQ(lugarDelRotulo(m.GRAF.lienzo), 2U);
  // 3.5 to 5 by 94 to 97: taller than the canvas, so Y stands and X is widened about 4.25
  EXPECT_FLOAT_EQ(estado.vistaY1.valor(), 94);
  EXPECT_FLOAT_EQ(estado.vistaY2.valor(), 97);
  EXPECT_NEAR((estado.vistaX1 + estado.vistaX2).valor() / 2, 4.25, 1e-5);
  EXPECT_NEAR((estado.vistaX2 - estado.vistaX1).valor(), 3 * 865.0 / 433, 1e-5);
}

TEST_F(Marco, UnaVentanaMayorGuardaLaVistaSinDeformarla) {
  MarcoPrueba m(estado, navegador);
  const EscalaLienzo antes = m.GRAF.lienzo.escala();
  for (const auto& [ancho, alto] : {std::pair{1600, 433}, {865, 900}, {400, 900}, {1730, 866}}) {
    m.GRAF.Resize(ancho, alto);
    m.Picture1.Resize(ancho + 64, 41);
    m.Picture2.Resize(64, alto);
    const Lienzo& l = m.GRAF.lienzo;
    EXPECT_NEAR(l.ScaleWidth() / ancho, -l.ScaleHeight() / alto, 1e-6);
    EXPECT_LE(l.ScaleLeft(), 2.00001) << "what was asked for stays in sight";
    EXPECT_GE(l.ScaleTop(), 99.9999);
    // the horizontal ruler lines up with the canvas
    const Lienzo& r = m.Picture1.lienzo;
    EXPECT_NEAR(r.ScaleLeft() + 64 * r.ScaleWidth() / (ancho + 64), l.ScaleLeft(), 1e-4);
    EXPECT_EQ(r.altoReferencia(), 41);
  }
  // at twice the first size: the very same view, whatever came between
  EXPECT_NEAR(m.GRAF.lienzo.ScaleWidth(), antes.ancho, 1e-5);
  EXPECT_NEAR(m.GRAF.lienzo.ScaleTop(), antes.arriba, 1e-5);
  EXPECT_EQ(m.GRAF.lienzo.altoReferencia(), 433);
}

TEST_F(Marco, LaLeyendaQuedaFijaEnLaEsquina) {
  MarcoPrueba m(estado, navegador);
  for (const int alto : {150, 433, 866}) {  // on a small sheet it keeps its size, so that each swatch shows its filling
    m.GRAF.Resize(2 * alto, alto);
    const Lienzo& l = m.GRAF.lienzo;
    const double factor = std::max(1.0, alto / 433.0);
    const std::size_t tirante = lugarDelRotulo(l, "Tirante");
    ASSERT_LT(tirante, l.primitivas().size());
    const PrimTexto& texto = std::get<PrimTexto>(l.primitivas()[tirante]);
    EXPECT_NEAR((1 - (texto.en.x - l.ScaleLeft()) / l.ScaleWidth()) * 2 * alto, (865 - 813) * factor, 0.01);
    EXPECT_NEAR((texto.en.y - l.ScaleTop()) / l.ScaleHeight() * alto, 31 * factor, 0.01);
    EXPECT_NEAR(texto.letra.puntos * alto / 433, 7 * factor, 1e-9) << "as large as it looks";
    const PrimCaja& muestra = std::get<PrimCaja>(l.primitivas()[tirante - 1]);
    EXPECT_NEAR((muestra.b.x - muestra.a.x) / l.ScaleWidth() * 2 * alto, 8 * factor, 0.01);
  }
}

TEST_F(Marco, OtrasVentanasYOrdenes) {
  MarcoPrueba m(estado, navegador);
  for (const char* clave : {"Exportar", "Copiar", "Imprimir", "imprime", "nada"}) m.Toolbar1.ButtonClick(clave);
  m.Command1.Click();
  EXPECT_EQ(navegador.llamadas, (std::vector<std::string>{"mostrar Form12", "copiar FormPrueba", "imprimir FormPrueba",
                                                          "descargar FormPrueba"}));
}

}  // namespace
}  // namespace calvento
