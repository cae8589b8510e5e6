#include <algorithm>
#include <cmath>

#include "apoyo/disenos_al_azar.h"
#include "apoyo/mesas.h"
#include "apoyo/seccion_desnuda.h"

namespace calvento {
namespace {

using D = DesignState;
using desnuda::alturaVelocidad;
using desnuda::area;
using desnuda::energia;
using MesaLibre = MesaVerticalDe<DialogosLibres>;

/// Energy balance of every step of the drawdown, in bare doubles: water that flows from the upper section (the later
/// row) to the lower one loses the mean of both friction slopes over the step.
void comprobarRemanso(MesaLibre& m) {
  const auto v = [&](Single D::*c) { return m.valor(c); };
  const double Q = v(&D::Q), n = v(&D::nArriba), S = v(&D::sArriba), B = v(&D::bPozaCaida), b = v(&D::bArriba),
               z = v(&D::zArriba), control = v(&D::longControl), entrada = v(&D::longTransEntrada);
  const auto& tabla = m.estado.perfilCaida;
  const bool conTransicion = entrada != 0;
  ASSERT_EQ(tabla.size(), conTransicion ? 15U : 10U);
  double x = 0, y = v(&D::ycControl);
  for (std::size_t i = 0; i < tabla.size(); ++i) {
    const bool enControl = i < 5, enCanal = i >= tabla.size() - 5;
    const double dx = (enControl ? control : enCanal ? 5 : entrada) / 5;
    // the section of the lower end: of the reach itself at its start, else that of the row before
    const auto seccion = [&](double distancia) {
      if (enControl) return std::pair(B, 0.0);
      if (enCanal) return std::pair(b, z);
      // the widening counts from the crest over twice the length of the transition
      const double parte = distancia / (2 * entrada);
      return std::pair(B + std::fabs(b - B) * parte, z * parte);
    };
    const auto [bA, zA] = i % 5 == 0 ? (enCanal ? std::pair(b, z) : std::pair(B, 0.0)) : seccion(x - dx);
    const auto [bB, zB] = seccion(x);
    const double arriba = tabla[i].tirante;
    x += dx;
    EXPECT_NEAR(tabla[i].x, -x, 1e-5) << i;
    const double perdida = dx * (desnuda::friccion(Q, bA, zA, n, y) + desnuda::friccion(Q, bB, zB, n, arriba)) / 2;
    EXPECT_NEAR(S * dx + energia(Q, bB, zB, arriba), energia(Q, bA, zA, y) + perdida, 2e-4) << i;
    if (i == tabla.size() - 5) {
      EXPECT_NEAR(v(&D::v1), Q / area(b, z, y), 1e-5) << "the velocity at the start of the last reach";
    }
    y = arriba;
  }
}

TEST(VerticalDrop, RelationsHoldOverRandomDrops) {
  Azar azar(1955);
  int calculadas = 0;
  for (int i = 0; i < 400 && !HasFailure(); ++i) {
    MesaLibre m;
    Datos d = disenoAlAzar(azar, formatoCaidaVertical);
    if (azar() % 3 == 0) linea(d, "Text7") = "0";
    if (azar() % 5 == 0) linea(d, "Text23") = linea(d, "Text6");
    m.poner(camposDe(d));
    if (azar() % 3 == 0) m.f.Command6.Click();
    if (azar() % 2 == 0) m.parametros.Option4.Value = true;
    if (azar() % 2 == 0) m.f.Option2.Value = true;
    m.f.Command3.Click();
    if (!m.f.calculado()) continue;
    ++calculadas;
    SCOPED_TRACE(comoTexto(d));
    comprobarRemanso(m);

    const auto v = [&](Single D::*c) { return m.valor(c); };
    const double Q = v(&D::Q), B = v(&D::bPozaCaida), W = B + (m.parametros.Option3.Value ? 0.4 : 0),
                 yc = v(&D::ycControl);
    const double h = v(&D::cotaFin) - v(&D::cotaAbajo);
    const double arriba = area(v(&D::bArriba), v(&D::zArriba), v(&D::ynArriba));
    EXPECT_NEAR(yc, std::cbrt(Q * Q / 9.81 / B / B), 1e-4);
    EXPECT_NEAR(v(&D::vAbajo), Q / arriba, 1e-5) << "over the upstream area, meant so";
    EXPECT_NEAR(v(&D::v2) * W * v(&D::y2), Q, 1e-3 * Q);
    EXPECT_EQ(v(&D::vArriba), v(&D::vAbajo));
    const double falta = energia(Q, W, 0, v(&D::y2)) - energia(Q, v(&D::bAbajo), v(&D::zAbajo), v(&D::ynAbajo));
    EXPECT_NEAR(v(&D::profPoza), std::max(falta, 0.0), 0.0252);
    EXPECT_FLOAT_EQ(m.estado.cotaPoza.valor(), static_cast<float>(v(&D::cotaAbajo) - v(&D::profPoza)));
    EXPECT_NEAR(v(&D::hArriba) - v(&D::ynArriba) + v(&D::hAbajo) - v(&D::ynAbajo), 0.4, 1e-5) << "off the grid";
    const auto transicion = [](double ancho1, double ancho2) {
      return std::fabs(ancho1 - ancho2) / 2 / std::tan(12.5 * 3.1415 / 180);
    };
    const double canal = v(&D::bArriba) + 2 * v(&D::zArriba) * v(&D::ynArriba);
    EXPECT_NEAR(v(&D::longTransEntrada), transicion(B, canal), 0.0251) << "between the widths at the water";
    const double canalAbajo = v(&D::bAbajo) + 2 * v(&D::zAbajo) * v(&D::ynAbajo);
    EXPECT_NEAR(v(&D::longTransSalida), transicion(W, canalAbajo), 0.0251);
    EXPECT_NEAR(v(&D::espejoArriba), canal + 2 * v(&D::zArriba) * 0.2, 1e-4) << "now at the walls";
    EXPECT_NEAR(v(&D::espejoAbajo), canalAbajo + 2 * v(&D::zAbajo) * 0.2, 1e-4);
    EXPECT_NEAR(v(&D::espejoPoza) + v(&D::espejoRapida), W + B, 1e-5);
    // the free jet of the crest, on the canal's slope: half a second later it has fallen g/8 more
    const double x = v(&D::vFin) * std::cos(std::atan(v(&D::sArriba))) / 2;
    EXPECT_NEAR(v(&D::trayA) * x * x + v(&D::trayB) * x, -9.81 / 8 - v(&D::sArriba) * x, 1e-4);
    if (m.f.Option1.Value) {
      EXPECT_EQ(m.valor(&D::tipoTanque), 1);
      EXPECT_NEAR(v(&D::longPoza), 5 * (v(&D::y2) - v(&D::y1)), 1e-5);
      // the two depths of Rand are conjugate within the scatter of his measurements
      EXPECT_NEAR(desnuda::impulso(Q, B, 0, v(&D::y1)) / desnuda::impulso(Q, B, 0, v(&D::y2)), 1, 0.12);
      continue;
    }
    EXPECT_EQ(m.valor(&D::tipoTanque), 0);
    EXPECT_NEAR(v(&D::y2), 2.15 * yc, 1e-5);
    EXPECT_NEAR(desnuda::impulso(Q, W, 0, v(&D::y1)), desnuda::impulso(Q, W, 0, v(&D::y2)), 1e-3 * Q);
    EXPECT_NEAR(v(&D::longPoza), 2.55 * yc, 1e-5);
    // upper nappe in critical depths, w = 0.691 - 0.185 u - 0.228 u²: where it meets the basin's level, and where the
    // tangent at the level of the canal meets it
    const auto capa = [](double u) { return 0.691 - 0.185 * u - 0.228 * u * u; };
    const double a = (v(&D::ynArriba) - h) / yc, nivel = a - v(&D::y2) / yc;
    const double ue = desnuda::cero(0, 60, [&](double u) { return capa(u) - nivel; });
    const double ua = desnuda::cero(0, 60, [&](double u) { return capa(u) - a; });
    const double ut = ua + (nivel - capa(ua)) / (-0.185 - 0.456 * ua);
    if (ua > 0.5) {  // where the nappe is nearly level its tangent is not to be had from rounded coefficients
      EXPECT_NEAR(v(&D::longTramo1) / yc, (ue + ut) / 2, 0.015 * (ue + ut) / 2);
    }
    EXPECT_NEAR(v(&D::longRapida) - v(&D::longTramo1), 2.55 * yc, 1e-5);
  }
  EXPECT_GT(calculadas, 350);
}

/// Air that the nappe asks for, m³/s, and the diameter of one pipe that carries it with 4 cm of water between its ends:
/// losses of entrance, bend and exit and friction, of air 830 times lighter than water.
double diametro(const DesignState& e, double friccion, double longitud) {
  const auto v = [&](Single D::*c) { return static_cast<double>((e.*c).valor()); };
  const double H = energia(v(&D::Q), v(&D::bArriba), v(&D::zArriba), v(&D::ynArriba));
  const double aire =
      0.1 * v(&D::bPozaCaida) * 1.48 * std::pow(H, 1.5) / std::pow(v(&D::yVert94) / v(&D::ynArriba), 1.5);
  return desnuda::cero(1e-3, 5, [&](double d) {
    const double altura = std::pow(4 * aire / (3.1415 * d * d), 2) / (2 * 9.81);
    return 0.04 - (0.5 + 1.1 + 1 + friccion * longitud / d) * altura / 830;
  });
}

TEST(VerticalDrop, PipesCarryTheAirOfTheNappe) {
  const struct {
    const char* material;
    double friccion;
  } materiales[] = {{"Tubería de PVC", 0.02}, {"Tubería de Fierro", 0.02}, {"otra", 0}};
  for (const auto& mat : materiales) {
    for (const char* longitud : {"0.5", "2", "12"}) {
      for (const int pulgadas : {0, 2, 4}) {
        MesaLibre m;
        m.poner(datosDe("vertical"));
        m.parametros.Combo1.List = std::vector<std::string>{"Tubería de PVC", "Tubería de Fierro", "otra"};
        m.parametros.Combo1.ListIndex = static_cast<int>(&mat - materiales);
        m.parametros.Combo2.ListIndex = pulgadas;
        m.parametros.Text10.Text = longitud;
        m.f.Command3.Click();
        const double d = std::array{2, 0, 3, 0, 6}.at(static_cast<std::size_t>(pulgadas)) * 0.0254;
        EXPECT_NEAR(m.valor(&D::diamTubo), d, 1e-7);
        EXPECT_EQ(m.estado.tipoTubo, mat.material);
        const double razon = std::pow(diametro(m.estado, mat.friccion, std::stod(longitud)) / d, 2);
        EXPECT_EQ(m.valor(&D::numTubos), std::floor(razon + 0.5) + 1) << mat.material << ' ' << longitud << ' ' << d;
      }
    }
  }
}

TEST(VerticalDrop, TiesOfTheNumberOfPipesGoToTheEvenNumberAndOneMore) {
  MesaLibre m;
  m.poner(datosDe("vertical"));
  m.f.Command3.Click();
  DesignState e = m.estado;
  for (const auto& [razon, tubos] : {std::pair{1.5, 3}, {2.5, 3}, {2.5001, 4}, {3.4999, 4}, {3.5, 5}, {4.5, 5}}) {
    // a width of basin whose ratio lies on the tie, nearer than half a 4-byte step: a material of its own has no
    // friction, and then the ratio goes with the width
    m.parametros.Combo1.List = std::vector<std::string>{"otra"};
    const double meta = razon * std::pow(0.0508, 2);
    float ancho = 1;
    const auto error = [&] {
      e.bPozaCaida = Single::deFloat(ancho);
      return std::pow(diametro(e, 0, 2), 2) / meta - 1;
    };
    ancho = static_cast<float>(1 / (1 + error()));
    for (int i = 0; i < 4 && std::fabs(error()) > 4e-8; ++i) ancho = static_cast<float>(double{ancho} / (1 + error()));
    AGUJEROS(e, m.parametros);
    EXPECT_EQ(static_cast<double>(e.numTubos.valor()), tubos) << razon << ", off by " << error();
  }
}

}  // namespace
}  // namespace calvento
