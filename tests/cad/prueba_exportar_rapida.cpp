// The chute's export against a CAD application that writes everything down, on a chute of round numbers.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>

#include "apoyo/tablas.h"
#include "apoyo/textos.h"
#include "cad/form12.h"
#include "cad/mesa_exportar.h"
#include "dibujo/figura_rapida.h"
#include "dibujo/planta.h"

namespace calvento {
namespace {

using Clase = CadGrabado::Clase;

struct MesaRapida : MesaExportar<Form12, Form2> {
  MesaRapida() : MesaExportar(registro("rapida", "progresivaFinPoza=1034.875")) {}
};

TEST(ExportarRapida, AsksForConnectionAndLayersBeforeItSends) {
  MesaRapida m;
  m.exportar();
  EXPECT_EQ(m.cad.llamadas,
            (std::vector<std::string>{"obtener", "visible 1", "capa RAS 1", "capa CANAL 7", "capa GRID 8",
                                      "capa TEXT 1", "capa TIRANTE 4", "capa LGRADIENTE 3", "entidades", "soltar"}));
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

/// How many entities there are of "GRID linea", or in all.
std::size_t cuantas(const CadGrabado& cad, const std::string& cuales) {
  const std::map<std::string, Clase> clases = {
      {"texto", Clase::texto}, {"linea", Clase::linea}, {"polilinea", Clase::polilinea}, {"cota", Clase::cota}};
  const auto palabras = partido(cuales, ' ');
  return palabras[0] == "entidades" ? cad.entidades.size() : cad.de(palabras[0], clases.at(palabras[1])).size();
}

TEST(ExportarRapida, EndsAsTheTableTells) {
  porCadaFila("cad.txt", "exportar", [](const FilaTabla& f) {
    MesaRapida m;
    escribirTextos(m.f, f[0]);
    ponerCampos(m.estado, f[1]);
    m.cad.obtenerFalla = f[2] == "obtener falla";
    m.cad.hayInstancia = f[2] != "no está" && f[2] != "se crea";
    m.cad.sePuedeCrear = f[2] == "se crea";
    if (f[2].starts_with("rechaza la ")) m.cad.fallaEn = std::stoul(f[2].substr(11));
    m.cad.soltarFalla = f[2] == "soltar falla";
    if (f[3] == "fallo") m.dialogos.esperaFallo("Problemas con la conexión");
    if (f[3] == "aviso") m.dialogos.esperaAviso("no está instalado");
    m.exportar();
    EXPECT_TRUE(f[4] == "?" || m.f.osProgress1.Visible == !f[4].empty());
    EXPECT_TRUE(f[4].empty() || f[4] == "*" || f[4] == "?" || m.f.osProgress1.Value == f.num(4))
        << m.f.osProgress1.Value.valor();
    EXPECT_EQ(m.cad.llamadas.empty() ? "" : m.cad.llamadas.back(), f[5]);
    EXPECT_EQ(m.f.motivo().empty(), f[3].empty());
    if (f[2] == "soltar falla") {
      EXPECT_EQ(m.f.motivo(), "disco lleno");
    }
    if (f.celdas.size() < 7 || f[6].empty()) {
      EXPECT_LT(m.cad.entidades.size(), 100u);
    } else {
      for (const std::string& parte : partido(f[6], ';'))
        EXPECT_EQ(cuantas(m.cad, parte), std::stoul(parte.substr(parte.rfind(' ')))) << parte;
    }
  });
}

TEST(ExportarRapida, ASecondRunErasesNothing) {
  MesaRapida m;
  m.exportar();
  const auto antes = m.cad.entidades.size();
  m.exportar();
  EXPECT_EQ(m.cad.entidades.size(), 2 * antes) << "nothing is erased";
  for (const auto& e : m.cad.entidades) EXPECT_FALSE(e.capa.empty());
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
