#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <random>

#include "corrida.h"
#include "lote/sesion.h"

namespace calvento::lote {
namespace {

/// How many random projects in all; the environment variable CALVENTO_AZAR asks for more than the daily two thousand.
int cuantos() {
  const char* pedido = std::getenv("CALVENTO_AZAR");
  return pedido != nullptr ? std::max(1, std::atoi(pedido)) : 2000;
}

/// Seconds of processor time that one project may take, opening and all presses.
#if defined(__SANITIZE_ADDRESS__) || !defined(NDEBUG)
constexpr double limite = 8;
#else
constexpr double limite = 0.2;
#endif

using Azar = std::mt19937;

double entre(Azar& azar, double a, double b) {
  // written out, since the library's distributions differ from one library to another
  return a + (b - a) * (static_cast<double>(azar()) / 4294967296.0);
}
std::size_t hasta(Azar& azar, std::size_t n) { return azar() % n; }

std::string numero(double x, int decimales) {
  std::array<char, 32> bufer{};
  std::snprintf(bufer.data(), bufer.size(), "%.*f", decimales, x);
  return bufer.data();
}

/// A chute that an engineer could have typed.
ProyectoRapida sensato(Azar& azar) {
  ProyectoRapida p;
  const double Q = std::exp(entre(azar, std::log(0.1), std::log(15.0)));
  const double b = 0.765 * std::pow(Q, 0.4);
  const auto tramos = static_cast<int>(1 + hasta(azar, 3));
  const double zPoza = hasta(azar, 4) == 0 ? 0.5 : 0;
  p.poner("Text5", numero(Q, 3)).poner("Text10", numero(b * entre(azar, 0.9, 1.6), 2));
  for (const char* ancho : {"Text6", "Text16"}) p.poner(ancho, numero(b * entre(azar, 1, 1.8), 2));
  for (const char* pendiente : {"Text9", "Text20"}) p.poner(pendiente, numero(entre(azar, 0.0003, 0.0015), 5));
  for (const char* rugosidad : {"Text8", "Text12", "Text19"}) p.poner(rugosidad, numero(entre(azar, 0.013, 0.02), 3));
  p.poner("Text11", hasta(azar, 4) == 0 ? "0.5" : "0").poner("Text24", numero(zPoza, 1));
  p.poner("Text23", numero(b * entre(azar, 1, 1.5), 2)).poner("Text17", std::to_string(tramos));
  for (const char* pendiente : {"Text13", "Text15", "Text14"}) p.poner(pendiente, numero(entre(azar, 0.08, 0.45), 3));
  double cota = entre(azar, 5, 4200);
  std::vector<const char*> cotas = {"Text1", "Text2", "Text4"};
  if (tramos > 2) cotas.insert(cotas.begin() + 1, "Text27");
  if (tramos > 1) cotas.insert(cotas.begin() + 1, "Text3");
  for (const char* c : cotas) {
    p.poner(c, numero(cota, 2));
    cota -= c == cotas[cotas.size() - 2] ? entre(azar, 0.1, 1) : entre(azar, 1, 12);
  }
  p.poner("tipoTanque", zPoza > 0 ? "6" : std::to_string(1 + hasta(azar, 5)));
  return p;
}

const std::vector<std::string>& raros() {
  static const std::vector<std::string> todos = {"",
                                                 " ",
                                                 "0",
                                                 "-0",
                                                 "-5",
                                                 "-0.001",
                                                 "1e400",
                                                 "-1e400",
                                                 "1e38",
                                                 "3.5e38",
                                                 "1e-40",
                                                 "1e-300",
                                                 "1e-400",
                                                 "1E5",
                                                 "abc",
                                                 "2,5",
                                                 "1.234,5",
                                                 "NaN",
                                                 "inf",
                                                 "-inf",
                                                 "0x1F",
                                                 "1e",
                                                 "+",
                                                 "-",
                                                 ".",
                                                 "..",
                                                 "1.2.3",
                                                 "99999999999999999999",
                                                 "0.00000000001",
                                                 "32767",
                                                 "32768",
                                                 "-32769",
                                                 "7",
                                                 "1000000",
                                                 "  3 ",
                                                 "\t2",
                                                 "3 m",
                                                 "½",
                                                 "２",
                                                 "ñandú",
                                                 "𝟙",
                                                 "1d5",
                                                 "&H10",
                                                 "\"",
                                                 "'; --",
                                                 "%s%n",
                                                 "1/0",
                                                 std::string(300, '9'),
                                                 std::string(4000, '1'),
                                                 "0." + std::string(400, '0') + "1"};
  return todos;
}

/// A sensible project with a few fields that are not.
ProyectoRapida raro(Azar& azar) {
  ProyectoRapida p = sensato(azar);
  for (std::size_t i = 1 + hasta(azar, 3); i-- > 0;) {
    const auto linea = formatoRapida.lineas[hasta(azar, formatoRapida.lineas.size())];
    if (hasta(azar, 2) == 0)
      p.poner(linea, raros()[hasta(azar, raros().size())]);
    else
      p.poner(linea, numero(std::exp(entre(azar, -14, 14)) * (hasta(azar, 4) == 0 ? -1 : 1), 6));
  }
  return p;
}

/// Whatever in every field.
ProyectoRapida basura(Azar& azar) {
  ProyectoRapida p;
  for (const auto linea : formatoRapida.lineas) {
    if (hasta(azar, 3) == 0) continue;
    p.poner(linea, hasta(azar, 2) == 0 ? raros()[hasta(azar, raros().size())]
                                       : numero(std::exp(entre(azar, -8, 8)), static_cast<int>(hasta(azar, 5))));
  }
  return p;
}

struct Clase {
  const char* nombre;
  ProyectoRapida (*proyecto)(Azar&);
  bool conRaros;         ///< fields, options and the length of the file may be senseless
  double fraccion;       ///< of all random projects
  double calculaMinimo;  ///< of these, at least so many run to their end
  double calculaMaximo;
};
void PrintTo(const Clase& c, std::ostream* salida) { *salida << c.nombre; }

class ProyectosAlAzar : public testing::TestWithParam<Clase> {};

TEST_P(ProyectosAlAzar, EndInTimeCalculatedOrWithAMessage) {
  const Clase& clase = GetParam();
  const int n = std::max(1, static_cast<int>(cuantos() * clase.fraccion));
  const CarpetaPrueba carpeta;
  int calculados = 0;
  double peor = 0;
  for (int i = 0; i < n; ++i) {
    Azar azar(static_cast<unsigned>(i) * 3 + static_cast<unsigned>(clase.nombre[0]));
    std::string contenido = clase.proyecto(azar).contenido();
    if (clase.conRaros && hasta(azar, 20) == 0) contenido.resize(hasta(azar, contenido.size()));
    Opciones opciones;
    opciones.responder = hasta(azar, 3) != 0;
    opciones.veces = static_cast<int>(hasta(azar, 3));
    if (hasta(azar, 4) == 0)
      opciones.campos = {{"Form2", "Text9", clase.conRaros ? raros()[hasta(azar, raros().size())] : "15"},
                         {"Form10", "Grid1", std::to_string(hasta(azar, 7))}};
    const std::string archivo = carpeta.escribir("azar.cvr", contenido);
    const std::clock_t antes = std::clock();
    // an exception that leaves the session is a fault too
    ASSERT_NO_THROW({
      const Sesion sesion(opciones, archivo);
      const double segundos = static_cast<double>(std::clock() - antes) / CLOCKS_PER_SEC;
      peor = std::max(peor, segundos);
      EXPECT_LT(segundos, limite) << "project " << i << ":\n" << contenido;
      EXPECT_TRUE(sesion.calculado() || !sesion.mensajes().empty()) << "silent project " << i << ":\n" << contenido;
      if (sesion.calculado()) {
        ++calculados;
        EXPECT_TRUE(sesion.ventana()->buscar<Menu>("mngrafico")->Enabled) << i;
      }
    }) << "project "
       << i << ":\n"
       << contenido;
    if (HasFailure()) break;
  }
  RecordProperty("peor_ms", static_cast<int>(peor * 1000));
  const double parte = static_cast<double>(calculados) / n;
  if (n < 100) return;
  EXPECT_GE(parte, clase.calculaMinimo);
  EXPECT_LE(parte, clase.calculaMaximo);
}

INSTANTIATE_TEST_SUITE_P(, ProyectosAlAzar,
                         testing::Values(Clase{"sensatos", sensato, false, 0.3, 0.95, 1},
                                         Clase{"raros", raro, true, 0.4, 0.2, 0.8},
                                         Clase{"basura", basura, true, 0.3, 0, 0.2}),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

}  // namespace
}  // namespace calvento::lote
