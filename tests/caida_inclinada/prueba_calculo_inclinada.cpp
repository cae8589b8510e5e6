#include <algorithm>
#include <cmath>

#include "apoyo/disenos_al_azar.h"
#include "apoyo/mesas.h"
#include "apoyo/seccion_desnuda.h"

namespace calvento {
namespace {

using D = DesignState;
using desnuda::energia;
using desnuda::impulso;
using MesaLibre = MesaInclinadaDe<DialogosLibres>;

/// The record of a finished drop against relations in bare doubles.
void comprobar(MesaLibre& m, bool super) {
  const auto v = [&](Single D::*c) { return m.valor(c); };
  const double Q = v(&D::Q), b = v(&D::bPozaCaida), z = v(&D::zPozaCaida), y1 = v(&D::y1), y2 = v(&D::y2);
  const bool control = v(&D::frArriba) <= 1;
  const double bFin = control ? b : v(&D::bArriba), zFin = control ? z : v(&D::zArriba);

  // the rise of the crest closes the energies of canal and control section, and stands in the crest once
  const double escrita = std::stod(m.f.Text2.Text);
  EXPECT_NEAR(v(&D::cotaFin), escrita + v(&D::sobreelevacion), 1e-6 * escrita);
  if (control) {
    EXPECT_NEAR(impulso(Q, b, z, v(&D::yFin) * 0.999), impulso(Q, b, z, v(&D::yFin) * 1.001), 2e-3 * Q) << "critical";
    EXPECT_NEAR(v(&D::sobreelevacion),
                energia(Q, v(&D::bArriba), v(&D::zArriba), v(&D::ynArriba)) - energia(Q, b, z, v(&D::yFin)), 6e-4);
    EXPECT_NEAR(v(&D::longControl), 3.5 * v(&D::yFin), 0.0251);
    EXPECT_EQ(v(&D::radioCurva), v(&D::longControl));
  } else {
    EXPECT_EQ(v(&D::yFin), v(&D::ynArriba));
    EXPECT_FLOAT_EQ(m.estado.longControl.valor(), 0.15F);
    const double R = v(&D::yFin) / std::expm1(1.5 / std::pow(v(&D::frArriba), 2));
    EXPECT_NEAR(v(&D::radioCurva), std::max(R, 0.15), 0.0251);
    EXPECT_FLOAT_EQ(m.estado.zCaida.valor(), 1 / m.estado.sArriba.valor());
  }

  // both jump equations; the crest carries its rise a second time
  const double E1 = y1 + 1.1 * desnuda::alturaVelocidad(Q, b, z, y1);
  const double E2 = energia(Q, b, z, y2) * (1 + v(&D::ahogamiento));
  const double fin = v(&D::cotaFin) + v(&D::sobreelevacion) + energia(Q, bFin, zFin, v(&D::yFin));
  const double abajo = v(&D::cotaAbajo) + energia(Q, v(&D::bAbajo), v(&D::zAbajo), v(&D::ynAbajo));
  EXPECT_LT(y1, y2);
  // the search of the outlet watches its level alone: the submergence may still move a little with the last pass
  EXPECT_NEAR(E2 - E1, abajo - fin, super ? 0.01 : 5e-4 * E1);
  EXPECT_NEAR(impulso(Q, b, z, y1), impulso(Q, b, z, y2), 5e-4 * impulso(Q, b, z, y2));
  if (v(&D::cotaPoza) < v(&D::cotaAbajo)) {
    EXPECT_NEAR(v(&D::cotaPoza) + E1, fin, 5e-4 * E1 + 1e-6 * fin);
  }
  EXPECT_NEAR(v(&D::profPoza), v(&D::cotaAbajo) - v(&D::cotaPoza), super ? 0.0252 : 0.0251);

  // the crest curve touches the canal's grade at the crest and the ramp at its tangent point
  const double a = std::atan(v(&D::sArriba)), R = v(&D::radioCurva), zr = v(&D::zRampaEntrada);
  const double dx = v(&D::xTrayectoria) + R * std::sin(a);
  const double dy = v(&D::cotaTrayectoria) - (v(&D::cotaFin) - R * std::cos(a));
  const double grano = 2e-7 * v(&D::cotaFin);
  EXPECT_NEAR(std::hypot(dx, dy), R, 1e-5 + grano);
  EXPECT_NEAR(dx * zr, dy, 1e-5 + grano);
  EXPECT_NEAR(
      std::hypot(v(&D::xTrayectoriaInt) - v(&D::xTrayectoria), zr * (v(&D::xTrayectoriaInt) - v(&D::xTrayectoria))),
      0.15 * std::fabs(1 - std::sin(a) * std::hypot(zr, 1)), 1e-5);

  // walls hold water and freeboard; the basin's reaches the canal's
  EXPECT_NEAR(v(&D::hArriba), v(&D::ynArriba) + 0.2, 0.0251);
  EXPECT_NEAR(v(&D::hRapida), (v(&D::yFin) + y1) / 2 + 0.3, 0.0251);
  EXPECT_GE(v(&D::cotaPoza) + v(&D::hPoza), v(&D::cotaAbajo) + v(&D::hAbajo) - 1e-4 - grano);
  const double muro = std::max(v(&D::y2) + 0.3, v(&D::cotaAbajo) + v(&D::hAbajo) - v(&D::cotaPoza));
  EXPECT_NEAR(v(&D::hPoza), muro, 0.0251 + grano);
  // top widths at the walls, and the transitions between them at 12.5 degrees
  const auto espejo = [&](Single D::*base, Single D::*talud, Single D::*alto) {
    return v(base) + 2 * v(talud) * v(alto);
  };
  EXPECT_NEAR(v(&D::espejoArriba), espejo(&D::bArriba, &D::zArriba, &D::hArriba), 1e-5);
  EXPECT_NEAR(v(&D::espejoRapida), espejo(&D::bEntradaCaida, &D::zPozaCaida, &D::hArriba), 1e-5);
  EXPECT_NEAR(v(&D::espejoPoza), espejo(&D::bPozaCaida, &D::zPozaCaida, &D::hPoza), 1e-5);
  EXPECT_NEAR(v(&D::espejoAbajo), espejo(&D::bAbajo, &D::zAbajo, &D::hAbajo), 1e-5);
  const auto transicion = [](double T1, double T2) { return std::fabs(T1 - T2) / 2 / std::tan(12.5 * 3.1415 / 180); };
  EXPECT_NEAR(v(&D::longTransEntrada), transicion(v(&D::espejoArriba), v(&D::espejoRapida)), 0.0251);
  const double salida = transicion(v(&D::espejoPoza), v(&D::espejoAbajo));
  EXPECT_NEAR(v(&D::longTransSalida), salida < 0.15 ? 0.5 : salida, 0.0251);
  const double Aa = desnuda::area(v(&D::bAbajo), v(&D::zAbajo), v(&D::ynAbajo));
  EXPECT_NEAR(v(&D::frAbajo), Q / Aa / std::sqrt(9.81 * Aa / (v(&D::bAbajo) + 2 * v(&D::zAbajo) * v(&D::ynAbajo))),
              1e-4);
  for (Single D::*medida :
       {&D::profPoza, &D::hArriba, &D::hAbajo, &D::hRapida, &D::longTransEntrada, &D::longTransSalida})
    EXPECT_NEAR(v(medida) / 0.05, std::round(v(medida) / 0.05), 1e-3);
  if (!super) return;

  // the outlet lies on the canal's grade line over the whole length of the structure
  const double largo = (v(&D::cotaTrayectoria) - v(&D::cotaPoza)) * zr + v(&D::xTrayectoria) + v(&D::longPoza) +
                       (v(&D::cotaAbajo) - v(&D::cotaPoza)) * v(&D::zRampaSalida);
  EXPECT_NEAR(v(&D::cotaAbajo), v(&D::cotaFin) - largo * v(&D::sArriba), 1.5e-4 + grano);
  EXPECT_EQ(v(&D::sAbajo), v(&D::sArriba));
  EXPECT_EQ(m.f.Text4.Text.valor(), texto(Round(m.estado.cotaAbajo, 3)));
  // with the submergence found the water leaves the basin at the canal's level
  EXPECT_NEAR(v(&D::cotaPoza) + y2, v(&D::cotaAbajo) + v(&D::ynAbajo), 0.01);
}

TEST(InclinedDrop, RelationsHoldOverRandomDrops) {
  Azar azar(20240917);
  int calculadas[2] = {0, 0};
  for (int i = 0; i < 600 && !HasFailure(); ++i) {
    const bool super = i % 3 == 0;
    MesaLibre m;
    const Datos d = disenoAlAzar(azar, formatoCaidaInclinada,
                                 super        ? "13"
                                 : i % 5 == 0 ? "14"
                                 : i % 2 == 0 ? "11"
                                              : "12");
    m.poner(camposDe(d));
    if (super) m.f.mnsuper.Click();
    m.estado.tipoTanque = static_cast<int>(1 + azar() % 6);
    m.f.Command3.Click();
    if (!m.f.calculado()) continue;
    ++calculadas[super];
    SCOPED_TRACE(comoTexto(d));
    comprobar(m, super);
  }
  EXPECT_GT(calculadas[0], 300);
  EXPECT_GT(calculadas[1], 150);
}

}  // namespace
}  // namespace calvento
