#include <algorithm>

#include "apoyo/navegador_mudo.h"
#include "apoyo/tablas.h"
#include "dibujo/form17.h"
#include "dibujo/form3.h"
#include "dibujo/form4.h"
#include "dibujo/puntos.h"
#include "plataforma/medidas.h"

namespace calvento {
namespace {

struct VentanasDibujo : testing::Test {
  NavegadorMudo navegador;
  Form2 form2{navegador};
  DesignState rapida = registro("rapida 3");
  DesignState inclinada = registro("inclinada");
  DesignState vertical = registro("vertical");
  Form25 form25{vertical, navegador};
  Form3 f3{rapida, form2, navegador};
  Form4 f4{inclinada, form2, navegador};
  Form17 f17{vertical, form25, navegador};

  static std::string textos(MarcoDibujo& f) {
    f.ver("vistaTodo");
    return rotulados(pintadas<PrimTexto>(f.GRAF.lienzo));
  }
  const PrimTexto* buscar(const std::string& texto, const MarcoDibujo& f) {
    for (const Primitiva& p : f.GRAF.lienzo.primitivas())
      if (const auto* t = std::get_if<PrimTexto>(&p); t != nullptr && t->texto == texto) return t;
    ADD_FAILURE() << "no " << texto;
    static const PrimTexto nada{};
    return &nada;
  }
};

bool dice(const std::string& textos, const char* algo) { return textos.find(algo) != std::string::npos; }

TEST_F(VentanasDibujo, StationAndViews) {
  EXPECT_FLOAT_EQ(rapida.progresivaFinPoza.valor(), 1034.875F) << "without the outlet transition";
  // 1.5 of curve, 5 of slope, 6 of basin, 1.5 of ramp and 3 of transition
  EXPECT_FLOAT_EQ(inclinada.progresivaFinPoza.valor(), 517);
  EXPECT_FLOAT_EQ(vertical.progresivaFinPoza.valor(), 506.5F);
  EXPECT_NEAR(f3.GRAF.lienzo.ScaleLeft(), 18.5, 1e-4) << "opens on the basin";
  // one view takes the depth of the vertical drop from the elevations, the other from its field
  vertical.profPoza = 0.8;
  // chute: widest water 6, so the plan's axis stands at 112.09 + 0.0734 (velocity head) + 0.2 + 3 + 0.15; its outlet
  // transition ends 20 + 4 + 1 + 8 + 1.875 + 3 behind the start. Inclined: energy line at the upstream end 110.1 + 1.2
  // + 0.0733945 + 0.25, widest water 4.5. Vertical: no rise, and the contraction counts once: 3 against 2 + 0.25
  constexpr double ejeR = 115.51339, fin = 37.875, ejeI = 111.6233945 + 2.85, ejeV = 110.1 + 0.8 + 0.0733945 + 2.1;
  const struct {
    MarcoDibujo& f;
    const DesignState& e;
    const char* clave;
    double x1, x2, y1, y2;
  } casos[] = {{f3, rapida, "todo", -9, fin + 5, 102.15, ejeR + 6.15},
               {f3, rapida, "tanque", 18.5, fin + 1.3, 102.75, 105.3 + 1.834862},
               {f3, rapida, "planta", 18.5, fin + 1.3, ejeR - 3, ejeR + 3},
               {f3, rapida, "scontrol", -7, 3, 108, ejeR + 4},
               {f4, inclinada, "tanque", -7, 18.5, 106.2, 2.25 + ejeI + 0.2},
               {f4, inclinada, "todo", -10, 22, 106.2, 2.25 + ejeI + 0.15},
               {f17, vertical, "todo", -10, 11.5, 106.4, 1.5 + ejeV + 0.15},
               {f17, vertical, "tanque", -7, 8.3, 106.4, 1.5 + ejeV + 0.2}};
  for (const auto& c : casos) {
    c.f.Toolbar1.ButtonClick(c.clave);
    // centre and span, whatever the proportions of the canvas add to it
    const double ancho = std::max(c.x2 - c.x1, (c.y2 - c.y1) * 865 / 433);
    EXPECT_NEAR(c.e.vistaX1.valor() + c.e.vistaX2.valor(), c.x1 + c.x2, 1e-4) << c.f.nombre() << c.clave;
    EXPECT_NEAR(c.e.vistaY1.valor() + c.e.vistaY2.valor(), c.y1 + c.y2, 1e-4) << c.f.nombre() << c.clave;
    EXPECT_NEAR(c.e.vistaX2.valor() - c.e.vistaX1.valor(), ancho, 1e-4) << c.f.nombre() << c.clave;
  }
}

TEST_F(VentanasDibujo, ButtonsOpenTheOtherWindowsAndThePrintButtonOfTheChuteNothing) {
  for (MarcoDibujo* f :
       {static_cast<MarcoDibujo*>(&f3), static_cast<MarcoDibujo*>(&f4), static_cast<MarcoDibujo*>(&f17)})
    for (const std::string& clave : f->Toolbar1.claves()) f->Toolbar1.ButtonClick(clave);
  EXPECT_EQ(
      navegador.llamadas,
      (std::vector<std::string>{"mostrar Form19", "mostrar Form8", "mostrar Form11", "copiar Form3", "mostrar Form12",
                                "mostrar Form20", "imprimir Form4", "copiar Form4", "mostrar Form9", "mostrar Form24",
                                "imprimir Form17", "copiar Form17", "mostrar Form18"}));
}

TEST_F(VentanasDibujo, SlantedLabelsOfTheChuteBeforeOrAfterTheUprightOnes) {
  for (const char* clave : {"todo", "tanque", "planta", "scontrol", "max", "min"}) {
    f3.Toolbar1.ButtonClick(clave);
    const bool girado = pintadas<PrimTexto>(f3.GRAF.lienzo).front().letra.angulo != 0;
    EXPECT_EQ(girado, std::string(clave) == "todo") << clave;
    EXPECT_EQ(buscar("PLANTA", f3)->letra.angulo, 0) << "upright whichever routine ran before";
  }
}

TEST_F(VentanasDibujo, NotesOfObstaclesAndVentilationOnlyWhereThereAreSuch) {
  // the notes are lines one below the other, upright in both orders of redrawing
  for (const char* vista : {"vistaTodo", "vistaTanque"}) {
    f17.ver(vista);
    const PrimTexto altura = *buscar("Altura= 0.4m", f17), ancho = *buscar("Ancho y espaciamiento= 0.2m", f17);
    EXPECT_EQ(altura.letra.angulo, 0) << vista;
    EXPECT_EQ(altura.en.x, ancho.en.x);
    EXPECT_NEAR(altura.en.y - ancho.en.y, 0.15, 1e-9);
  }
  form25.Check1.Value = true;
  form25.Text11.Text = "0.8";
  EXPECT_TRUE(dice(textos(f17), "|Nro de Bloques= 2|")) << "2.5 is a tie";

  vertical.tipoTanque = 1, vertical.tipoTransVert = 1, vertical.numTubos = 3;
  form25.Combo2.ListIndex = 1;
  const std::string tubos = textos(f17);
  for (const char* t : {"|AGUJEROS DE VENTILACION:|", "|Diámetro tubería= 2.5 pulg.|", "|Nro de Tubos= 3|"})
    EXPECT_TRUE(dice(tubos, t)) << t;
  for (const char* t : {"Contracción", "|Altura=", "|Nro de Bloques="}) EXPECT_FALSE(dice(tubos, t)) << t;
}

TEST_F(VentanasDibujo, AnEmptyRecordOpensWithoutAFigure) {
  DesignState vacio;
  Form25 parametros(vacio, navegador);
  Form3 r(vacio, form2, navegador);
  Form4 i(vacio, form2, navegador);
  Form17 v(vacio, parametros, navegador);
  for (MarcoDibujo* f : {static_cast<MarcoDibujo*>(&r), static_cast<MarcoDibujo*>(&i), static_cast<MarcoDibujo*>(&v)})
    for (const std::string& clave : f->Toolbar1.claves()) EXPECT_NO_THROW(f->Toolbar1.ButtonClick(clave)) << clave;
}

}  // namespace
}  // namespace calvento
