// The checks of a design: what each must find. That a sound one passes them all is read in its report.
#include <filesystem>
#include <map>
#include <set>

#include "apoyo/tablas.h"
#include "corrida.h"
#include "lote/estructuras.h"

namespace calvento::lote {
namespace {

namespace fs = std::filesystem;

/// The checks of a project by their state.
std::map<std::string, std::set<std::string>> comprobacionesDe(const std::string& archivo) {
  const Corrida c = correr({"--json", archivo});
  EXPECT_EQ(c.estado, 0) << c.errores;
  std::map<std::string, std::set<std::string>> porEstado;
  auto objetos = c.objetos();
  for (const auto& x : objetos.at(0)["comprobaciones"]) {
    porEstado[x["estado"]].insert(x["nombre"]);
    EXPECT_FALSE(x["detalle"].get<std::string>().empty()) << x["nombre"];
    EXPECT_EQ(x["detalle"].get<std::string>().find("sin valor"), std::string::npos) << x;
  }
  return porEstado;
}

/// The example whose name begins so, with some lines of its file changed.
std::string variante(const CarpetaPrueba& carpeta, const std::string& ejemplo, const std::string& cambios) {
  for (const auto& e : fs::directory_iterator(fs::path(RAIZ_PROYECTO) / "ejemplos")) {
    if (e.path().filename().string().substr(0, 2) != ejemplo) continue;
    const FormatoProyecto& formato = *estructuraDe(e.path().string())->formato;
    std::vector<std::string> lineas = leerLineas(e.path(), formato.lineas.size());
    for (const std::string& cambio : partido(cambios, ' ')) {
      const auto igual = cambio.find('=');
      const auto it = std::ranges::find(formato.lineas, cambio.substr(0, igual));
      EXPECT_NE(it, formato.lineas.end()) << cambio;
      lineas.at(static_cast<std::size_t>(it - formato.lineas.begin())) = cambio.substr(igual + 1);
    }
    const std::string archivo = carpeta.en(e.path().filename().string());
    escribirLineas(archivo, lineas);
    return archivo;
  }
  ADD_FAILURE() << "no example " << ejemplo;
  return {};
}

TEST(Comprobaciones, EachKnownFaultIsFoundByItsCheck) {
  const CarpetaPrueba carpeta;
  int casos = 0;
  porCadaFila("fallas.txt", "fallas", [&](const FilaTabla& f) {
    const auto hallado = comprobacionesDe(variante(carpeta, f[0], f[1]));
    std::set<std::string> fallan;
    for (const std::string& nombre : partido(f[2], '+')) {
      if (nombre[0] == '~')
        EXPECT_TRUE(hallado.at("observación").contains(nombre.substr(1)));
      else
        fallan.insert(nombre);
    }
    EXPECT_EQ(hallado.contains("no cumple") ? hallado.at("no cumple") : std::set<std::string>{}, fallan);
    ++casos;
  });
  EXPECT_GE(casos, 20);
}

}  // namespace
}  // namespace calvento::lote
