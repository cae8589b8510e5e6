#include "caida_vertical/calculo_vertical.h"
#include "hidraulica/solvers.h"

namespace calvento {

namespace {

/// Reach above the crest: its section goes from (b0, z0) at the downstream end to (b1, z1).
struct TramoCresta {
  Real b0, b1, z0, z1;
  Real L;  ///< negative: the march goes upstream
};

constexpr int pasosPorTramoCresta = 5;
constexpr double longitudCanal = 5;

/// Fills one reach of the table by standard steps from the depth y at its downstream end; returns the depth at its
/// upstream end.
class MarchaCresta {
 public:
  explicit MarchaCresta(DesignState& e) : e_(e) {}

  Real Yrm(Real y, const TramoCresta& t) {
    const Real n = e_.nArriba;
    const Real S = e_.sArriba;
    const Real dx = t.L / pasosPorTramoCresta;
    const Seccion inicio{t.b0, t.z0};
    const Real area = inicio.area(y);
    const Real R = area / inicio.perimetro(y);
    e_.v1 = e_.Q / area;
    Real H = energia(S * dx, y, e_.v1, dx, n, R);
    for (int i = 0; i < pasosPorTramoCresta; ++i) {
      // the widening counts from the crest over twice the reach's length: it is meant so
      const Real b = t.b0 + distancia_ * Abs(t.b1 - t.b0) / (2 * t.L);
      const Real z = t.z0 + distancia_ * Abs(t.z1 - t.z0) / (2 * t.L);
      const Ronda ultima = resolver(y, {b, z}, dx, n, H);
      y = ultima.y;
      distancia_ = distancia_ + dx;
      e_.perfilCaida[fila_++] = {Real(distancia_).valor(), y.valor()};
      H = energia(S * dx, y, e_.Q / ultima.A, dx, n, ultima.R);
    }
    return y;
  }

 private:
  /// The new depth with area and radius of the last round, whose depth is one correction older.
  struct Ronda {
    Real y, A, R;
  };

  static Real energia(Real caida, Real y, Real v, Real dx, Real n, Real R) {
    return caida + y + v * v / dosG - dx * cuadrado(v * n) / (2 * potencia(R, 4.0 / 3.0));
  }

  Ronda resolver(Real y, const Seccion& s, Real dx, Real n, Real H) const {
    const Real lado = Sqr(1 + s.z * s.z);
    Real A, R, anterior;
    Vueltas vueltas;
    do {
      vueltas.una();
      A = s.area(y);
      const Real P = s.b + 2 * y * lado;
      R = A / P;
      const Real T = s.espejo(y);
      const Real E = e_.Q * e_.Q / (A * A * A);
      const Real R13 = potencia(R, 1.0 / 3.0);
      const Real F = y + E * A / dosG + dx * E * P * n * n / (2 * R13) - H;
      const Real dF = 1 - E * T / gravedad + dx * E * n * n * (4 * lado - 5 * T / R) / (3 * R13);
      anterior = y;
      y = y - F / dF;
    } while (!(Abs(y - anterior) < 0.0001));
    return {y, A, R};
  }

  DesignState& e_;
  Single distancia_;
  std::size_t fila_ = 0;
};

}  // namespace

void perfilSobreCresta(DesignState& e) {
  const bool conTransicion = !(e.longTransEntrada == 0);
  e.perfilCaida.assign(conTransicion ? 15 : 10, FilaPerfilCaida{});
  MarchaCresta marcha(e);
  Real y = marcha.Yrm(e.ycControl, {e.bPozaCaida, e.bPozaCaida, 0, 0, -e.longControl});
  if (conTransicion) y = marcha.Yrm(y, {e.bPozaCaida, e.bArriba, 0, e.zArriba, -e.longTransEntrada});
  marcha.Yrm(y, {e.bArriba, e.bArriba, e.zArriba, e.zArriba, -longitudCanal});
}

}  // namespace calvento
