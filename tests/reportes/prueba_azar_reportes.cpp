// No record, sensible or not, makes a report hang or crash.
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <gtest/gtest.h>
#include <random>

#include "apoyo/azar.h"
#include "apoyo/dialogos_guion.h"
#include "apoyo/navegador_mudo.h"
#include "reportes/form11.h"
#include "reportes/form6.h"
#include "reportes/form8.h"
#include "reportes/ventana_verificacion.h"

namespace calvento {
namespace {

/// How many records of each kind.
int cuantos() { return cuantosAlAzar(200, 100); }

/// Seconds of processor time that one report may take.
constexpr double limite = limiteSegundos(0.3, 6);

/// What any of the three calculations could have left, with all fields of about their usual size.
DesignState razonable(Azar& azar) {
  DesignState e;
  for (const CampoSingle& c : camposSingle()) e.*c.campo = entre(azar, 0.1, 3);
  using D = DesignState;
  for (const auto s : {&D::sArriba, &D::sAbajo}) e.*s = entre(azar, 0.0003, 0.03);
  for (const auto s : {&D::sTramo1, &D::sTramo2, &D::sTramo3}) e.*s = entre(azar, 0.03, 0.6);
  for (const auto n : {&D::nArriba, &D::nAbajo, &D::nRapida}) e.*n = entre(azar, 0.01, 0.03);
  double cota = entre(azar, 20, 4000);
  for (Single D::*c : {&D::cotaInicio, &D::cotaTramo2, &D::cotaTramo3, &D::cotaFin, &D::cotaTrayectoria, &D::cotaAbajo,
                       &D::cotaPoza}) {
    e.*c = cota;
    cota -= entre(azar, 0.05, 6);
  }
  e.longRapida = entre(azar, 1, 200);
  e.xTrayectoria = entre(azar, 0.2, 12);
  e.numTramos = static_cast<std::int16_t>(azar() % 5);
  e.tipoTanque = static_cast<int>(azar() % 8);
  for (int i = 0; i < 100 * e.numTramos; ++i) e.perfil.push_back({i, entre(azar, 0.1, 1), cota, 5, cota});
  return e;
}

/// The same with some fields that no calculation would leave.
DesignState raro(Azar& azar) {
  DesignState e = razonable(azar);
  const auto campos = camposSingle();
  for (std::size_t i = 1 + azar() % 12; i-- > 0;) {
    static constexpr double valores[] = {0, -1, 1e-30, 1e30, -1e30, 3e38, 1e-6, 1e6, -0.001};
    const double v = azar() % 2 == 0 ? valores[azar() % std::size(valores)] : std::exp(entre(azar, -12, 12));
    e.*campos[azar() % campos.size()].campo = v;
  }
  if (azar() % 10 == 0) e.perfil.clear();
  return e;
}

class Reportes : public testing::TestWithParam<DesignState (*)(Azar&)> {};

TEST_P(Reportes, DeRegistrosAlAzar) {
  NavegadorMudo navegador;
  DialogosGuion dialogos;
  dialogos.tolera(DialogosGuion::Clase::aviso);
  const Form2 form2{navegador};
  DesignState e;
  const std::pair<const char*, std::function<void()>> todos[] = {
      {"Form11", [&] { Form11(e, navegador); }},
      {"Form6", [&] { Form6(e, navegador); }},
      {"Form8", [&] { Form8(e, navegador); }},
      {"Form13", [&] { Form13(e, form2, dialogos, navegador); }},
      {"Form7", [&] { Form7(e, form2, dialogos, navegador); }},
      {"Form26", [&] { Form26(e, navegador); }},
  };
  std::map<std::string, int> abiertos;
  for (int i = 0; i < cuantos(); ++i) {
    Azar azar(static_cast<unsigned>(i));
    e = GetParam()(azar);
    dialogos.dichas.clear();
    for (const auto& [nombre, abrir] : todos) {
      const std::clock_t antes = std::clock();
      if (pasandoFallos(abrir)) ++abiertos[nombre];
      EXPECT_LT(static_cast<double>(std::clock() - antes) / CLOCKS_PER_SEC, limite) << nombre << " of record " << i;
    }
    if (HasFailure()) break;
  }
  EXPECT_EQ(abiertos["Form13"], cuantos()) << "it opens whatever its data";
  for (const auto& [nombre, abrir] : todos)
    EXPECT_GT(abiertos[nombre], cuantos() / 20) << nombre << " hardly ever opened: the records say nothing of it";
}

INSTANTIATE_TEST_SUITE_P(, Reportes, testing::Values(razonable, raro),
                         [](const auto& caso) { return caso.index == 0 ? "razonables" : "raros"; });

}  // namespace
}  // namespace calvento
