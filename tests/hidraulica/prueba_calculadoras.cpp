#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>

#include "apoyo/dialogos_guion.h"
#include "apoyo/navegador_mudo.h"
#include "comun/numeros.h"
#include "hidraulica/form14.h"
#include "hidraulica/form15.h"
#include "hidraulica/salto.h"

namespace calvento {
namespace {

constexpr const char* datosIncorrectos = "Ingreso de datos incorrectos";
using Textos = std::map<std::string, std::string>;

class Calculadoras : public testing::Test {
 protected:
  static void escribir(const Ventana& v, const Textos& textos) {
    for (const auto& [nombre, texto] : textos) v.buscar<TextBox>(nombre)->Text = texto;
  }
  static Textos leer(const Ventana& v) {
    Textos textos;
    for (const Control* c : v.controles())
      if (const auto* campo = dynamic_cast<const TextBox*>(c)) textos[campo->nombre()] = campo->Text.valor();
    return textos;
  }
  static void esperar(const Ventana& v, const Textos& esperados) {
    for (const auto& [nombre, texto] : esperados)
      EXPECT_EQ(v.buscar<TextBox>(nombre)->Text.valor(), texto) << v.nombre() << ' ' << nombre;
  }

  DesignState estado;
  DialogosGuion dialogos;
  NavegadorMudo navegador;
  Form14 canal{estado, dialogos, navegador};
  Form15 salto{estado, dialogos, navegador};
};

TEST_F(Calculadoras, CaptionsAndFieldsOfEachMode) {
  using Titulos = std::map<std::string, std::string>;  // by label; a hidden one is missing
  const auto visibles = [this] {
    Titulos t;
    for (const Control* c : canal.controles()) {
      const auto* etiqueta = dynamic_cast<const Label*>(c);
      if (etiqueta == nullptr) continue;
      const std::string campo = "Text" + etiqueta->nombre().substr(5);
      EXPECT_EQ(canal.buscar(campo)->Visible, etiqueta->Visible) << campo;
      if (etiqueta->Visible) t[etiqueta->nombre()] = etiqueta->Caption;
    }
    return t;
  };
  const Titulos normal = {{"Label1", "Caudal (m³/s):"},           {"Label4", "n de Manning:"},
                          {"Label5", "Pendiente (m/m):"},         {"Label6", "Tirante Crítico (m):"},
                          {"Label7", "Altura de velocidad (m):"}, {"Label8", "Número de Froude:"},
                          {"Label10", "Radio hidráulico (m):"},   {"Label11", "Tirante Normal(m):"},
                          {"Label13", "Velocidad (m/s):"},        {"Label14", "Pendiente Crítica(m/m):"}};
  EXPECT_TRUE(canal.Option3.Value);
  EXPECT_EQ(visibles(), normal);
  canal.Option1.Value = true;
  EXPECT_EQ(
      visibles(),
      (Titulos{{"Label1", "Tirante (m):"}, {"Label6", "Radio hidráulico (m):"}, {"Label7", "Perímetro Mojado (m):"}}));
  canal.Option2.Value = true;
  EXPECT_EQ(visibles(), (Titulos{{"Label1", "Caudal (m³/s):"},
                                 {"Label6", "Tirante Crítico (m):"},
                                 {"Label7", "Altura de velocidad (m):"},
                                 {"Label8", "Perímetro Mojado(m):"},
                                 {"Label10", "Radio hidráulico (m):"},
                                 {"Label13", "Velocidad (m/s):"}}));
  canal.Option3.Value = true;
  EXPECT_EQ(visibles(), normal);
}

TEST_F(Calculadoras, CanalInEachModeKeepsTheTextsOfTheOthers) {
  canal.Option1.Value = true;
  escribir(canal, {{"Text1", "2"}, {"Text2", "1"}, {"Text3", "3"}, {"Text4", "0.014"}, {"Text5", "0.0013"}});
  canal.Command1.Click();
  const Textos parametros = {{"Text6", "1.155"}, {"Text7", "8.657"}, {"Text9", "7"}, {"Text12", "10"}, {"Text8", ""},
                             {"Text10", ""},     {"Text11", ""},     {"Text13", ""}, {"Text14", ""}};
  esperar(canal, parametros);
  EXPECT_EQ(estado.Q.valor(), 0);  // this mode has no discharge

  canal.Option3.Value = true;
  esperar(canal, parametros);  // changing the mode computes and clears nothing
  esperar(canal, {{"Text4", "0.014"}, {"Text5", "0.0013"}});

  // rectangle b = 2, Q = 6.264: q²/g = 1, so yc = 1, A = 2, v = 3.132, P = 4, R = 0.5
  canal.Option2.Value = true;
  escribir(canal, {{"Text1", "6.26418"}, {"Text2", "0"}, {"Text3", "2"}});
  canal.Command1.Click();
  esperar(canal, {{"Text6", "0"},  // meant: the depth of the first mode
                  {"Text7", "0.5"},
                  {"Text8", "4"},
                  {"Text9", "2"},
                  {"Text10", "0.5"},
                  {"Text12", "2"},
                  {"Text13", "3.132"},
                  {"Text11", ""},
                  {"Text14", ""}});
  EXPECT_EQ(estado.Q.valor(), 6.26418F);
  escribir(canal, {{"Text2", "1.5"}});
  canal.Command1.Click();
  esperar(canal, {{"Text6", "0"}, {"Text9", "2"}});  // meant: the bottom width, not the top width at yc

  // a published canal: yn 1.0512, v 1.86, F 0.71
  canal.Option3.Value = true;
  escribir(canal, {{"Text1", "6"}, {"Text2", "1.5"}, {"Text3", "1.5"}});
  canal.Command1.Click();
  esperar(canal, {{"Text11", "1.051"}, {"Text8", "0.71"}, {"Text13", "1.855"}});
  // the critical slope carries the discharge at the critical depth: as bed slope it makes both depths one
  canal.Text5.Text = canal.Text14.Text;
  canal.Command1.Click();
  EXPECT_NEAR(Val(canal.Text11.Text).valor(), Val(canal.Text6.Text).valor(), 0.0021);
  EXPECT_NEAR(Val(canal.Text8.Text).valor(), 1, 0.003);
}

TEST_F(Calculadoras, CanalFailuresKeepWhatWasWritten) {
  const Textos viejos = {{"Text6", "a"},  {"Text7", "b"},  {"Text8", "c"},  {"Text9", "d"}, {"Text10", "e"},
                         {"Text11", "f"}, {"Text12", "g"}, {"Text13", "h"}, {"Text14", "i"}};
  const struct {
    const char* que;
    OptionButton& modo;
    Textos datos;
    std::set<std::string> cambian;  ///< results that the failure finds written already
  } casos[] = {
      {"no section", canal.Option1, {{"Text1", "0"}}, {}},
      {"all empty", canal.Option2, {}, {}},
      {"no slope", canal.Option3, {{"Text1", "1"}, {"Text2", "1"}, {"Text3", "1"}, {"Text4", "0.02"}}, {}},
      {"adverse slope",
       canal.Option3,
       {{"Text1", "1"}, {"Text2", "1"}, {"Text3", "1"}, {"Text4", "0.02"}, {"Text5", "-1"}},
       {}},
      {"discharge beyond 4 bytes", canal.Option2, {{"Text1", "1e39"}, {"Text3", "1"}}, {}},
      {"text beyond 8 bytes", canal.Option1, {{"Text1", "1e999"}, {"Text3", "1"}}, {}},
      // n is so small that the normal depth is about 1 m, but the critical depth of this discharge overflows: the
      // results at the normal depth stand, those of the critical depth are the old ones
      {"half way",
       canal.Option3,
       {{"Text1", "1e22"}, {"Text3", "1"}, {"Text4", "1e-22"}, {"Text5", "9"}},
       {"Text7", "Text8", "Text9", "Text10", "Text11", "Text12", "Text13"}},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.que);
    Textos todo = viejos;
    for (int i = 1; i <= 5; ++i) todo["Text" + std::to_string(i)] = "";
    for (const auto& [nombre, texto] : c.datos) todo[nombre] = texto;
    escribir(canal, todo);
    c.modo.Value = true;
    const auto dibujo = canal.P1.lienzo.primitivas().size();
    dialogos.esperaFallo(datosIncorrectos);
    canal.Command1.Click();
    dialogos.comprobarGastado();
    if (!c.cambian.empty()) {
      EXPECT_EQ(canal.P1.lienzo.primitivas().size(), dibujo);
    }
    for (const auto& [nombre, texto] : leer(canal)) {
      const bool nuevo = c.cambian.contains(nombre);
      EXPECT_EQ(texto == todo[nombre], !nuevo) << nombre << ' ' << texto;
    }
  }
}

TEST_F(Calculadoras, CanalWithoutRoughnessRunsToASmallDepth) {
  escribir(canal, {{"Text1", "1"}, {"Text2", "1.5"}, {"Text3", "1"}, {"Text5", "0.001"}});
  canal.Command1.Click();
  EXPECT_LT(Val(canal.Text11.Text).valor(), 0.008);
  EXPECT_EQ(canal.Text14.Text.valor(), "0");
}

TEST_F(Calculadoras, SectionPicture) {
  canal.Option1.Value = true;
  escribir(canal, {{"Text1", "2.5"}, {"Text2", "1"}, {"Text3", "4"}});
  int avisos = 0;
  canal.P1.alCambiar = [&] { ++avisos; };
  canal.Command1.Click();
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
    EstiloLinea estilo;
    int grosor;
  } lineas[] = {
      {{0, -0.5}, {0, 6.5}, color::azul, EstiloLinea::guionPunto, 1},
      {{-4.5, 2.5}, {4.5, 2.5}, color::rojo, EstiloLinea::solida, 1},
      {{-2, 0}, {2, 0}, color::verde, EstiloLinea::solida, 1},  // no second level in this mode
      {{-6.5, 3}, {-5, 3}, color::negro, EstiloLinea::solida, 2},
      {{-5, 3}, {-2, 0}, color::negro, EstiloLinea::solida, 2},
      {{-2, 0}, {2, 0}, color::negro, EstiloLinea::solida, 2},
      {{2, 0}, {5, 3}, color::negro, EstiloLinea::solida, 2},
      {{5, 3}, {6.5, 3}, color::negro, EstiloLinea::solida, 2},
  };
  ASSERT_EQ(l.primitivas().size(), std::size(lineas));
  for (std::size_t i = 0; i < std::size(lineas); ++i) {
    const auto& p = std::get<PrimLinea>(l.primitivas()[i]);
    const auto& e = lineas[i];
    SCOPED_TRACE(i);
    EXPECT_NEAR(p.a.x, e.a.x, 1e-12);
    EXPECT_NEAR(p.a.y, e.a.y, 1e-12);
    EXPECT_NEAR(p.b.x, e.b.x, 1e-12);
    EXPECT_NEAR(p.b.y, e.b.y, 1e-12);
    EXPECT_EQ(p.pluma.color, e.color);
    EXPECT_EQ(p.pluma.estilo, e.estilo);
    EXPECT_EQ(p.pluma.grosor, e.grosor);
  }
  // the third mode draws both levels, the normal depth in red
  canal.Option3.Value = true;
  escribir(canal, {{"Text1", "6"}, {"Text2", "0"}, {"Text3", "1.5"}, {"Text4", "0.014"}, {"Text5", "0.0013"}});
  canal.Command1.Click();
  EXPECT_NEAR(std::get<PrimLinea>(l.primitivas()[1]).a.y, Val(canal.Text11.Text).valor(), 0.0006);
  EXPECT_NEAR(std::get<PrimLinea>(l.primitivas()[2]).a.y, Val(canal.Text6.Text).valor(), 0.0006);
  const auto& muro = std::get<PrimLinea>(l.primitivas()[4]);
  EXPECT_EQ(muro.a.x, muro.b.x);
  const auto& berma = std::get<PrimLinea>(l.primitivas()[3]);
  EXPECT_NEAR(berma.b.x - berma.a.x, berma.a.y / 2, 1e-12);
}

TEST_F(Calculadoras, JumpWorksOnTheRecord) {
  estado.espejoRapida = 9;
  escribir(salto, {{"Text1", "10"}, {"Text3", "5"}, {"Text4", "0.5"}});
  salto.Command1.Click();
  // by hand: v1 = 4, y2 = -0.25 + sqrt(8 / 4.905 + 0.0625) = 1.05134, v2 = 10 / 5.2567, length 5 · 0.55134
  esperar(salto, {{"Text6", "1.051"},
                  {"Text7", "2.103"},
                  {"Text8", "2.757"},
                  {"Text9", "0.08"},
                  {"Text10", "1.806"},
                  {"Text11", "0.592"},
                  {"Text12", "93.941"},
                  {"Text13", "4"},
                  {"Text14", "1.902"}});
  const struct {
    Single valor;
    double esperado;
  } campos[] = {
      {estado.Q, 10},          {estado.y1, 0.5},         {estado.y2, 1.0513411},  {estado.v1, 4},
      {estado.v2, 1.9023321},  {estado.espejoArriba, 5}, {estado.espejoAbajo, 5}, {estado.longRapida, 2.7567057},
      {estado.espejoRapida, 9}};
  for (const auto& c : campos) EXPECT_NEAR(static_cast<double>(c.valor.valor()), c.esperado, 2e-7);
}

TEST_F(Calculadoras, JumpLengthFollowsThePublishedCoefficients) {
  // Sieñchin: length of the jump in multiples of y2 - y1, by side slope
  const struct {
    const char* z;
    double k;
  } casos[] = {{"0", 5}, {"0.5", 7.9}, {"0.75", 9.2}, {"1", 10.6}, {"1.25", 12.6}, {"1.5", 15.0}};
  for (const auto& c : casos) {
    escribir(salto, {{"Text1", "4"}, {"Text2", c.z}, {"Text3", "2"}, {"Text4", "0.3"}});
    salto.Command1.Click();
    EXPECT_NEAR((estado.longRapida / (estado.y2 - estado.y1)).valor(), c.k, 1e-5) << "z " << c.z;
  }
}

TEST_F(Calculadoras, JumpHoldsTheMomentum) {
  std::mt19937 azar(99);
  const auto entre = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(azar); };
  for (int i = 0; i < 3000; ++i) {
    const double b = i % 10 == 0 ? 0 : entre(0.3, 20);
    const double z = i % 3 == 0 && b > 0 ? 0 : entre(0.25, 3);
    estado.y1 = entre(0.05, 2);
    const Real y1 = estado.y1;
    const double F1 = entre(1.3, 9);
    const auto area = [&](double y) { return (b + z * y) * y; };
    const double A1 = area(y1.valor());
    estado.Q = F1 * A1 * std::sqrt(9.81 * A1 / (b + 2 * z * y1.valor()));
    calcularSalto(estado, z, b);
    const double Q = Real(estado.Q).valor();
    const auto momento = [&](double y) { return (b / 2 + z * y / 3) * y * y + Q * Q / (9.81 * area(y)); };
    const double y2 = Real(estado.y2).valor();
    SCOPED_TRACE(testing::Message() << "Q " << Q << " b " << b << " z " << z << " y1 " << y1.valor());
    EXPECT_GT(y2, y1.valor());
    EXPECT_NEAR(momento(y2) / momento(y1.valor()), 1, 1e-5);
  }
}

TEST_F(Calculadoras, JumpFromTheSubcriticalSideGivesTheDepthBelow) {
  escribir(salto, {{"Text1", "10"}, {"Text3", "5"}, {"Text4", "1.0513411"}});
  salto.Command1.Click();
  esperar(salto, {{"Text6", "0.5"}, {"Text9", "-0.08"}});
}

TEST_F(Calculadoras, JumpFailuresKeepTheRecordHalfWritten) {
  const Textos viejos = {{"Text6", "a"}, {"Text14", "z"}};
  const auto correr = [&](Textos datos) {
    estado = {};
    estado.y1 = estado.y2 = estado.v1 = estado.v2 = estado.espejoAbajo = estado.longRapida = 7;
    datos.insert(viejos.begin(), viejos.end());
    escribir(salto, datos);
    dialogos.esperaFallo(datosIncorrectos);
    salto.Command1.Click();
    dialogos.comprobarGastado();
    esperar(salto, viejos);
  };
  correr({{"Text1", "10"}, {"Text2", ""}, {"Text3", "5"}, {"Text4", ""}});  // no depth
  EXPECT_EQ(estado.Q.valor(), 10);
  EXPECT_EQ(estado.y1.valor(), 0);
  EXPECT_EQ(estado.y2.valor(), 7);
  correr({{"Text1", "0"}, {"Text2", "0"}, {"Text3", "5"}, {"Text4", "1"}});  // no discharge: the jump has no height
  EXPECT_EQ(estado.y2.valor(), 0);
  EXPECT_EQ(estado.v1.valor(), 0);
  EXPECT_EQ(estado.v2.valor(), 7);
  correr({{"Text1", "10"}, {"Text2", "1"}, {"Text3", "-10"}, {"Text4", "1"}});  // the start depth has no section
  EXPECT_EQ(estado.v1.valor(), static_cast<float>(-10.0 / 9));
  EXPECT_EQ(estado.v2.valor(), 7);
  EXPECT_EQ(estado.longRapida.valor(), 7);
  correr({{"Text1", "10"}, {"Text2", "1"}, {"Text3", "1e999"}, {"Text4", "1"}});
  EXPECT_EQ(estado.Q.valor(), 10);
  EXPECT_EQ(estado.y1.valor(), 7);
}

TEST_F(Calculadoras, SketchFollowsTheSideSlopeAsItIsTyped) {
  const auto trapecio = [&] {
    EXPECT_NE(salto.P11.Visible, salto.P22.Visible);
    return salto.P11.Visible.valor();
  };
  EXPECT_FALSE(trapecio());  // an empty side slope is a rectangle
  const struct {
    const char* texto;
    bool trapecio;
  } casos[] = {{"1.5", true}, {"0.0", false}, {"-1", true}, {"1e999", true},
               {".", false},  {"0.", false},  {"0.5", true}};
  for (const auto& c : casos) {
    salto.Text2.Text = c.texto;
    EXPECT_EQ(trapecio(), c.trapecio) << c.texto;
  }
}

TEST_F(Calculadoras, PrintCopySelectAndReturnKey) {
  for (Ventana* v : {static_cast<Ventana*>(&canal), static_cast<Ventana*>(&salto)}) {
    auto* barra = v->buscar<Toolbar>("Toolbar1");
    for (const std::string& clave : barra->claves()) barra->ButtonClick(clave);
    barra->ButtonClick("otra");
    ASSERT_NE(v->botonPredeterminado(), nullptr);
    EXPECT_EQ(v->botonPredeterminado()->nombre(), "Command1");
    auto* campo = v->buscar<TextBox>("Text3");
    campo->Text = "12.50";
    disparar(campo->GotFocus);
    EXPECT_EQ(campo->SelStart, 0);
    EXPECT_EQ(campo->SelLength, 5);
  }
  EXPECT_EQ(navegador.llamadas,
            (std::vector<std::string>{"imprimir Form14", "copiar Form14", "imprimir Form15", "copiar Form15"}));
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
