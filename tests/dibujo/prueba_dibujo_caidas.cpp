#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "apoyo/navegador_mudo.h"
#include "dibujo/estado_caidas.h"
#include "dibujo/form17.h"
#include "dibujo/form4.h"
#include "plataforma/medidas.h"

namespace calvento {
namespace {

struct Textos {
  explicit Textos(const Lienzo& l) {
    for (const Primitiva& p : l.primitivas())
      if (const auto* t = std::get_if<PrimTexto>(&p)) todos.push_back(*t);
  }
  const PrimTexto* buscar(const std::string& texto) const {
    const auto t = std::find_if(todos.begin(), todos.end(), [&](const PrimTexto& x) { return x.texto == texto; });
    return t == todos.end() ? nullptr : &*t;
  }
  bool comienza(const std::string& comienzo) const {
    return std::any_of(todos.begin(), todos.end(), [&](const PrimTexto& t) { return t.texto.rfind(comienzo, 0) == 0; });
  }
  std::vector<PrimTexto> todos;
};

struct DibujoCaidas : testing::Test {
  NavegadorMudo navegador;
  Form2 form2{navegador};
  DesignState inclinada = inclinadaDeMano();
  DesignState vertical = verticalDeMano();
  Form25 form25{vertical, navegador};
  Form4 f4{inclinada, form2, navegador};
  Form17 f17{vertical, form25, navegador};

  /// What a view of the vertical drop says.
  Textos textos17() {
    f17.ver("vistaTodo");
    return Textos(f17.GRAF.lienzo);
  }
};

/// Centre and span that a view gives, whatever the proportions of the canvas add to it.
void esperarVista(const DesignState& e, double x1, double x2, double y1, double y2) {
  const double ancho = std::max(x2 - x1, (y2 - y1) * 865 / 433);
  EXPECT_NEAR(e.vistaX1.valor() + e.vistaX2.valor(), x1 + x2, 1e-4);
  EXPECT_NEAR(e.vistaY1.valor() + e.vistaY2.valor(), y1 + y2, 1e-4);
  EXPECT_NEAR(e.vistaX2.valor() - e.vistaX1.valor(), ancho, 1e-4);
}

TEST_F(DibujoCaidas, StationAndViews) {
  // 1.5 of curve, 5 of slope, 6 of basin, 1.5 of ramp and 3 of transition
  EXPECT_FLOAT_EQ(inclinada.progresivaFinPoza.valor(), 517);
  // energy line at the upstream end: 110.1 + 1.2 + 0.0733945 + 0.25; widest water 4.5
  const double ejeI = 111.6233945 + 2.25 + 0.6;
  esperarVista(inclinada, -7, 18.5, 106.2, 2.25 + ejeI + 0.2);
  f4.Toolbar1.ButtonClick("todo");
  esperarVista(inclinada, -10, 22, 106.2, 2.25 + ejeI + 0.15);

  EXPECT_FLOAT_EQ(vertical.progresivaFinPoza.valor(), 506.5F);
  // no rise here, and the contraction counts once in the widest water: 3 against 2 + 0.25
  const double ejeV = 110.1 + 0.8 + 0.0733945 + 1.5 + 0.6;
  esperarVista(vertical, -7, 8, 106.4, 1.5 + ejeV + 0.2);
  vertical.profPoza = 0.8;  // one view takes the depth from the elevations, the other from its field
  f17.Toolbar1.ButtonClick("todo");
  esperarVista(vertical, -10, 11.5, 106.4, 1.5 + ejeV + 0.15);
  f17.Toolbar1.ButtonClick("tanque");
  esperarVista(vertical, -7, 8.3, 106.4, 1.5 + ejeV + 0.2);
}

TEST_F(DibujoCaidas, ButtonsOpenTheOtherWindows) {
  for (MarcoDibujo* f : {static_cast<MarcoDibujo*>(&f4), static_cast<MarcoDibujo*>(&f17)}) {
    EXPECT_EQ(f->Toolbar1.claves(),
              (std::vector<std::string>{"todo", "max", "min", "tanque", "seccion", "Imprimir", "Copiar", "Exportar"}));
    for (const std::string& clave : f->Toolbar1.claves()) f->Toolbar1.ButtonClick(clave);
    f->Command1.Click();
  }
  EXPECT_EQ(navegador.llamadas,
            (std::vector<std::string>{"mostrar Form20", "imprimir Form4", "copiar Form4", "mostrar Form9",
                                      "descargar Form4", "mostrar Form24", "imprimir Form17", "copiar Form17",
                                      "mostrar Form18", "descargar Form17"}));
}

TEST_F(DibujoCaidas, LabelsOfTheInclinedDrop) {
  f4.ver("vistaTodo");
  const Textos textos(f4.GRAF.lienzo);
  for (const char* t : {"Yc=0.8m",
                        "0.25",
                        "3",
                        "2",
                        "1.5",
                        "5",
                        "6",
                        "Y1=0.2m",
                        "Y2=2m",
                        "h= 1.00",
                        "Proyección de canal",
                        "PLANTA",
                        "SECCION LONGITUDINAL",
                        "4.50",
                        "1.50",
                        "2.00",
                        "4.30",
                        "1:2",
                        "1:1.5",
                        "s=-0.01",
                        "Q= 3m³/s; V=1.2m/s; Yn=1.2m",
                        "Línea Gradiente de Energía",
                        "Yn=1.1m; V=1.5m/s",
                        "Est:0+500.00",
                        "E:110.000",
                        "Est:0+501.50",
                        "E:109.500",
                        "Est:0+506.50",
                        "Est:0+514.00",
                        "R= 2.5",
                        "Canal Aguas Arriba"})
    EXPECT_NE(textos.buscar(t), nullptr) << t;
  EXPECT_EQ(textos.buscar("R= 2.5")->en, (Punto{0, 107.5})) << "at the centre of the curve";
  EXPECT_FALSE(textos.comienza("Y= ")) << "no equation";

  inclinada.frArriba = 1.8F, inclinada.sobreelevacion = 0, inclinada.profPoza = 0;
  f4.ver("vistaTodo");
  const Textos rapido(f4.GRAF.lienzo);
  EXPECT_FALSE(rapido.comienza("Yc=")) << "no critical depth in a fast canal";
  EXPECT_EQ(rapido.buscar("0.25"), nullptr);
  EXPECT_EQ(rapido.buscar("1:1.5"), nullptr) << "a basin without depth has no ramp";
}

TEST_F(DibujoCaidas, NotesOfObstaclesOnlyWhereThereAreObstacles) {
  vertical.tipoTanque = 0;
  // 0.8 × 0.5 high; 2 / 0.4 = 5 of 0.2
  for (const char* t : {"Altura= 0.4m", "Ancho y espaciamiento= 0.2m", "Nro de Bloques= 5", "1.750"})
    EXPECT_NE(textos17().buscar(t), nullptr) << t;
  form25.Check1.Value = true;
  form25.Text11.Text = "0.8";
  EXPECT_NE(textos17().buscar("Nro de Bloques= 2"), nullptr) << "2.5 is a tie";
  vertical.tipoTanque = 1;
  EXPECT_FALSE(textos17().comienza("Altura="));
  EXPECT_FALSE(textos17().comienza("Nro de Bloques="));
}

TEST_F(DibujoCaidas, NotesOfTheVentilation) {
  vertical.tipoTransVert = 0;
  const Textos contraccion = textos17();
  EXPECT_EQ(std::count_if(contraccion.todos.begin(), contraccion.todos.end(),
                          [](const PrimTexto& t) { return t.texto == "Contracción lateral= 0.25"; }),
            2);
  EXPECT_FALSE(contraccion.comienza("AGUJEROS"));
  vertical.tipoTransVert = 1, vertical.numTubos = 3;
  form25.Combo2.ListIndex = 1;
  const Textos tubos = textos17();
  for (const char* t : {"AGUJEROS DE VENTILACION:", "Diámetro tubería= 2.5 pulg.", "Nro de Tubos= 3"})
    EXPECT_NE(tubos.buscar(t), nullptr) << t;
  EXPECT_FALSE(tubos.comienza("Contracción"));
}

TEST_F(DibujoCaidas, LabelsOfTheVerticalDrop) {
  const Textos textos = textos17();
  for (const char* t :
       {"Yc=0.5m", "Y1=0.2m", "Y2=1.2m", "H=2.50", "h=0.50", "4", "0.5", "2.000", "3.00", "1.50", "2.00", "3.20", "1:1",
        "Q= 2m³/s; V=1.2m/s; Yn=0.8m", "Proyección de canal", "Est:0+504.50", "E:108.000"})
    EXPECT_NE(textos.buscar(t), nullptr) << t;
  // the small depth is written where the nappe's lower side ends: the water has left its run in the record
  EXPECT_NEAR(textos.buscar("Y1=0.2m")->en.x, 1.26491106, 1e-6);
  // the discharge stands at half the depth of the last row of the drawdown
  EXPECT_NEAR(textos.buscar("Q= 2m³/s; V=1.2m/s; Yn=0.8m")->en.y, 110.075 + 0.4 + altoTexto() / 2500.0, 1e-6);
}

TEST_F(DibujoCaidas, EachLabelOfOurChoiceStandsAlone) {
  vertical.tipoTanque = 0, vertical.tipoTransVert = 0;
  // the notes are lines one below the other, upright in both orders of redrawing
  for (const char* vista : {"vistaTodo", "vistaTanque"}) {
    f17.ver(vista);
    const Textos t(f17.GRAF.lienzo);
    const PrimTexto* altura = t.buscar("Altura= 0.4m");
    const PrimTexto* ancho = t.buscar("Ancho y espaciamiento= 0.2m");
    ASSERT_NE(altura, nullptr);
    ASSERT_NE(ancho, nullptr);
    EXPECT_EQ(altura->letra.angulo, 0) << vista;
    EXPECT_EQ(altura->en.x, ancho->en.x);
    EXPECT_NEAR(altura->en.y - ancho->en.y, 0.15, 1e-9);
  }
}

TEST_F(DibujoCaidas, AnEmptyRecordOpensWithoutAFigure) {
  DesignState vacio;
  Form25 parametros(vacio, navegador);
  Form4 i(vacio, form2, navegador);
  Form17 v(vacio, parametros, navegador);
  for (MarcoDibujo* f : {static_cast<MarcoDibujo*>(&i), static_cast<MarcoDibujo*>(&v)})
    for (const std::string& clave : f->Toolbar1.claves()) EXPECT_NO_THROW(f->Toolbar1.ButtonClick(clave)) << clave;
}

}  // namespace
}  // namespace calvento
