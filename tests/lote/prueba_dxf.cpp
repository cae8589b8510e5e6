// The CAD drawing of each worked design, read back from its file: the same outlines, stations instead of distances.
#include <algorithm>
#include <fstream>

#include "cad/marco_exportar.h"
#include "dibujo/marco_dibujo.h"
#include "lote/figura.h"

namespace calvento::lote {
namespace {

struct Entidad {
  std::string tipo, capa, texto;
  std::vector<Punto> puntos;  ///< of a dimension: of its line, of its text, and the two that it measures
  double radio = 0;
};

/// The entities of a DXF text: lines by twos, a code and its value.
std::vector<Entidad> leerDxf(const std::string& archivo) {
  std::ifstream f(archivo);
  std::vector<Entidad> todas;
  bool dentro = false;
  for (std::string codigo, valor; std::getline(f, codigo) && std::getline(f, valor);) {
    const int c = std::stoi(codigo);
    if (c == 2 && valor == "ENTITIES") dentro = true;
    if (!dentro) continue;
    if (c == 0) todas.push_back({valor, {}, {}, {}, 0});
    if (todas.empty()) continue;
    Entidad& e = todas.back();
    if (e.tipo == "ENDSEC") break;
    if (c == 8) e.capa = valor;
    if (c == 1) e.texto = valor;
    if (c == 40) e.radio = std::stod(valor);
    if (c >= 10 && c < 19) e.puntos.push_back({std::stod(valor), 0});
    if (c >= 20 && c < 29) e.puntos.back().y = std::stod(valor);
  }
  return todas;
}

struct Dxf {
  std::vector<Entidad> todas;
  std::vector<std::vector<Punto>> de(const std::string& tipo, const std::string& capa) const {
    std::vector<std::vector<Punto>> r;
    for (const Entidad& e : todas)
      if (e.tipo == tipo && e.capa == capa) r.push_back(e.puntos);
    return r;
  }
};

/// The drawing as the export window writes it, opened from the drawing window as on the desktop.
Dxf exportado(Sesion& s) {
  const CarpetaPrueba carpeta;
  s.aplicacion().cargar(s.estructura()->ventanaDibujo);
  auto* ventana = s.aplicacion().cargar<MarcoExportar>(s.estructura()->ventanaExportar);
  if (ventana == nullptr) throw std::runtime_error("no export window");
  ventana->Check1.Value = true;
  s.nombrarArchivo(carpeta.en("a.dxf"));
  ventana->Command3_Click();
  EXPECT_EQ(ventana->motivo(), "");
  return {leerDxf(carpeta.en("a.dxf"))};
}

void comprobarMedidas(const Dxf& dxf, const Json& deben) {
  std::vector<double> medidas;
  for (const auto& p : dxf.de("DIMENSION", "TEXT")) {
    ASSERT_GE(p.size(), 4U);
    const Punto u{p[3].x - p[2].x, p[3].y - p[2].y}, t{2 * p[1].x - p[2].x - p[3].x, 2 * p[1].y - p[2].y - p[3].y};
    medidas.push_back(std::hypot(u.x, u.y));
    EXPECT_NEAR(t.x * u.x + t.y * u.y, 0, 1e-3 * medidas.back()) << "its text stands over its middle";
    EXPECT_LT(std::hypot(t.x, t.y) / 2, 2) << "and near it";
  }
  for (const Json& debe : deben["cotas"]) {
    const auto m = std::find_if(medidas.begin(), medidas.end(),
                                [&](double x) { return std::fabs(x - debe.get<double>()) < 1e-3; });
    EXPECT_TRUE(m != medidas.end()) << "no dimension of " << debe;
    if (m != medidas.end()) medidas.erase(m);
  }
  Punto a{1e9, 1e9}, b{-1e9, -1e9};
  for (const auto& l : dxf.de("LINE", "GRID"))
    for (const Punto& p : l) {
      a = {std::min(a.x, p.x), std::min(a.y, p.y)};
      b = {std::max(b.x, p.x), std::max(b.y, p.y)};
    }
  comparar(Json{a.x, b.x, a.y, b.y}, deben["cuadricula"], "grid");
}

class Cad : public testing::TestWithParam<std::string> {};

TEST_P(Cad, HasTheOutlinesOfTheFigureAndItsMeasures) {
  Caso caso(GetParam());
  Sesion& s = caso.sesion();
  const Dxf dxf = exportado(s);

  auto estructura = dxf.de("LWPOLYLINE", "RAS"), canal = dxf.de("LWPOLYLINE", "CANAL"),
       lineas = dxf.de("LINE", "CANAL"), energia = dxf.de("LWPOLYLINE", "LGRADIENTE"),
       agua = dxf.de("LWPOLYLINE", "TIRANTE"), puntos = dxf.de("CIRCLE", "RAS");
  ASSERT_EQ(agua.size(), 1U);
  ASSERT_FALSE(canal.empty());
  std::vector<std::vector<Punto>> bordes;
  for (std::size_t c = 1; c < canal.size(); ++c)
    for (std::size_t i = 1; i < canal[c].size(); ++i) bordes.push_back({canal[c][i - 1], canal[c][i]});
  canal.resize(1);
  std::string textos = "|";
  for (const Entidad& e : dxf.todas)
    if (e.tipo == "TEXT") textos += e.texto + "|";

  const double dx = caso.deben["estado"].value("progresivaInicio", 0.0);
  int plantas = 0;
  for (const Json& debe : caso.deben["figura"]) {
    const std::string rutina = debe[0], clase = debe[1];
    if (rutina == "PLANTA" && plantas++ == 0) continue;  // the water of the plan is not sent
    if (rutina == "POLIGONO") {
      // the surface is the water body without its bed, which is where an inclined section begins
      const std::size_t fondo = s.estructura()->clave == "caida_vertical" ? 0 : 1;
      for (const auto& [i, punto] : debe[2].items())
        if (i != "de" && std::stoul(i) >= fondo && std::stoul(i) - fondo < agua[0].size()) {
          EXPECT_TRUE(cerca(agua[0][std::stoul(i) - fondo], punto, dx)) << "surface " << i << ": " << punto;
        }
    } else if (rutina == "DIBUJACANAL.corona") {
      quitar(canal, debe, debe[2], dx);
    } else if (rutina == "DIBUJACANAL.energia") {
      quitar(energia, debe, debe[2], dx);
    } else if (rutina == "DIBUJACANAL.bordes") {
      quitar(bordes, debe, debe[2], dx);
    } else if (rutina.starts_with("DIBUJACANAL")) {
      quitar(lineas, debe, debe[2], dx);
    } else if (rutina == "COTAS") {
      const Json &a = debe[2][0], &b = debe[2][1];
      quitar(puntos, debe,
             {{(a[0].get<double>() + b[0].get<double>()) / 2, (a[1].get<double>() + b[1].get<double>()) / 2}}, dx);
    } else if (rutina == "DIBUBABLOCKS" && clase == "caja") {
      const Json &a = debe[2][0], &b = debe[2][1];
      quitar(estructura, debe, {a, {b[0], a[1]}, b, {a[0], b[1]}, a}, dx);
    } else if (clase == "poligono") {
      quitar(estructura, debe, debe[2], dx);
    } else if (clase == "texto" && (debe[2].get<std::string>().starts_with("Est:"))) {
      EXPECT_NE(textos.find("|" + debe[2].get<std::string>() + "|"), std::string::npos) << "no " << debe[2];
    }
  }
  EXPECT_EQ(estructura.size() + bordes.size() + lineas.size() + energia.size(), 0U) << "sent and not expected";
  comprobarMedidas(dxf, caso.deben["cad"]);
}

INSTANTIATE_TEST_SUITE_P(Casos, Cad, testing::ValuesIn(casosCon("figura")), nombreDeCaso);

}  // namespace
}  // namespace calvento::lote
