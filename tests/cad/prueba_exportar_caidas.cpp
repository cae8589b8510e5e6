// The exports of the two drops: the sheet of the canvas, element by element, for calculated projects.
#include <cmath>
#include <gtest/gtest.h>

#include "cad/form18.h"
#include "cad/form9.h"
#include "cad/mesa_exportar.h"
#include "caida_inclinada/form1.h"
#include "caida_vertical/form16.h"
#include "dibujo/figura_inclinada.h"
#include "dibujo/figura_vertical.h"
#include "dibujo/planta.h"

namespace calvento {
namespace {

using Clase = CadGrabado::Clase;

/// What differs between the two: windows, figure, numbers of elements.
struct Inclinada {
  using Exportar = Form9;
  using Datos = Form1;
  using Parametros = Form2;
  using Figura = FiguraInclinada;
  static Parametros parametros(DesignState&, Navegador& n) { return Parametros(n); }
  static Planta planta(const DesignState& e) { return plantaInclinada(e); }
  static std::size_t bordes() { return 6; }
  static std::size_t puntosAgua(const DesignState&) { return 31; }
  static std::size_t desdeAgua() { return 1; }  // the water body begins on the bed
  /// Horizontal length from the crest to the end of the outlet transition.
  static double largo(const DesignState& e) {
    return (e.xTrayectoria + (e.cotaTrayectoria - e.cotaPoza) * e.zRampaEntrada + e.longPoza +
            (e.cotaAbajo - e.cotaPoza) * e.zRampaSalida + e.longTransSalida)
        .valor();
  }
  static constexpr const char* proyectos[] = {"11-inclinada-rectangular.cvi", "12-inclinada-poza-trapezoidal.cvi",
                                              "13-inclinada-supercritica.cvi", "14-inclinada-llegada-rapida.cvi"};
  static constexpr int pares = 4;
};
struct Vertical {
  using Exportar = Form18;
  using Datos = Form16;
  using Parametros = Form25;
  using Figura = FiguraVertical;
  static Parametros parametros(DesignState& e, Navegador& n) { return Parametros(e, n); }
  static Planta planta(const DesignState& e) { return plantaVertical(e); }
  static std::size_t bordes() { return 4; }
  static std::size_t puntosAgua(const DesignState& e) { return e.perfilCaida.size() + 27; }
  static std::size_t desdeAgua() { return 0; }
  static double largo(const DesignState& e) {
    return (e.longRapida + e.zRampaSalida * e.profPoza + e.longTransSalida).valor();
  }
  static constexpr const char* proyectos[] = {"21-vertical-sin-obstaculos.cvv", "22-vertical-con-obstaculos.cvv",
                                              "23-vertical-tubos.cvv", "24-vertical-obstaculos-tubos.cvv"};
  static constexpr int pares = 2;
};

/// The record of an example as its data window and its drawing window leave it.
template <class Caida>
DesignState calculado(const char* proyecto) {
  DialogosGuion dialogos;
  for (const auto clase : {DialogosGuion::Clase::aviso, DialogosGuion::Clase::pregunta}) dialogos.tolera(clase);
  NavegadorMudo navegador;
  DesignState estado;
  typename Caida::Parametros parametros = Caida::parametros(estado, navegador);
  typename Caida::Datos datos(estado, parametros, dialogos, navegador);
  datos.abrir(std::string(RAIZ_PROYECTO "/ejemplos/") + proyecto);
  estado.progresivaFinPoza = estado.progresivaInicio + Caida::largo(estado);
  return estado;
}

template <class Caida>
class ExportarCaida : public testing::Test {};
using Caidas = testing::Types<Inclinada, Vertical>;
TYPED_TEST_SUITE(ExportarCaida, Caidas);

template <class Caida>
struct Mesa;
template <>
struct Mesa<Inclinada> : MesaExportar<Form9, Form2> {
  explicit Mesa(const char* proyecto) : MesaExportar(calculado<Inclinada>(proyecto)) {}
};
template <>
struct Mesa<Vertical> : MesaExportar<Form18, Form25> {
  explicit Mesa(const char* proyecto) : MesaExportar(calculado<Vertical>(proyecto)) {}
};

TYPED_TEST(ExportarCaida, OutlinesAreThoseOfTheCanvasAndTheRecordStaysAsItWas) {
  using Figura = typename TypeParam::Figura;
  for (const char* proyecto : TypeParam::proyectos) {
    SCOPED_TRACE(proyecto);
    Mesa<TypeParam> m(proyecto);
    m.f.Check1.Value = true;
    DesignState lienzo = m.estado;
    m.exportar();
    EXPECT_EQ(m.avances.back(), 100);
    EXPECT_FALSE(m.f.osProgress1.Visible);
    for (const CampoSingle& c : camposSingle())
      if (!c.nombre.starts_with("cad")) {
        EXPECT_EQ((m.estado.*c.campo).valor(), (lienzo.*c.campo).valor()) << c.nombre;
      }

    const double inicio = Real(lienzo.progresivaInicio).valor();
    const Figura figura(lienzo, Real(TypeParam::planta(lienzo).eje).valor());
    const auto pintado = [&](void (Figura::*rutina)(Lienzo&) const) { return contornos(figura, rutina, inicio); };
    const Contornos ras = puntosDe(m.cad.de("RAS", Clase::polilinea));
    const Contornos planta = pintado(&Figura::PLANTA);  // water and both walls
    const Contornos esperados = {pintado(&Figura::RAPIDA)[0], pintado(&Figura::CANAL)[0], pintado(&Figura::CANALB)[0],
                                 planta[1], planta[2]};
    ASSERT_GE(ras.size(), 5u);
    EXPECT_EQ(Contornos(ras.begin(), ras.begin() + 5), esperados);
    Contornos lineas = pintado(&Figura::DIBUJACANAL);  // top of lining, edges of the bed, energy line
    ASSERT_EQ(lineas.size(), 1 + TypeParam::bordes() + 1);
    EXPECT_EQ(puntosDe(m.cad.de("LGRADIENTE", Clase::polilinea)), Contornos{lineas.back()});
    lineas.pop_back();
    EXPECT_EQ(puntosDe(m.cad.de("CANAL", Clase::polilinea)), lineas);
    const auto agua = pintado(&Figura::POLIGONO)[0];
    const Contornos tirante = puntosDe(m.cad.de("TIRANTE", Clase::polilinea));
    ASSERT_EQ(tirante.size(), 1u);
    ASSERT_EQ(tirante[0].size(), TypeParam::puntosAgua(lienzo));
    EXPECT_TRUE(std::equal(tirante[0].begin(), tirante[0].end(),
                           agua.begin() + static_cast<std::ptrdiff_t>(TypeParam::desdeAgua())));
  }
}

TYPED_TEST(ExportarCaida, GridEndsFiveMetresBehindBothTransitions) {
  Mesa<TypeParam> m(TypeParam::proyectos[0]);
  m.exportar();
  const DesignState& e = m.estado;
  const auto lineas = m.cad.de("GRID", Clase::linea);
  ASSERT_FALSE(lineas.empty());
  const double izquierda = Real(e.progresivaInicio - e.longControl - e.longTransEntrada).valor() - 5;
  const double derecha = Real(e.progresivaInicio).valor() + TypeParam::largo(e) + 5;
  const Punto& a = lineas.front().puntos[0];
  const Punto& b = lineas.back().puntos[1];
  EXPECT_NEAR(a.x, izquierda, 0.5001);
  EXPECT_NEAR(b.x, derecha, 0.5001);
  EXPECT_NEAR(a.y, Real(e.cotaPoza).valor() - 1, 0.5001);
  EXPECT_NEAR(b.y, Real(e.cotaFin).valor() + 1, 0.5001);
  for (const double v : {a.x, a.y, b.x, b.y}) EXPECT_EQ(v, std::round(v));
}

TYPED_TEST(ExportarCaida, LabelsAndDimensionsTellTheDesign) {
  Mesa<TypeParam> m(TypeParam::proyectos[1]);
  m.exportar();
  const DesignState& e = m.estado;
  int estaciones = 0;
  int pendientes = 0;
  for (const auto& t : m.cad.de("TEXT", Clase::texto)) {
    if (t.texto.starts_with("Est:")) ++estaciones;
    if (t.texto.starts_with("s=-")) ++pendientes;
    EXPECT_NE(t.giro, 1.5707963267948966) << "a right angle is half the short pi";
  }
  EXPECT_EQ(estaciones, TypeParam::pares);
  EXPECT_EQ(pendientes, 2);
  const auto hay = [&](double valor) {
    for (const auto& c : m.cad.de("TEXT", Clase::cota))
      if (std::fabs(std::hypot(c.puntos[1].x - c.puntos[0].x, c.puntos[1].y - c.puntos[0].y) - valor) < 1e-4)
        return true;
    return false;
  };
  for (const Single v : {e.longTransEntrada, e.longControl, e.longTransSalida, e.ynAbajo, e.y2, e.yFin})
    EXPECT_TRUE(hay(Real(v).valor())) << v.valor();
}

TEST(ExportarVertical, ObstaclesStandInTheDrawingWithTheirDistance) {
  for (const char* proyecto : Vertical::proyectos) {
    SCOPED_TRACE(proyecto);
    Mesa<Vertical> m(proyecto);
    m.exportar();
    const std::size_t bloques = m.cad.de("RAS", Clase::polilinea).size() - 5;
    const double distancia = Real(m.estado.longTramo1 + m.estado.longTramo2).valor();
    bool acotada = false;
    for (const auto& c : m.cad.de("TEXT", Clase::cota))
      acotada = acotada || (c.puntos[0].y == c.puntos[1].y && c.puntos[2].y == c.puntos[0].y &&
                            std::fabs(c.puntos[1].x - c.puntos[0].x - distancia) < 1e-6);
    const bool con = m.estado.tipoTanque == 0;
    EXPECT_EQ(bloques > 1, con);
    EXPECT_EQ(acotada, con);
  }
}

}  // namespace
}  // namespace calvento
