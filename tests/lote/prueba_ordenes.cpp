// Command lines of calvento-lote and what they answer; they are data, tests/guiones/ordenes.
#include <algorithm>
#include <fstream>

#include "lote/caso.h"
#include "lote/corrida.h"
#include "lote/opciones.h"

namespace calvento::lote {
namespace {

/// Runs one in a folder where canal.cvr calculates without a word, with the files that it describes beside it: the
/// lines of that project that are different, or the whole content.
void correrOrden(const Json& orden) {
  const CarpetaPrueba carpeta;
  carpeta.escribir("canal.cvr", ProyectoRapida().contenido());
  const Json archivos = orden.value("archivos", Json::object());
  for (const auto& [nombre, contenido] : archivos.items()) {
    ProyectoRapida p;
    if (contenido.is_object())
      for (const auto& [linea, texto] : contenido.items()) p.poner(linea, texto);
    carpeta.escribir(nombre, contenido.is_object() ? p.contenido() : contenido.get<std::string>());
  }
  const auto argumentos = orden["orden"].get<std::vector<std::string>>();
  const Corrida c = correr(argumentos);
  if (!conQt && std::find(argumentos.begin(), argumentos.end(), "--dibujo") != argumentos.end()) {
    EXPECT_EQ(c.estado, 2);
    EXPECT_NE(c.errores.find("opción desconocida: --dibujo"), std::string::npos) << c.errores;
    return;
  }
  EXPECT_EQ(c.estado, orden.value("estado", 0));
  EXPECT_EQ(c.errores.empty(), !orden.contains("errores")) << c.errores;
  const auto comprobar = [&](const char* clave, const std::string& texto, bool esta) {
    for (const Json& parte : orden.value(clave, Json::array()))
      EXPECT_EQ(texto.find(parte.get<std::string>()) != std::string::npos, esta)
          << clave << " " << parte << ": " << texto;
  };
  comprobar("errores", c.errores, true);
  comprobar("salida", c.salida, true);
  comprobar("sin", c.salida, false);
  EXPECT_TRUE(c.salida.empty() || !orden.value("muda", false)) << c.salida;
  const Json ve = orden.value("ve", Json::object());
  for (const auto& [donde, debe] : ve.items()) comparar(c.objetos().back()[Json::json_pointer(donde)], debe, donde);
  for (const Json& archivo : orden.value("no hay", Json::array()))
    EXPECT_FALSE(std::filesystem::exists(archivo.get<std::string>())) << archivo;
}

TEST(Ordenes, AnswerAsItIsWritten) {
  const Json ordenes = Json::parse(std::ifstream(RAIZ_PROYECTO "/tests/guiones/ordenes/ordenes.json"));
  for (const Json& orden : ordenes) {
    SCOPED_TRACE(orden["orden"].dump());
    correrOrden(orden);
  }
}

}  // namespace
}  // namespace calvento::lote
