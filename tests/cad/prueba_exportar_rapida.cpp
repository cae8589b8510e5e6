// The chute's export against a CAD application that writes everything down, on a chute of round numbers.
#include <cmath>
#include <gtest/gtest.h>
#include <map>

#include "cad/form12.h"
#include "cad/mesa_exportar.h"
#include "dibujo/estado_rapida.h"
#include "dibujo/figura_rapida.h"
#include "dibujo/planta.h"

namespace calvento {
namespace {

using Clase = CadGrabado::Clase;

struct MesaRapida : MesaExportar<Form12, Form2> {
  explicit MesaRapida(int numTramos = 1) : MesaExportar(rapidaDeMano(numTramos)) {
    estado.progresivaFinPoza = 1034.875;
  }
};

TEST(ExportarRapida, AsksForConnectionAndLayersBeforeItSends) {
  MesaRapida m;
  m.exportar();
  EXPECT_EQ(m.cad.llamadas,
            (std::vector<std::string>{"obtener", "visible 1", "capa RAS 1", "capa CANAL 7", "capa GRID 8",
                                      "capa TEXT 1", "capa TIRANTE 4", "capa LGRADIENTE 3", "entidades", "soltar"}));
  EXPECT_FALSE(m.f.osProgress1.Visible);
  EXPECT_EQ(m.avances.back(), 100);
}

TEST(ExportarRapida, GridIsInWholeMetresWithItsEdgesTwice) {
  MesaRapida m;
  m.exportar();
  // stations 1000 - 4 - 5 to 1034.875 + 3 + 5, elevations 102.75 and 110 to whole metres and one metre more
  const auto lineas = m.cad.de("GRID", Clase::linea);
  ASSERT_EQ(lineas.size(), 10u + 1 + 11 + 1);
  for (std::size_t i = 0; i < 10; ++i)
    EXPECT_EQ(lineas[i].puntos,
              (std::vector<Punto>{{991, 102.0 + static_cast<double>(i)}, {1043, 102.0 + static_cast<double>(i)}}));
  EXPECT_EQ(lineas[10].puntos, lineas[9].puntos) << "steps that end on the edge draw it twice";
  EXPECT_EQ(lineas[11].puntos, (std::vector<Punto>{{991, 102}, {991, 111}}));
  EXPECT_EQ(lineas[21].puntos, (std::vector<Punto>{{1041, 102}, {1041, 111}}));
  EXPECT_EQ(lineas[22].puntos, (std::vector<Punto>{{1043, 102}, {1043, 111}}));

  const auto textos = m.cad.de("TEXT", Clase::texto);
  EXPECT_EQ(textos[0].texto, "102.00");
  EXPECT_EQ(textos[0].puntos, (std::vector<Punto>{{990, 102}}));
  EXPECT_EQ(textos[0].giro, 0);
  EXPECT_EQ(textos[9].texto, "111.00");
  EXPECT_EQ(textos[10].texto, "0+991");
  EXPECT_EQ(textos[10].puntos, (std::vector<Punto>{{991, 102}}));
  EXPECT_EQ(textos[10].giro, 1.57075) << "a right angle by the short pi";
  EXPECT_EQ(textos[20].texto, "1+041");
}

TEST(ExportarRapida, ProgressGoesByTheGridAndThenByTheParts) {
  MesaRapida m;
  m.exportar();
  const std::vector<double> esperados = {0,                                                         // bar shown
                                         0,    3.3,  6.7,  10,   13.3, 16.7, 20,   23.3, 26.7, 30,  // nine metres
                                         30,   33.8, 37.7, 41.5, 45.4, 49.2, 53.1, 56.9, 60.8, 64.6,
                                         68.5, 75,   80,   85,   90,   95,   97,   100};
  std::vector<double> sinRepetir;
  for (const double v : esperados)
    if (sinRepetir.empty() || sinRepetir.back() != v) sinRepetir.push_back(v);
  ASSERT_EQ(m.avances.size(), sinRepetir.size());
  for (std::size_t i = 0; i < sinRepetir.size(); ++i) EXPECT_NEAR(m.avances[i], sinRepetir[i], 1e-9) << i;
}

TEST(ExportarRapida, OutlinesAreThoseOfTheCanvasInTheirOrder) {
  for (const int tramos : {1, 2, 3}) {
    SCOPED_TRACE(tramos);
    MesaRapida m(tramos);
    m.f.Check1.Value = true;
    m.exportar();
    const Planta planta = plantaRapida(m.estado);
    const FiguraRapida figura(m.estado, Real(planta.eje).valor(), Real(planta.anchoMaximo).valor());
    const auto pintado = [&](void (FiguraRapida::*rutina)(Lienzo&) const) { return contornos(figura, rutina, 1000); };
    const auto planta3 = pintado(&FiguraRapida::PLANTA);  // water and both walls
    auto lineas = pintado(&FiguraRapida::DIBUJACANAL);    // top of lining, six edges of the bed, energy line
    ASSERT_EQ(lineas.size(), 8u);
    EXPECT_EQ(puntosDe(m.cad.de("LGRADIENTE", Clase::polilinea)), Contornos{lineas.back()});
    lineas.pop_back();
    EXPECT_EQ(puntosDe(m.cad.de("CANAL", Clase::polilinea)), lineas);
    EXPECT_EQ(puntosDe(m.cad.de("RAS", Clase::polilinea)),
              (Contornos{pintado(&FiguraRapida::RAPIDA)[0], pintado(&FiguraRapida::CANAL)[0],
                         pintado(&FiguraRapida::CANALB)[0], planta3[1], planta3[2]}));
    // the surface is the water body without its bed
    const auto agua = pintado(&FiguraRapida::POLIGONO)[0];
    const auto tirante = m.cad.de("TIRANTE", Clase::polilinea);
    ASSERT_EQ(tirante.size(), 1u);
    ASSERT_EQ(tirante[0].puntos.size(), m.estado.perfil.size() + 31);
    EXPECT_TRUE(std::equal(tirante[0].puntos.begin(), tirante[0].puntos.end(), agua.begin() + 1));
    EXPECT_EQ(tirante[0].puntos.back().x, 1000 + 20 + 4 + 1 + 8 + 1.875 + 3 + 5);

    std::vector<std::string> orden;
    for (const auto& e : m.cad.de(Clase::polilinea))
      if (orden.empty() || orden.back() != e.capa) orden.push_back(e.capa);
    EXPECT_EQ(orden, (std::vector<std::string>{"RAS", "CANAL", "TIRANTE", "RAS", "LGRADIENTE"}));
    for (const auto& e : m.cad.de(Clase::polilinea)) {
      const bool antes = e.capa == "TIRANTE" || e.capa == "CANAL" || e.puntos.size() == 36;
      EXPECT_EQ(e.avance, e.capa == "LGRADIENTE" ? 100 : antes ? 95 : 97) << e.capa;
    }
  }
}

TEST(ExportarRapida, LabelsTellStationElevationAndSlope) {
  MesaRapida m(3);
  m.f.Text12.Text = "0.2";
  m.exportar();
  std::map<std::string, CadGrabado::Entidad> textos;
  for (const auto& e : m.cad.de("TEXT", Clase::texto)) {
    EXPECT_EQ(e.medida, Real(Single(0.2)).valor());
    textos.emplace(e.texto, e);
  }
  const std::map<std::string, double> avances = {
      {"Est:1+000.00", 70},  // before the first value of the parts
      {"E:110.000", 70},    {"s=-0.01", 70},      {"Est:1+008.00", 75}, {"E:109.500", 75},    {"Est:1+012.00", 75},
      {"E:108.500", 75},    {"Est:1+020.00", 75}, {"E:105.000", 75},    {"s=-0.0625", 75},    {"s=-0.25", 75},
      {"s=-0.4375", 75},    {"Est:1+024.00", 80}, {"E:103.250", 80},    {"Est:1+025.00", 85}, {"E:102.750", 85},
      {"Est:1+034.88", 90}, {"E:104.000", 90}};
  for (const auto& [texto, avance] : avances) {
    ASSERT_TRUE(textos.contains(texto)) << texto;
    const auto& e = textos.at(texto);
    if (avance != 70) {
      EXPECT_EQ(e.avance, avance) << texto;
    }
    if (texto[0] != 's') {
      EXPECT_EQ(e.giro, 1.57075) << texto;
    }
  }
  EXPECT_DOUBLE_EQ(textos.at("s=-0.4375").giro, -std::atan(0.4375));
  // both texts of a pair stand upward beside its vertical, a quarter of their height from it
  EXPECT_NEAR(textos.at("Est:1+008.00").puntos[0].x, 1008 - 0.05, 1e-6);
  EXPECT_NEAR(textos.at("E:109.500").puntos[0].x, 1008 + 0.25, 1e-6);
  EXPECT_NEAR(textos.at("E:109.500").puntos[0].y, 0.8 + 109.5 + 0.1, 1e-6);
}

TEST(ExportarRapida, DimensionsMeasureTheStretches) {
  MesaRapida m(2);
  m.exportar();
  const auto cotas = m.cad.de("TEXT", Clase::cota);
  ASSERT_EQ(cotas.size(), 1u + 7 + 5 + 5 + 6);
  std::vector<double> medidas;
  for (const auto& c : cotas) {
    medidas.push_back(std::hypot(c.puntos[1].x - c.puntos[0].x, c.puntos[1].y - c.puntos[0].y));
    ASSERT_EQ(c.propiedades.size(), 5u);
    const bool cadena = c.puntos[0].y == c.puntos[1].y;
    EXPECT_EQ(c.propiedades, (std::vector<double>{0.075, 0.075, cadena ? 0.2 : 0.1, 0.075, 0}));
    EXPECT_NEAR(c.puntos[2].x, (c.puntos[0].x + c.puntos[1].x) / 2, 1e-9);
    EXPECT_NEAR(c.puntos[2].y, (c.puntos[0].y + c.puntos[1].y) / 2 - (cadena ? 0.4 : 0), 1e-9);
  }
  const double rampaS = 1.25 * 1.5;
  const std::vector<double> esperadas = {4,    10,   10,  4, 1,      8,  rampaS,
                                         3,    4,    1,   8, rampaS, 3,     // inlet, section, plan
                                         1.25, 1.25, 2.5, 1, 0.3,           // depths
                                         6,    2,    2,   3, 3,      5.5};  // widths
  ASSERT_EQ(medidas.size(), esperadas.size());
  for (std::size_t i = 0; i < medidas.size(); ++i) EXPECT_NEAR(medidas[i], esperadas[i], 1e-6) << i;
  EXPECT_EQ(m.cad.de("RAS", Clase::circulo).size(), 9u);
}

TEST(ExportarRapida, WhatIsNotThereHasNoDimension) {
  MesaRapida m;
  m.estado.longTransEntrada = 0;
  m.estado.longTransSalida = 0;
  m.exportar();
  EXPECT_EQ(m.cad.de("TEXT", Clase::cota).size(), 0u + 5 + 4 + 5 + 6);
}

TEST(ExportarRapida, BlocksFollowTheBasin) {
  for (const auto& [tipo, secciones] :
       std::vector<std::pair<int, std::size_t>>{{0, 0}, {1, 0}, {2, 1}, {3, 2}, {4, 2}, {5, 2}, {6, 0}}) {
    MesaRapida m;
    m.estado.tipoTanque = tipo;
    m.exportar();
    std::size_t fuera = 0;
    for (const auto& e : m.cad.de("RAS", Clase::polilinea))
      if (e.puntos.size() == 4 || (e.puntos.size() == 5 && e.puntos[1].x != e.puntos[2].x && e.avance == 100 &&
                                   e.puntos[2].x != e.puntos[3].x && e.puntos[3].y == e.puntos[0].y))
        ++fuera;
    EXPECT_EQ(fuera, secciones) << tipo;
  }
  MesaRapida m;
  m.estado.tipoTanque = 2;
  m.parametros.Check1.Value = true;
  m.parametros.Text11.Text = "1";
  m.exportar();
  // twice y1 is 0.5: the least height of 1 m makes it 2 blocks of 3/7 m
  const auto bloques = m.cad.de("RAS", Clase::polilinea);
  ASSERT_EQ(bloques.size(), 5u + 1 + 2);
  EXPECT_EQ(bloques[5].puntos[1].y, 103.75);
  EXPECT_NEAR(bloques[6].puntos[2].y - bloques[6].puntos[0].y, 3.0 / 7, 1e-6);
}

TEST(ExportarRapida, WithoutTheEnergyLineItsLayerStaysEmpty) {
  MesaRapida m;
  m.exportar();
  EXPECT_TRUE(m.cad.de("LGRADIENTE", Clase::polilinea).empty());
  const auto antes = m.cad.entidades.size();
  m.exportar();
  EXPECT_EQ(m.cad.entidades.size(), 2 * antes) << "nothing is erased";
  for (const auto& e : m.cad.entidades) EXPECT_FALSE(e.capa.empty());
}

TEST(ExportarRapida, IntervalsThatDoNotAdvanceEndTheRun) {
  const struct {
    const char *vertical, *horizontal, *altura;
    double avance;
  } casos[] = {{"0", "5", "0.15", 0},     {"-1", "5", "0.15", 0},     {"", "5", "0.15", 0},
               {"1e-30", "5", "0.15", 0}, {"0.0001", "5", "0.15", 0}, {"1", "0", "0.15", 30},
               {"1", "-5", "0.15", 30},   {"1", "0.001", "0.15", 30}, {"1e99", "5", "0.15", 0}};
  for (const auto& c : casos) {
    SCOPED_TRACE(std::string(c.vertical) + " " + c.horizontal);
    MesaRapida m;
    m.f.Text10.Text = c.vertical;
    m.f.Text11.Text = c.horizontal;
    m.dialogos.esperaFallo("Problemas con la conexión");
    m.exportar();
    EXPECT_TRUE(m.f.osProgress1.Visible);
    EXPECT_EQ(m.f.osProgress1.Value, c.avance);
    EXPECT_FALSE(m.f.motivo().empty());
    EXPECT_LT(m.cad.entidades.size(), 100u);
    if (!m.cad.llamadas.empty()) {  // a number beyond all bounds ends the run before the connection
      EXPECT_EQ(m.cad.llamadas.back(), "soltar");
    }
  }
}

TEST(ExportarRapida, AnIntervalWiderThanTheGridLeavesItsEdges) {
  MesaRapida m;
  m.f.Text10.Text = "50";
  m.f.Text11.Text = "500";
  m.exportar();
  EXPECT_EQ(m.cad.de("GRID", Clase::linea).size(), 4u);
}

TEST(ExportarRapida, TheApplicationMayBeMissing) {
  {
    MesaRapida m;
    m.cad.obtenerFalla = true;
    m.dialogos.esperaFallo("Problemas con la conexión");
    m.exportar();
    EXPECT_EQ(m.cad.llamadas, std::vector<std::string>{"obtener"});
  }
  {
    MesaRapida m;
    m.cad.hayInstancia = false;
    m.dialogos.esperaAviso("no está instalado");
    m.exportar();
    EXPECT_EQ(m.cad.llamadas, (std::vector<std::string>{"obtener", "crear"}));
  }
  {
    MesaRapida m;
    m.cad.hayInstancia = false;
    m.cad.sePuedeCrear = true;
    m.exportar();
    EXPECT_EQ(m.cad.llamadas.back(), "soltar");
    EXPECT_FALSE(m.f.osProgress1.Visible);
  }
}

TEST(ExportarRapida, WhatWasSentBeforeAFailureStaysAndIsKept) {
  MesaRapida m;
  m.cad.fallaEn = 40;
  m.dialogos.esperaFallo("Problemas con la conexión");
  m.exportar();
  EXPECT_EQ(m.cad.entidades.size(), 39u);
  EXPECT_EQ(m.cad.llamadas.back(), "soltar");
  EXPECT_TRUE(m.f.osProgress1.Visible);

  MesaRapida otra;
  otra.cad.soltarFalla = true;
  otra.dialogos.esperaFallo("Problemas con la conexión");
  otra.exportar();
  EXPECT_EQ(otra.f.motivo(), "disco lleno");
  EXPECT_EQ(otra.f.osProgress1.Value, 100);
}

TEST(ExportarRapida, AHalfComputedRecordSendsWhatCanBePlaced) {
  MesaRapida m;
  m.estado.zRampaEntrada = 0;
  m.estado.zRampaSalida = 0;
  m.estado.perfil.clear();
  m.exportar();
  for (const auto& e : m.cad.entidades)
    for (const Punto& p : e.puntos) EXPECT_TRUE(std::isfinite(p.x) && std::isfinite(p.y)) << e.capa;

  MesaRapida vacio;
  vacio.estado = DesignState();
  vacio.dialogos.tolera(DialogosGuion::Clase::fallo);
  vacio.exportar();
}

TEST(ExportarRapida, WritesOnlyTheOptionsOfTheGridIntoTheRecord) {
  MesaRapida m;
  m.f.Text10.Text = "0.5 m";
  m.f.Text11.Text = "2.5";
  const DesignState antes = m.estado;
  m.exportar();
  EXPECT_EQ(m.estado.cadIntervaloV.valor(), 0.5F);
  EXPECT_EQ(m.estado.cadIntervaloH.valor(), 2.5F);
  EXPECT_EQ(m.estado.cadAlturaTexto.valor(), 0.15F);
  for (const CampoSingle& c : camposSingle())
    if (!c.nombre.starts_with("cad")) {
      EXPECT_EQ((m.estado.*c.campo).valor(), (antes.*c.campo).valor()) << c.nombre;
    }
  disparar(m.f.Command4.Click);
  EXPECT_EQ(m.navegador.llamadas, std::vector<std::string>{"descargar Form12"});
}

}  // namespace
}  // namespace calvento
