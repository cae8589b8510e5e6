// The chute's export against a CAD application that writes everything down, on a chute of round numbers.
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

/// The entities "GRID linea", or all of them.
std::vector<CadGrabado::Entidad> cuales(const CadGrabado& cad, const std::string& que) {
  const std::map<std::string, Clase> clases = {{"texto", Clase::texto},
                                               {"linea", Clase::linea},
                                               {"polilinea", Clase::polilinea},
                                               {"circulo", Clase::circulo},
                                               {"cota", Clase::cota}};
  const auto palabras = partido(que, ' ');
  return palabras[0] == "entidades" ? cad.entidades : cad.de(palabras[0], clases.at(palabras[1]));
}

TEST(ExportarRapida, SendsWhatTheTableTells) {
  MesaRapida m;
  m.exportar();
  porCadaFila("cad.txt", "enviado", [&](const FilaTabla& f) {
    const auto e = cuales(m.cad, f[0]).at(std::stoul(f[1]));
    std::vector<double> hallados = {e.giro, e.medida};
    for (const Punto& p : e.puntos) hallados.insert(hallados.end(), {p.x, p.y});
    hallados.insert(hallados.end(), e.propiedades.begin(), e.propiedades.end());
    compararNumeros(hallados, f[3], 1e-6);
    EXPECT_EQ(e.texto, f[2]);
  });
  // the grid's nine metres and eleven columns, then the parts
  porCadaFila("cad.txt", "avance", [&](const FilaTabla& f) { compararNumeros(m.avances, f.escrita, 1e-9); });
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
        EXPECT_EQ(cuales(m.cad, parte).size(), std::stoul(parte.substr(parte.rfind(' ')))) << parte;
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
