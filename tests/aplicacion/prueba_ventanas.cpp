#include <filesystem>
#include <gtest/gtest.h>

#include "aplicacion/aplicacion.h"
#include "apoyo/dialogos_guion.h"
#include "rapida/form10.h"

namespace calvento {
namespace {

/// Shows nothing, records what it was asked, and runs postponed actions when told.
class SistemaMudo : public SistemaVentanas {
 public:
  std::vector<std::string> llamadas;
  std::vector<std::function<void()>> pendientes;

  void presentar(Ventana& v) override { llamadas.push_back("presentar " + v.nombre()); }
  void ocultar(Ventana& v) override { llamadas.push_back("ocultar " + v.nombre()); }
  void cerrar(Ventana& v) override { llamadas.push_back("cerrar " + v.nombre()); }
  void imprimir(Ventana& v) override { llamadas.push_back("imprimir " + v.nombre()); }
  void copiar(Ventana& v) override { llamadas.push_back("copiar " + v.nombre()); }
  void terminar() override { llamadas.emplace_back("terminar"); }
  void despues(std::function<void()> accion) override { pendientes.push_back(std::move(accion)); }
  void acabarEvento() {
    for (const auto& a : std::exchange(pendientes, {})) a();
  }
};

struct Programa {
  DialogosGuion dialogos;
  SistemaMudo sistema;
  Aplicacion a{dialogos, sistema};
};

TEST(Windows, EachIsOneForTheWholeRun) {
  Programa p;
  p.a.arrancar();
  EXPECT_EQ(p.sistema.llamadas, (std::vector<std::string>{"presentar frmMain", "presentar frmAbout"}));
  p.a.abrirProyecto(RAIZ_PROYECTO "/ejemplos/04-tres-tramos.cvr");  // reports need a design
  p.a.estado.bEntradaCaida = p.a.estado.bPozaCaida = 2;             // and those of the drops what only these have
  for (const std::string_view nombre : p.a.nombres()) {
    Ventana* v = p.a.cargar(nombre);
    ASSERT_NE(v, nullptr) << nombre;
    p.a.mostrar(nombre);
    EXPECT_EQ(p.a.cargada(nombre), v) << nombre;
    EXPECT_EQ(v->nombre(), nombre);
  }
  EXPECT_EQ(p.a.cargar("Form99"), nullptr);
}

TEST(Windows, AnUnloadedOneComesBackWithItsDefaultsAHiddenOneWithItsTexts) {
  Programa p;
  auto& rapida = *p.a.cargar<Form10>("Form10");
  auto& parametros = *p.a.cargar<Form2>("Form2");
  rapida.Text5.Text = "4";
  rapida.Text26.Text = "7";
  parametros.Text6.Text = "0.55";
  p.a.estado.tipoTanque = 3;
  p.a.estado.Q = 4;
  p.a.estado.esNuevo = false;

  p.a.mostrar("Form2");
  parametros.Command1.Click();
  EXPECT_EQ(p.a.cargada("Form2"), &parametros);
  // the window's own close box unloads nothing either
  p.a.descargar(parametros);
  EXPECT_EQ(p.sistema.llamadas.back(), "ocultar Form2");

  rapida.mncerrar.Click();
  EXPECT_EQ(p.a.cargada("Form10"), nullptr);
  EXPECT_EQ(rapida.Text5.Text.valor(), "4") << "lives until its own event has ended";
  p.sistema.acabarEvento();
  auto& otra = *p.a.cargar<Form10>("Form10");
  EXPECT_EQ(otra.Text5.Text.valor() + otra.Text26.Text.valor(), "10");
  EXPECT_TRUE(p.a.estado.esNuevo);
  EXPECT_FALSE(otra.mngrafico.Enabled);
  EXPECT_EQ(p.a.estado.tipoTanque.valor(), 3) << "closing by the menu keeps the basin type";
  EXPECT_EQ(p.a.estado.Q.valor(), 4);
  EXPECT_EQ(p.a.cargada("Form2"), &parametros);
  EXPECT_EQ(parametros.Text6.Text.valor(), "0.55");

  otra.Command2.Click();
  p.sistema.acabarEvento();
  EXPECT_EQ(p.a.cargada("Form10"), nullptr);
  EXPECT_EQ(p.a.estado.tipoTanque.valor(), 0) << "the button that cancels clears it";
}

TEST(Windows, AReportThatFailsIsToldInOneBoxAndDoesNotOpen) {
  Programa p;
  auto& rapida = *p.a.cargar<Form10>("Form10");
  rapida.Text5.Text = "4";
  for (const char* reporte : {"Form11", "Form6", "Form7"}) {
    p.dialogos.esperaFallo();
    p.a.mostrar(reporte);
    p.dialogos.comprobarGastado();
    EXPECT_EQ(p.a.cargada(reporte), nullptr) << reporte;
  }
  EXPECT_TRUE(p.sistema.llamadas.empty());
  EXPECT_EQ(p.a.cargada("Form10"), &rapida);
  EXPECT_EQ(rapida.Text5.Text.valor(), "4");
}

TEST(Windows, AProjectOpensInTheWindowOfItsExtension) {
  Programa p;
  EXPECT_FALSE(p.a.abrirProyecto("a.txt"));
  EXPECT_TRUE(p.sistema.llamadas.empty());
  p.dialogos.esperaFallo("No se puede leer el archivo falta.CVR: no existe el archivo o la carpeta");
  EXPECT_TRUE(p.a.abrirProyecto("falta.CVR"));
  EXPECT_EQ(p.sistema.llamadas, (std::vector<std::string>{"presentar Form10"}));
}

}  // namespace
}  // namespace calvento
