#include <cmath>

#include "apoyo/disenos_al_azar.h"
#include "apoyo/mesas.h"
#include "apoyo/seccion_desnuda.h"
#include "estructura/pasos.h"

namespace calvento {
namespace {

using D = DesignState;

using MesaLibre = MesaRapidaDe<DialogosLibres>;

using desnuda::alturaVelocidad;
using desnuda::area;
using desnuda::friccion;
using desnuda::impulso;

void alAzar(MesaLibre& m, Azar& azar) {
  Datos d = disenoAlAzar(azar, formatoRapida);
  if (azar() % 2 == 0) linea(d, "Text11") = "0.5";
  if (azar() % 2 == 0) linea(d, "Text24") = "0.5";
  m.poner(camposDe(d));
  m.estado.tipoTanque = static_cast<int>(1 + azar() % 6);
}

/// The jump's two balances, the basin floor and the identities of the profile, on the finished record.
void comprobar(MesaLibre& m) {
  const auto v = [&](Single D::*c) { return m.valor(c); };
  const double Q = v(&D::Q), b = v(&D::bPoza), z = v(&D::zPoza), y1 = v(&D::y1), y2 = v(&D::y2);
  const double k = v(&D::ahogamiento);
  const double E1 = y1 + 1.1 * alturaVelocidad(Q, b, z, y1);
  const double E2 = (y2 + alturaVelocidad(Q, b, z, y2)) * (1 + k);
  const double abajo =
      v(&D::cotaAbajo) + v(&D::ynAbajo) + alturaVelocidad(Q, v(&D::bAbajo), v(&D::zAbajo), v(&D::ynAbajo));
  const double fin = v(&D::cotaFin) + v(&D::yFin) + alturaVelocidad(Q, v(&D::bRapida), v(&D::zRapida), v(&D::yFin));
  EXPECT_LT(y1, y2);
  EXPECT_NEAR(E2, E1 + abajo - fin, 0.002 * E1);
  EXPECT_NEAR(impulso(Q, b, z, y1), impulso(Q, b, z, y2), 0.002 * impulso(Q, b, z, y2));
  // on the floor the jet has the energy of the end of the chute, with a tenth more of velocity head
  if (v(&D::cotaPoza) < v(&D::cotaAbajo)) {
    EXPECT_NEAR(v(&D::cotaPoza) + E1, fin, 0.002 * E1 + 0.001);
  }
  EXPECT_NEAR(v(&D::profPoza), v(&D::cotaAbajo) - v(&D::cotaPoza), 1e-4);
  const double A1 = area(b, z, y1);
  // it belongs to the iterate before the last, whose depth may differ by the tolerance of a millimetre
  EXPECT_NEAR(v(&D::fr1), Q / A1 / std::sqrt(9.81 * A1 / (b + 2 * z * y1)), 1.7 * v(&D::fr1) * 0.001 / y1);

  // the tangent with the ramp lies above the floor, whatever the ramp was raised to
  EXPECT_GE(v(&D::cotaTrayectoria), v(&D::cotaPoza) - 1e-3);
  EXPECT_NEAR(v(&D::cotaFin) + v(&D::trayB) * v(&D::xTrayectoria) + v(&D::trayA) * std::pow(v(&D::xTrayectoria), 2),
              v(&D::cotaTrayectoria), 1e-3);
  EXPECT_NEAR(std::stod(m.f.Text21.Text), v(&D::zRampaEntrada), 1e-6);
  // the parabola leaves along the chute; with the ramp of 2 it arrives along the ramp
  EXPECT_EQ(v(&D::trayB), -v(&D::sUltimoTramo));
  if (v(&D::zRampaEntrada) == 2) {
    EXPECT_NEAR(2 * v(&D::trayA) * v(&D::xTrayectoria) + v(&D::trayB), -1.0 / 2, 1e-5);
  }

  // the wall of the basin is no lower than that of the canal behind it, and every wall holds water and freeboard
  EXPECT_GE(v(&D::cotaPoza) + v(&D::hPoza), v(&D::cotaAbajo) + v(&D::hAbajo) - 0.026);
  EXPECT_NEAR(v(&D::hArriba), v(&D::ynArriba) + 0.2, 0.0251);
  for (Single D::*alto : {&D::hArriba, &D::hAbajo, &D::hRapida, &D::hPoza, &D::longTransEntrada, &D::longTransSalida})
    EXPECT_NEAR(v(alto) / 0.05, std::round(v(alto) / 0.05), 1e-3);

  const auto& perfil = m.estado.perfil;
  ASSERT_EQ(perfil.size(), 100U * static_cast<unsigned>(m.estado.numTramos));
  EXPECT_NEAR(Real(perfil.back().x).valor(), v(&D::longRapida), 1e-5 * v(&D::longRapida));
  EXPECT_NEAR(Real(perfil.back().cota).valor(), v(&D::cotaFin), 1e-3);
  EXPECT_NEAR(Real(perfil.back().tirante).valor(), v(&D::yFin), 1.1e-5);
  double energia = 1e9;
  for (const FilaPerfil& f : perfil) {
    const double altura = std::pow(Real(f.velocidad).valor(), 2) / 19.62;
    EXPECT_NEAR(Real(f.energia).valor(), Real(f.cota).valor() + Real(f.tirante).valor() + altura, 2e-4);
    EXPECT_LT(Real(f.energia).valor(), energia + 1e-4) << "water does not gain energy";
    energia = Real(f.energia).valor();
  }
}

TEST(ChuteCalculation, BalancesHoldOverRandomChutes) {
  Azar azar(20240611);
  int calculadas = 0;
  for (int i = 0; i < 300 && !HasFailure(); ++i) {
    MesaLibre m;
    alAzar(m, azar);
    m.f.Command3.Click();
    if (!m.f.calculado()) continue;
    ++calculadas;
    SCOPED_TRACE(i);
    comprobar(m);
  }
  EXPECT_GT(calculadas, 250);
}

TEST(ChuteCalculation, ProfileAgreesWithAFineIntegration) {
  MesaLibre m;
  m.poner(datosDe("rapida de tres tramos"));
  m.f.Command3.Click();
  ASSERT_TRUE(m.f.calculado());
  const double S[] = {0.06, 0.15, 0.40};
  for (std::size_t tramo = 0; tramo < 3; ++tramo) {
    // from the tenth section of the reach on: next to the critical depth a step is coarse
    const auto& filas = m.estado.perfil;
    const std::size_t desde = tramo * 100 + 9, hasta = tramo * 100 + 99;
    const double L = Real(filas[hasta].x).valor() - Real(filas[desde].x).valor();
    const double y = desnuda::marchaFina(Real(filas[desde].tirante).valor(), L, 12, 2.1, 0.5, 0.015, S[tramo]).y;
    EXPECT_NEAR(Real(filas[hasta].tirante).valor(), y, 0.002 * y) << "reach " << tramo + 1;
  }
  // so long a chute that the flow is uniform at its end: there the energy line falls as the bed does
  m.poner({{"Text17", "1"}, {"Text1", "700"}, {"Text2", "388.75"}});
  m.f.Command3.Click();
  ASSERT_TRUE(m.f.calculado());
  EXPECT_NEAR(friccion(12, 2.1, 0.5, 0.015, m.valor(&D::yFin)) * std::sqrt(1 + 0.06 * 0.06), 0.06, 0.06 * 0.001);
}

TEST(ChuteCalculation, OutletTransitionsAreBuiltOnTheGridAndNoShorterThanHalfAMetre) {
  for (const auto& [calculada, construida] : {std::pair{0.0, 0.5F},
                                              {0.1, 0.5F},
                                              {0.1499, 0.5F},
                                              {0.1501, 0.15F},
                                              {0.172, 0.15F},
                                              {0.52, 0.5F},
                                              {0.53, 0.55F}}) {
    DesignState e;
    e.anguloTransicion = 45;  // half the difference of the widths, but for the short value of pi
    calcularTransicionSalida(e, 0, 2 * calculada, true);
    EXPECT_FLOAT_EQ(e.longTransSalida.valor(), construida) << calculada;
  }
}

}  // namespace
}  // namespace calvento
