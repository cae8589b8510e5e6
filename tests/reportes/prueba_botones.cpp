#include <gtest/gtest.h>

#include "apoyo/dialogos_guion.h"
#include "apoyo/navegador_mudo.h"
#include "hidraulica/form14.h"
#include "hidraulica/form15.h"
#include "poza/form23.h"
#include "reportes/form11.h"
#include "reportes/form6.h"
#include "reportes/form8.h"
#include "reportes/ventana_verificacion.h"

namespace calvento {
namespace {

/// What a window asks when each button of its toolbar and, in a report, its closing button is clicked.
void pulsarTodo(Ventana&& v, NavegadorMudo& navegador, const char* cerrar = nullptr) {
  auto* barra = v.buscar<Toolbar>("Toolbar1");
  for (const std::string& clave : barra->claves()) barra->ButtonClick(clave);
  barra->ButtonClick("otra");
  std::vector<std::string> esperadas = {"imprimir " + v.nombre(), "copiar " + v.nombre()};
  if (cerrar != nullptr) {
    v.buscar<CommandButton>(cerrar)->Click();
    esperadas.push_back("descargar " + v.nombre());
  }
  EXPECT_EQ(std::exchange(navegador.llamadas, {}), esperadas);
}

TEST(Botones, CadaVentanaSeImprimeSeCopiaYSeCierra) {
  NavegadorMudo navegador;
  DialogosGuion dialogos;
  const Form2 form2(navegador);
  DesignState e;
  for (const CampoSingle& c : camposSingle()) e.*c.campo = 1;
  e.perfil.assign(100, {1, 1, 1, 1, 1});
  e.numTramos = 1, e.cotaInicio = 20, e.cotaFin = 10, e.sTramo1 = 0.1, e.nRapida = 0.014, e.tipoTanque = 1;
  pulsarTodo(Form14(e, dialogos, navegador), navegador);
  pulsarTodo(Form15(e, dialogos, navegador), navegador);
  pulsarTodo(Form23(e, form2, navegador), navegador);
  pulsarTodo(Form11(e, navegador), navegador, "Command4");
  pulsarTodo(Form6(e, navegador), navegador, "Command4");
  pulsarTodo(Form8(e, navegador), navegador, "Command1");
  pulsarTodo(Form26(e, navegador), navegador, "Command1");
}

}  // namespace
}  // namespace calvento
