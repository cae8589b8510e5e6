// Command lines of calvento-lote and what they answer; they are data, tests/guiones/ordenes.
#include <algorithm>
#include <fstream>

#include "apoyo/textos.h"
#include "lote/caso.h"
#include "lote/corrida.h"
#include "lote/opciones.h"

namespace calvento::lote {
namespace {

/// A file of the folder: the content, or the lines of canal.cvr that are different ("sin fin": how much its end lacks);
/// "-> other" is a link to another one, "= other" a second name of it, "/" a folder.
void hacerArchivo(const CarpetaPrueba& carpeta, const std::string& nombre, const Json& que) {
  namespace fs = std::filesystem;
  ProyectoRapida p;
  if (que.is_object()) {
    std::size_t falta = 0;
    for (const auto& [linea, texto] : que.items())
      linea == "sin fin" ? void(falta = texto.get<std::size_t>()) : void(p.poner(linea, texto));
    carpeta.escribir(nombre, p.contenido().substr(0, p.contenido().size() - falta));
    return;
  }
  const std::string s = que;
  if (s == "/") return void(fs::create_directory(nombre));
  if (s.starts_with("-> ")) return fs::create_symlink(s.substr(3), nombre);
  if (s.starts_with("= ")) return fs::create_hard_link(s.substr(2), nombre);
  carpeta.escribir(nombre, s);
}

/// Runs one in a folder where canal.cvr calculates without a word, with the files that it describes beside it.
void correrOrden(const Json& orden) {
  const CarpetaPrueba carpeta;
  carpeta.escribir("canal.cvr", ProyectoRapida().contenido());
  const Json archivos = orden.value("archivos", Json::object());
  for (const auto& [nombre, que] : archivos.items()) hacerArchivo(carpeta, nombre, que);
  const auto argumentos = orden["orden"].get<std::vector<std::string>>();
  // without Qt a drawing is an SVG
  const bool deQt = !conQt && std::any_of(argumentos.begin(), argumentos.end(), [](const std::string& a) {
    return a.ends_with(".png") || a.ends_with(".PDF");
  });
  for (const Json& antes : orden.value("antes", Json::array()))
    EXPECT_EQ(correr(antes.get<std::vector<std::string>>()).estado, 0) << antes;
  const Corrida c = correr(argumentos);
  if (deQt) {
    EXPECT_EQ(c.estado, 2);
    EXPECT_NE(c.errores.find("debe terminar en .svg"), std::string::npos) << c.errores;
    return;
  }
  EXPECT_EQ(c.estado, orden.value("estado", 0)) << c.errores;
  EXPECT_EQ(c.errores.empty(), !orden.contains("errores")) << c.errores;
  const auto comprobar = [&](const char* clave, const std::string& texto, bool esta) {
    for (const Json& parte : orden.value(clave, Json::array()))
      EXPECT_EQ(veces(texto, parte) > 0, esta) << clave << " " << parte << ": " << texto;
  };
  comprobar("errores", c.errores, true);
  comprobar("salida", c.salida, true);
  comprobar("sin", c.salida, false);
  EXPECT_TRUE(c.salida.empty() || !orden.value("muda", false)) << c.salida;
  const Json ve = orden.value("ve", Json::object());
  for (const auto& [donde, debe] : ve.items()) comparar(c.objetos().back()[Json::json_pointer(donde)], debe, donde);
  for (const Json& archivo : orden.value("no hay", Json::array()))
    EXPECT_FALSE(std::filesystem::exists(archivo.get<std::string>())) << archivo;
  const Json hay = orden.value("hay", Json::object());
  for (const auto& [archivo, parte] : hay.items())
    EXPECT_EQ(veces(carpeta.leer(archivo), parte), 1U) << archivo << ": " << parte;
  const Json distintos = orden.value("distintos", Json::array());
  if (!distintos.empty()) {
    EXPECT_NE(carpeta.leer(distintos[0].get<std::string>()), carpeta.leer(distintos[1].get<std::string>()));
  }
}

TEST(Ordenes, AnswerAsItIsWritten) {
  const Json ordenes = Json::parse(std::ifstream(RAIZ_PROYECTO "/tests/guiones/ordenes/ordenes.json"));
  for (const Json& orden : ordenes) {
    SCOPED_TRACE(orden["orden"].dump());
#ifdef _WIN32
    if (orden.contains("posix")) continue;
#endif
    correrOrden(orden);
  }
}

}  // namespace
}  // namespace calvento::lote
