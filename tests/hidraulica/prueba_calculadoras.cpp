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

TEST_F(Calculadoras, CaptionsOfEachModeAndTheFieldsBesideThem) {
  const std::pair<OptionButton&, const char*> casos[] = {
      {canal.Option1, "Tirante (m):|Radio hidráulico (m):|Perímetro Mojado (m):|"},
      {canal.Option2,
       "Caudal (m³/s):|Tirante Crítico (m):|Altura de velocidad (m):|Perímetro Mojado(m):|Radio hidráulico (m):|"
       "Velocidad (m/s):|"},
      {canal.Option3,
       "Caudal (m³/s):|n de Manning:|Pendiente (m/m):|Tirante Crítico (m):|Altura de velocidad (m):|Número de Froude:|"
       "Radio hidráulico (m):|Tirante Normal(m):|Velocidad (m/s):|Pendiente Crítica(m/m):|"}};
  EXPECT_TRUE(canal.Option3.Value);
  for (const auto& [modo, esperados] : casos) {
    modo.Value = true;
    std::string visibles;
    for (const Control* c : canal.controles())
      if (const auto* rotulo = dynamic_cast<const Label*>(c)) {
        EXPECT_EQ(canal.buscar("Text" + rotulo->nombre().substr(5))->Visible, rotulo->Visible) << rotulo->nombre();
        if (rotulo->Visible) visibles += rotulo->Caption.valor() + "|";
      }
    EXPECT_EQ(visibles, esperados);
  }
}

TEST_F(Calculadoras, CanalInEachModeKeepsTheTextsOfTheOthers) {
  canal.Option1.Value = true;
  calcularCanal("Text1=2 Text2=1 Text3=3 Text4=0.014 Text5=0.0013");
  const char* parametros = "Text6=1.155 Text7=8.657 Text9=7 Text12=10 Text8= Text10= Text11= Text13= Text14=";
  esperarTextos(canal, parametros);
  EXPECT_EQ(estado.Q.valor(), 0);  // this mode has no discharge
  canal.Option3.Value = true;
  esperarTextos(canal, parametros);  // changing the mode computes and clears nothing

  // rectangle b = 2, Q = 6.264: q²/g = 1, so yc = 1, A = 2, v = 3.132, P = 4, R = 0.5
  canal.Option2.Value = true;
  calcularCanal("Text1=6.26418 Text2=0 Text3=2");
  // meant: the depth and the top width are those of the first mode's depth 0
  esperarTextos(canal, "Text6=0 Text7=0.5 Text8=4 Text9=2 Text10=0.5 Text12=2 Text13=3.132 Text11= Text14=");
  EXPECT_EQ(estado.Q.valor(), 6.26418F);
  calcularCanal("Text2=1.5");
  esperarTextos(canal, "Text6=0 Text9=2");

  // a published canal: yn 1.0512, v 1.86, F 0.71
  canal.Option3.Value = true;
  calcularCanal("Text1=6 Text2=1.5 Text3=1.5");
  esperarTextos(canal, "Text11=1.051 Text8=0.71 Text13=1.855");
  // the critical slope carries the discharge at the critical depth: as bed slope it makes both depths one
  calcularCanal("Text5=" + canal.Text14.Text.valor());
  EXPECT_NEAR(Val(canal.Text11.Text).valor(), Val(canal.Text6.Text).valor(), 0.0021);
  EXPECT_NEAR(Val(canal.Text8.Text).valor(), 1, 0.003);

  calcularCanal("Text1=1 Text2=1.5 Text3=1 Text4= Text5=0.001");  // no roughness: the iteration runs to a small depth
  EXPECT_LT(Val(canal.Text11.Text).valor(), 0.008);
  esperarTextos(canal, "Text14=0");
}

TEST_F(Calculadoras, CanalFailuresKeepWhatWasWritten) {
  const struct {
    OptionButton& modo;
    const char* datos;
    const char* nuevos;  ///< results that the failure finds written already
  } casos[] = {
      {canal.Option1, "Text1=0", ""},
      {canal.Option2, "", ""},
      {canal.Option3, "Text1=1 Text2=1 Text3=1 Text4=0.02", ""},  // no slope
      {canal.Option3, "Text1=1 Text2=1 Text3=1 Text4=0.02 Text5=-1", ""},
      {canal.Option2, "Text1=1e39 Text3=1", ""},   // beyond 4 bytes
      {canal.Option1, "Text1=1e999 Text3=1", ""},  // beyond 8 bytes
      // n is so small that the normal depth is about 1 m, but the critical depth of this discharge overflows: the
      // results at the normal depth stand, those of the critical depth are the old ones
      {canal.Option3, "Text1=1e22 Text3=1 Text4=1e-22 Text5=9", " Text7 Text8 Text9 Text10 Text11 Text12 Text13"},
  };
  int dibujos = 0;
  canal.P1.alCambiar = [&] { ++dibujos; };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.datos);
    escribirTextos(canal, "Text1= Text2= Text3= Text4= Text5= Text6=a Text7=b Text8=c Text9=d Text10=e Text11=f");
    escribirTextos(canal, std::string("Text12=g Text13=h Text14=i ") + c.datos);
    c.modo.Value = true;
    std::vector<std::pair<const TextBox*, std::string>> antes;
    for (const Control* control : canal.controles())
      if (const auto* campo = dynamic_cast<const TextBox*>(control)) antes.emplace_back(campo, campo->Text);
    dialogos.esperaFallo(datosIncorrectos);
    canal.Command1.Click();
    dialogos.comprobarGastado();
    std::string nuevos;
    for (const auto& [campo, texto] : antes)
      if (campo->Text.valor() != texto) nuevos += " " + campo->nombre();
    EXPECT_EQ(nuevos, c.nuevos);
  }
  EXPECT_EQ(dibujos, 1) << "of the first case alone, which fails after it";
}

TEST_F(Calculadoras, SectionPicture) {
  canal.Option1.Value = true;
  int avisos = 0;
  canal.P1.alCambiar = [&] { ++avisos; };
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

TEST_F(Calculadoras, JumpWorksOnTheRecord) {
  estado.espejoRapida = 9;
  calcularSaltoCon("Text1=10 Text3=5 Text4=0.5");
  // by hand: v1 = 4, y2 = -0.25 + sqrt(8 / 4.905 + 0.0625) = 1.05134, v2 = 10 / 5.2567, length 5 · 0.55134
  esperarTextos(salto, "Text6=1.051 Text7=2.103 Text8=2.757 Text9=0.08 Text10=1.806 Text11=0.592 Text12=93.941");
  esperarTextos(salto, "Text13=4 Text14=1.902");
  const std::pair<Single, double> campos[] = {
      {estado.Q, 10},          {estado.y1, 0.5},         {estado.y2, 1.0513411},  {estado.v1, 4},
      {estado.v2, 1.9023321},  {estado.espejoArriba, 5}, {estado.espejoAbajo, 5}, {estado.longRapida, 2.7567057},
      {estado.espejoRapida, 9}};
  for (const auto& [valor, esperado] : campos) EXPECT_NEAR(static_cast<double>(valor.valor()), esperado, 2e-7);
  calcularSaltoCon("Text4=1.0513411");  // from the subcritical side it gives the depth before
  esperarTextos(salto, "Text6=0.5 Text9=-0.08");
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

TEST_F(Calculadoras, JumpFailuresKeepTheRecordHalfWritten) {
  const struct {
    const char* datos;
    float Q, y1, y2, v1;                                                      ///< 7 where the failure came before
  } casos[] = {{"Text1=10 Text2= Text3=5 Text4=", 10, 0, 7, 7},               // no depth
               {"Text1=0 Text2=0 Text3=5 Text4=1", 0, 1, 0, 0},               // no discharge: the jump has no height
               {"Text1=10 Text2=1 Text3=-10 Text4=1", 10, 1, 7, -10.0F / 9},  // the start depth has no section
               {"Text1=10 Text2=1 Text3=1e999 Text4=1", 10, 7, 7, 7}};
  for (const auto& c : casos) {
    SCOPED_TRACE(c.datos);
    estado = {};
    estado.y1 = estado.y2 = estado.v1 = estado.v2 = estado.longRapida = 7;
    escribirTextos(salto, "Text6=a Text14=z");
    dialogos.esperaFallo(datosIncorrectos);
    calcularSaltoCon(c.datos);
    dialogos.comprobarGastado();
    esperarTextos(salto, "Text6=a Text14=z");
    EXPECT_EQ(estado.Q.valor(), c.Q);
    EXPECT_EQ(estado.y1.valor(), c.y1);
    EXPECT_EQ(estado.v1.valor(), c.v1);
    EXPECT_EQ(estado.v2.valor(), 7);
    EXPECT_EQ(estado.longRapida.valor(), 7);
    if (c.v1 != -10.0F / 9) {
      EXPECT_EQ(estado.y2.valor(), c.y2);
    }
  }
}

TEST_F(Calculadoras, SketchFollowsTheSideSlopeAsItIsTyped) {
  EXPECT_FALSE(salto.P11.Visible);  // an empty side slope is a rectangle
  const std::pair<const char*, bool> casos[] = {{"1.5", true}, {"0.0", false}, {"-1", true}, {"1e999", true},
                                                {".", false},  {"0.", false},  {"0.5", true}};
  for (const auto& [texto, trapecio] : casos) {
    salto.Text2.Text = texto;
    EXPECT_EQ(salto.P11.Visible, trapecio) << texto;
    EXPECT_EQ(salto.P22.Visible, !trapecio) << texto;
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
