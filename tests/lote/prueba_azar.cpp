#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <set>
#include <tuple>

#include "apoyo/disenos_al_azar.h"
#include "corrida.h"
#include "dibujo/marco_dibujo.h"
#include "lote/sesion.h"

namespace calvento::lote {
namespace {

/// How many random projects in all.
int cuantos() { return cuantosAlAzar(1000, 1); }

/// Seconds of processor time that one project may take: opening, all presses, all windows.
constexpr double limite = limiteSegundos(0.5, 10);
std::size_t hasta(Azar& azar, std::size_t n) { return azar() % n; }

std::string numero(double x, int decimales) {
  std::array<char, 32> bufer{};
  std::snprintf(bufer.data(), bufer.size(), "%.*f", decimales, x);
  return bufer.data();
}

/// A random project, and what is put into its windows beyond the file.
struct Azaroso {
  ProyectoTexto proyecto;
  std::vector<Asignacion> campos;
};

struct Estructura {
  const char* nombre;
  const FormatoProyecto& formato;
  const char* parametros;
  std::vector<const char*> informes;  ///< windows that a finished design opens
};
const Estructura estructuras[] = {{"rapida", formatoRapida, "Form2", {"Form11", "Form6", "Form3", "Form19"}},
                                  {"inclinada", formatoCaidaInclinada, "Form2", {"Form7", "Form4", "Form20"}},
                                  {"vertical", formatoCaidaVertical, "Form25", {"Form26", "Form17", "Form24"}}};

/// What an engineer could have typed; of inclined drops a third asks for the outlet of a steep canal, and the options
/// of a vertical drop are set in the file or in its windows.
Azaroso sensato(Azar& azar, const Estructura& e) {
  const bool super = e.formato.extension == "cvi" && hasta(azar, 3) == 0;
  const char* inclinadas[] = {"11", "12", "14"};
  Datos d = disenoAlAzar(azar, e.formato,
                         super                          ? "13"
                         : e.formato.extension == "cvi" ? inclinadas[hasta(azar, 3)]
                                                        : "");
  std::vector<Asignacion> campos;
  if (super) campos.push_back({"Form1", "mnsuper", "1"});
  if (e.formato.extension == "cvv") {
    linea(d, "tipoTransVert") = std::to_string(hasta(azar, 2));
    linea(d, "tipoTanque") = std::to_string(hasta(azar, 2));
    if (hasta(azar, 3) == 0) campos.push_back({"Form16", hasta(azar, 2) == 0 ? "Option1" : "Option2", "1"});
    if (hasta(azar, 3) == 0) campos.push_back({"Form25", hasta(azar, 2) == 0 ? "Option3" : "Option4", "1"});
  } else if (linea(d, "Text24") == "0") {
    linea(d, "tipoTanque") = std::to_string(1 + hasta(azar, 5));
  }
  ProyectoTexto p(e.formato);
  for (const auto& [nombre, texto] : d) p.poner(nombre, texto);
  return {p, campos};
}

const std::vector<std::string>& raros() {
  static const std::vector<std::string> todos = [] {
    std::vector<std::string> t = {std::string(300, '9'), std::string(4000, '1'), "0." + std::string(400, '0') + "1"};
    std::istringstream cortos(
        "| |0|-0|-5|-0.001|1e400|-1e400|1e38|3.5e38|1e-40|1e-300|1e-400|1E5|abc|2,5|1.234,5|NaN|inf|-inf|0x1F|1e|+|-|.|"
        "..|1.2.3|99999999999999999999|0.00000000001|32767|32768|-32769|7|1000000|  3 |\t2|3 m|½|２|ñandú|𝟙|1d5|&H10|"
        "\"|'; --|%s%n|1/0");
    for (std::string uno; std::getline(cortos, uno, '|');) t.push_back(uno);
    return t;
  }();
  return todos;
}

/// A sensible project with a few fields that are not.
Azaroso raro(Azar& azar, const Estructura& e) {
  Azaroso a = sensato(azar, e);
  for (std::size_t i = 1 + hasta(azar, 3); i-- > 0;) {
    const auto linea = e.formato.lineas[hasta(azar, e.formato.lineas.size())];
    if (hasta(azar, 2) == 0)
      a.proyecto.poner(linea, raros()[hasta(azar, raros().size())]);
    else
      a.proyecto.poner(linea, numero(std::exp(entre(azar, -14, 14)) * (hasta(azar, 4) == 0 ? -1 : 1), 6));
  }
  return a;
}

/// Whatever in every field.
Azaroso basura(Azar& azar, const Estructura& e) {
  Azaroso a = sensato(azar, e);
  for (const auto linea : e.formato.lineas)
    a.proyecto.poner(linea, hasta(azar, 3) == 0 ? ""
                            : hasta(azar, 2) == 0
                                ? raros()[hasta(azar, raros().size())]
                                : numero(std::exp(entre(azar, -8, 8)), static_cast<int>(hasta(azar, 5))));
  return a;
}

struct Clase {
  const char* nombre;
  Azaroso (*proyecto)(Azar&, const Estructura&);
  bool conRaros;         ///< fields, options and the length of the file may be senseless
  double fraccion;       ///< of all random projects
  double calculaMinimo;  ///< of these, at least so many run to their end
  double calculaMaximo;
};
void PrintTo(const Clase& c, std::ostream* salida) { *salida << c.nombre; }
void PrintTo(const Estructura& e, std::ostream* salida) { *salida << e.nombre; }
using Caso = std::tuple<Clase, Estructura>;
std::string nombre(const Caso& caso) { return std::string(std::get<1>(caso).nombre) + "_" + std::get<0>(caso).nombre; }

/// Opens every result window on what the session left, and works the drawings; returns those that opened.
std::set<std::string> abrirTodo(Sesion& sesion) {
  Aplicacion& a = sesion.aplicacion();
  std::set<std::string> abiertas;
  for (const char* n : {"Form11", "Form6", "Form8", "Form13", "Form7", "Form26", "Form3", "Form4", "Form17", "Form19",
                        "Form20", "Form24", "Form5", "Form21", "Form22", "Form23"}) {
    a.mostrar(n);
    if (a.cargada(n) != nullptr) abiertas.insert(n);
    if (auto* dibujo = dynamic_cast<MarcoDibujo*>(a.cargada(n)))
      for (const std::string& clave : dibujo->Toolbar1.claves()) dibujo->Toolbar1.ButtonClick(clave);
  }
  return abiertas;
}

class ProyectosAlAzar : public testing::TestWithParam<Caso> {};

TEST_P(ProyectosAlAzar, EndInTimeCalculatedOrWithAMessage) {
  const auto& [clase, estructura] = GetParam();
  const int n = std::max(1, static_cast<int>(cuantos() * clase.fraccion / std::size(estructuras)));
  const CarpetaPrueba carpeta;
  int calculados = 0;
  double peor = 0;
  for (int i = 0; i < n; ++i) {
    Azar azar(static_cast<unsigned>(i) * 3 + static_cast<unsigned>(clase.nombre[0]));
    const Azaroso azaroso = clase.proyecto(azar, estructura);
    std::string contenido = azaroso.proyecto.contenido();
    if (clase.conRaros && hasta(azar, 20) == 0) contenido.resize(hasta(azar, contenido.size()));
    Opciones opciones;
    opciones.responder = hasta(azar, 3) != 0;
    opciones.veces = static_cast<int>(hasta(azar, 3));
    opciones.campos = azaroso.campos;
    if (hasta(azar, 4) == 0) {
      opciones.campos.push_back(
          {estructura.parametros, "Text9", clase.conRaros ? raros()[hasta(azar, raros().size())] : "15"});
      if (std::string_view(estructura.parametros) == "Form2")
        opciones.campos.push_back({std::string(estructura.formato.ventana), "Grid1", std::to_string(hasta(azar, 7))});
    }
    const std::string archivo = carpeta.escribir("azar." + std::string(estructura.formato.extension), contenido);
    const auto que = [&] {
      std::string s = "project " + std::to_string(i);
      for (const Asignacion& c : opciones.campos) s += " " + c.ventana + "." + c.control + "=" + c.texto;
      return s + ":\n" + contenido;
    };
    const std::clock_t antes = std::clock();
    // an exception that leaves the session is a fault too
    ASSERT_NO_THROW({
      Sesion sesion(opciones, archivo);
      const bool calculado = sesion.calculado();
      const bool dicho = !sesion.mensajes().empty();
      if (i % 4 == 0) {
        const auto abiertas = abrirTodo(sesion);
        EXPECT_TRUE(abiertas.contains("Form13")) << "it opens whatever its data " << que();
        if (calculado && !clase.conRaros) {
          for (const char* suya : estructura.informes) EXPECT_TRUE(abiertas.contains(suya)) << suya << que();
        }
      }
      const double segundos = static_cast<double>(std::clock() - antes) / CLOCKS_PER_SEC;
      peor = std::max(peor, segundos);
      EXPECT_LT(segundos, limite) << que();
      EXPECT_TRUE(calculado || dicho) << "silent " << que();
      if (calculado) {
        ++calculados;
        EXPECT_TRUE(sesion.ventana()->buscar<Menu>("mngrafico")->Enabled) << que();
      }
    }) << que();
    if (HasFailure()) break;
  }
  RecordProperty("peor_ms", static_cast<int>(peor * 1000));
  const double parte = static_cast<double>(calculados) / n;
  if (n < 100) return;
  EXPECT_GE(parte, clase.calculaMinimo);
  EXPECT_LE(parte, clase.calculaMaximo);
}

INSTANTIATE_TEST_SUITE_P(, ProyectosAlAzar,
                         testing::Combine(testing::Values(Clase{"sensatos", sensato, false, 0.3, 0.95, 1},
                                                          Clase{"raros", raro, true, 0.4, 0.2, 0.8},
                                                          Clase{"basura", basura, true, 0.3, 0, 0.2}),
                                          testing::ValuesIn(estructuras)),
                         [](const auto& caso) { return nombre(caso.param); });

}  // namespace
}  // namespace calvento::lote
