// Each worked design from the typed project to boxes, record, window and reports.
#include <sstream>

#include "comun/numeros.h"
#include "dibujo/ventana_secciones.h"
#include "lote/caso.h"
#include "lote/json.h"
#include "lote/resumen.h"
#include "modelo/archivo_proyecto.h"

namespace calvento::lote {
namespace {

/// Saved again it is the same project: every field on its line, and what the record keeps on the others.
void comprobarGuardado(Caso& caso) {
  Sesion& s = caso.sesion();
  const std::string otro = "otro." + std::string(s.estructura()->formato->extension);
  s.nombrarArchivo(otro);
  disparar(s.ventana()->buscar<Menu>("mnguardarcomo")->Click);
  const std::vector<std::string> lineas = leerLineas(otro, 99);
  const Json &proyecto = caso.deben["proyecto"], &campos = caso.deben["ventana"]["campos"];
  ASSERT_EQ(lineas.size(), s.estructura()->formato->lineas.size());
  std::size_t i = 0;
  for (const auto& [linea, texto] : proyecto.items()) {
    const Json debe = campos.contains(linea) ? campos[linea] : caso.deben["estado"].value(linea, texto);
    // the record's own numbers are written in their own way
    const bool delRegistro = linea.find("Text") == std::string::npos && linea != "tipoTubo";
    delRegistro ? comparar(Val(lineas[i]).valor(), caso.deben["estado"].value(linea, 0.0), linea)
                : comparar(lineas[i], debe, linea);
    ++i;
  }
}

/// The cross-sections in their window: names, levels and widths.
void comprobarSecciones(Caso& caso) {
  const std::string_view clave = caso.sesion().estructura()->clave;
  const char* ventana = clave == "rapida" ? "Form19" : clave == "caida_inclinada" ? "Form20" : "Form24";
  auto& v = *caso.sesion().aplicacion().cargar<VentanaSecciones>(ventana);
  const Json& deben = caso.deben["secciones"];
  ASSERT_EQ(v.Combo1.List.valor().size(), deben.size());
  for (std::size_t i = 0; i < deben.size(); ++i) {
    v.Combo1.ListIndex = static_cast<int>(i);
    std::vector<std::vector<Punto>> areas;
    for (const Primitiva& p : v.P.lienzo.primitivas())
      if (const auto* area = std::get_if<PrimPoligono>(&p)) areas.push_back(area->puntos);
    ASSERT_EQ(areas.size(), 2U) << deben[i];
    // bed and banks, of the water and of the lining
    const auto &agua = areas[0], &muro = areas[1];
    const double c = deben[i][1], H = deben[i][2], y = deben[i][3], b = deben[i][4], z = deben[i][5];
    EXPECT_EQ(v.Combo1.Text(), deben[i][0].get<std::string>());
    // the levels are solved to a thousandth
    const double esperados[] = {c, y, b / 2, b / 2 + z * y, H, b / 2 + z * H};
    const double son[] = {agua[0].y, agua[1].y - agua[0].y, -agua[0].x, agua[2].x, muro[1].y - muro[0].y, -muro[1].x};
    for (int k = 0; k < 6; ++k) EXPECT_NEAR(son[k], esperados[k], 2e-3) << deben[i] << " value " << k;
  }
}

class Diseno : public testing::TestWithParam<std::string> {};

TEST_P(Diseno, GivesWhatWasWorkedOut) {
  Caso caso(GetParam());
  Json son = Json::parse(comoJson(caso.sesion()));
  Json& estado = son["estado"];
  for (const char* libre : {"esNuevo", "rutaArchivo", "progresivaFinPoza"}) estado.erase(libre);
  // fields that the design does not name are empty
  Json vacios;
  for (const auto& [campo, valor] : estado.items())
    if (!caso.deben["estado"].contains(campo)) vacios[campo] = valor.is_string() ? Json("") : Json(0);
  Json deben = caso.deben["estado"];
  deben.update(vacios);
  comparar(estado, deben, "estado");
  son["ventana"].erase("titulo");
  // what is told of the file after a calculation is not part of the design
  Json& mensajes = son["mensajes"];
  for (std::size_t i = mensajes.size(); i-- > 0;)
    if (mensajes[i]["tipo"] == "fallo" && !mensajes[i]["texto"].get<std::string>().ends_with("verificar"))
      mensajes.erase(i);
  for (const char* parte : {"estructura", "calculado", "mensajes", "perfil", "perfilCaida", "ventana"})
    comparar(son[parte], caso.deben[parte], parte);
  EXPECT_EQ(son.contains("reportes"), caso.deben.contains("reportes"));
  if (caso.deben.contains("reportes")) comparar(son["reportes"], caso.deben["reportes"], "reportes");
  if (caso.deben.contains("secciones")) comprobarSecciones(caso);
  comprobarGuardado(caso);
}

class Resumen : public testing::TestWithParam<std::string> {};

TEST_P(Resumen, HasTheseLines) {
  Caso caso(GetParam());
  std::istringstream resumen(comoResumen(caso.sesion()));
  for (const Json& debe : caso.deben["resumen"]) {
    bool esta = false;
    for (std::string l; !esta && std::getline(resumen, l);) esta = l == debe.get<std::string>();
    ASSERT_TRUE(esta) << "missing behind the line before it: " << debe << " of\n" << comoResumen(caso.sesion());
  }
}

INSTANTIATE_TEST_SUITE_P(Casos, Resumen, testing::ValuesIn(casosCon("resumen")), nombreDeCaso);
INSTANTIATE_TEST_SUITE_P(Casos, Diseno, testing::ValuesIn(casosCon("proyecto")), nombreDeCaso);

}  // namespace
}  // namespace calvento::lote
