#include <gtest/gtest.h>
#include <random>

#include "apoyo/dialogos_guion.h"
#include "apoyo/navegador_mudo.h"
#include "apoyo/seccion_desnuda.h"
#include "apoyo/textos.h"
#include "comun/numeros.h"
#include "hidraulica/form14.h"
#include "hidraulica/form15.h"
#include "hidraulica/salto.h"

namespace calvento {
namespace {

constexpr const char* datosIncorrectos = "Ingreso de datos incorrectos";

struct Calculadoras : testing::Test {
  DesignState estado;
  DialogosGuion dialogos;
  NavegadorMudo navegador;
  Form14 canal{estado, dialogos, navegador};
  Form15 salto{estado, dialogos, navegador};

  void calcularCanal(const std::string& textos) {
    escribirTextos(canal, textos);
    canal.Command1.Click();
  }
  void calcularSaltoCon(const std::string& textos) {
    escribirTextos(salto, textos);
    salto.Command1.Click();
  }
};

TEST_F(Calculadoras, SectionPicture) {
  canal.Option1.Value = true;
  int avisos = 0;
  canal.P1.lienzo.alCambiar([&] { ++avisos; });
  calcularCanal("Text1=2.5 Text2=1 Text3=4");
  EXPECT_GT(avisos, 0);
  // H = 1.2 · 2.5 = 3: banks at 3 m, berms of 1.5 m, margins of 0.5 m
  const Lienzo& l = canal.P1.lienzo;
  EXPECT_NEAR(l.ScaleLeft(), -7, 1e-12);
  EXPECT_NEAR(l.ScaleWidth(), 14, 1e-12);
  EXPECT_NEAR(l.ScaleTop(), 6.5, 1e-12);
  EXPECT_NEAR(l.ScaleHeight(), -7, 1e-12);
  const struct {
    Punto a, b;
    Color color;
  } lineas[] = {{{0, -0.5}, {0, 6.5}, color::azul}, {{-4.5, 2.5}, {4.5, 2.5}, color::rojo},
                {{-2, 0}, {2, 0}, color::verde},  // no second level in this mode
                {{-6.5, 3}, {-5, 3}, color::negro}, {{-5, 3}, {-2, 0}, color::negro},
                {{-2, 0}, {2, 0}, color::negro},    {{2, 0}, {5, 3}, color::negro},
                {{5, 3}, {6.5, 3}, color::negro}};
  ASSERT_EQ(l.primitivas().size(), std::size(lineas));
  const auto linea = [&](std::size_t i) { return std::get<PrimLinea>(l.primitivas()[i]); };
  for (std::size_t i = 0; i < std::size(lineas); ++i) {
    const auto& e = lineas[i];
    EXPECT_NEAR(std::hypot(linea(i).a.x - e.a.x, linea(i).a.y - e.a.y), 0, 1e-12) << i;
    EXPECT_NEAR(std::hypot(linea(i).b.x - e.b.x, linea(i).b.y - e.b.y), 0, 1e-12) << i;
    EXPECT_EQ(linea(i).pluma.color, e.color) << i;
    EXPECT_EQ(linea(i).pluma.grosor, i < 3 ? 1 : 2) << i;
    EXPECT_EQ(linea(i).pluma.estilo, i == 0 ? EstiloLinea::guionPunto : EstiloLinea::solida) << i;
  }
  // the third mode draws both levels, the normal depth in red
  canal.Option3.Value = true;
  calcularCanal("Text1=6 Text2=0 Text3=1.5 Text4=0.014 Text5=0.0013");
  EXPECT_NEAR(linea(1).a.y, Val(canal.Text11.Text).valor(), 0.0006);
  EXPECT_NEAR(linea(2).a.y, Val(canal.Text6.Text).valor(), 0.0006);
  EXPECT_EQ(linea(4).a.x, linea(4).b.x) << "a wall";
  EXPECT_NEAR(linea(3).b.x - linea(3).a.x, linea(3).a.y / 2, 1e-12) << "a berm";
}

TEST_F(Calculadoras, JumpLengthFollowsThePublishedCoefficients) {
  // Sieñchin: length of the jump in multiples of y2 - y1, by side slope
  const std::pair<const char*, double> casos[] = {{"0", 5},    {"0.5", 7.9},   {"0.75", 9.2},
                                                  {"1", 10.6}, {"1.25", 12.6}, {"1.5", 15.0}};
  for (const auto& [z, k] : casos) {
    calcularSaltoCon(std::string("Text1=4 Text3=2 Text4=0.3 Text2=") + z);
    EXPECT_NEAR((estado.longRapida / (estado.y2 - estado.y1)).valor(), k, 1e-5) << "z " << z;
  }
}

TEST_F(Calculadoras, JumpHoldsTheMomentum) {
  std::mt19937 azar(99);
  const auto entre = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(azar); };
  for (int i = 0; i < 3000; ++i) {
    const double b = i % 10 == 0 ? 0 : entre(0.3, 20);
    const double z = i % 3 == 0 && b > 0 ? 0 : entre(0.25, 3);
    estado.y1 = entre(0.05, 2);
    const double y1 = Real(estado.y1).valor(), F1 = entre(1.3, 9), A1 = desnuda::area(b, z, y1);
    estado.Q = F1 * A1 * std::sqrt(9.81 * A1 / (b + 2 * z * y1));
    calcularSalto(estado, z, b);
    const double Q = Real(estado.Q).valor(), y2 = Real(estado.y2).valor();
    EXPECT_GT(y2, y1);
    EXPECT_NEAR(desnuda::impulso(Q, b, z, y2) / desnuda::impulso(Q, b, z, y1), 1, 1e-5)
        << "Q " << Q << " b " << b << " z " << z << " y1 " << y1;
  }
}

TEST_F(Calculadoras, AnyTextsEndInResultsOrInTheOneBox) {
  const char* piezas[] = {"",    "0",   "-1", "1",    "0.5", "1.5",   "1e-30", "1e30", "1e308", "-0.02",
                          "1e5", "abc", ".",  "1e-6", "2",   "0.014", "1e999", "7 7",  "+3",    "0.001"};
  std::mt19937 azar(5);
  dialogos.tolera(DialogosGuion::Clase::fallo);
  int bien = 0;
  for (int i = 0; i < 1500; ++i) {
    for (Ventana* v : {static_cast<Ventana*>(&canal), static_cast<Ventana*>(&salto)})
      for (const char* campo : {"Text1", "Text2", "Text3", "Text4"})
        v->buscar<TextBox>(campo)->Text = piezas[azar() % std::size(piezas)];
    canal.Text5.Text = piezas[azar() % std::size(piezas)];
    (i % 3 == 0 ? canal.Option1 : i % 3 == 1 ? canal.Option2 : canal.Option3).Value = true;
    const std::size_t antes = dialogos.dichas.size();
    canal.Command1.Click();
    salto.Command1.Click();
    bien += dialogos.dichas.size() == antes ? 1 : 0;
  }
  for (const auto& caja : dialogos.dichas) EXPECT_EQ(caja.texto, datosIncorrectos);
  EXPECT_GT(bien, 50);
  EXPECT_GT(dialogos.dichas.size(), 500U);
}

}  // namespace
}  // namespace calvento
