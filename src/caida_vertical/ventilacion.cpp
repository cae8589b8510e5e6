#include "caida_vertical/calculo_vertical.h"
#include "comun/numeros.h"
#include "estructura/pasos.h"
#include "hidraulica/solvers.h"

namespace calvento {

namespace {

constexpr double subpresion = 0.04;     ///< pressure head allowed under the nappe, m of water
constexpr double perdidaEntrada = 0.5;  ///< loss coefficients of the pipe: entrance, bend, exit
constexpr double perdidaCodo = 1.1;
constexpr double perdidaSalida = 1;
constexpr double densidadAireAgua = 830;  ///< water to air

Real factorFriccion(const std::string& material) {
  return material == "Tubería de PVC" || material == "Tubería de Fierro" ? 0.02 : 0.0;
}

/// Diameter of the one pipe that would carry the air qa, from losses and friction at the allowed pressure.
Real diametroNecesario(Real qa, Real friccion, Real longitud) {
  const Real a = subpresion * gravedad * piCorto * piCorto / (8 * qa * qa);
  const Real c1 = (perdidaEntrada + perdidaCodo + perdidaSalida) / densidadAireAgua;
  const Real c0 = friccion * longitud / densidadAireAgua;
  Real D = 0.5;
  Real anterior;
  Vueltas vueltas;
  do {
    vueltas.una();
    const Real D4 = D * D * D * D;
    const Real G = a * D4 * D - c1 * D - c0;
    const Real dG = 5 * a * D4 - c1;
    anterior = D;
    D = D - G / dG;
  } while (!(Abs(D - anterior) < 0.0001));
  return D;
}

Real areaTubo(Real diametro) { return piCorto * diametro * diametro / 4; }

}  // namespace

void AGUJEROS(DesignState& e, const Form25& p) {
  e.vArriba = e.Q / Seccion{e.bArriba, e.zArriba}.area(e.ynArriba);
  const Real qH = caudalUnitario(energiaEspecifica(e.vArriba, e.ynArriba));
  const Real qa = 0.1 * e.bPozaCaida * qH / potencia(e.yVert94 / e.ynArriba, 1.5);
  e.longTubo = Val(p.Text10.Text);
  e.diamTubo = Val(p.Combo2.Text()) * 2.54 / 100;
  e.tipoTubo = p.Combo1.Text();
  const Real D = diametroNecesario(qa, factorFriccion(e.tipoTubo), e.longTubo);
  e.numTubos = areaTubo(D) / areaTubo(e.diamTubo);
  e.numTubos = Round(e.numTubos, 0) + 1;  // one more than the rounded ratio
}

}  // namespace calvento
