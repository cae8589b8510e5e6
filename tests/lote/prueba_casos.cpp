// Each worked design from the typed project to boxes, record, window and reports.
#include <sstream>

#include "lote/caso.h"
#include "lote/json.h"
#include "lote/resumen.h"

namespace calvento::lote {
namespace {

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
