#include "reportes/estabilidad.h"

#include <array>

#include "comun/numeros.h"
#include "hidraulica/marcha.h"
#include "reportes/estaciones.h"
#include "reportes/tramos_rapida.h"

namespace calvento {

namespace {

constexpr int filaInicio = 2;
constexpr int columnasPorCaudal = 3;

struct EstacionOndas {
  Single X, Nv, M;
};

void prepararTabla(Rejilla& t, const DesignState& e, const std::array<Real, 3>& caudales) {
  t = Rejilla(filaInicio + 1, 1 + columnasPorCaudal * static_cast<int>(caudales.size()));
  t.ponerTitulos(2, true);
  static constexpr std::array anchos = {1000, 700, 700, 1900};
  for (int c = 0; c < t.columnas(); ++c) {
    t.ponerAncho(c, anchos[static_cast<std::size_t>(c == 0 ? 0 : (c - 1) % columnasPorCaudal + 1)]);
    t.alinear(c, Alineacion::centro);
  }
  t.poner(0, 0, "ESTACION");
  t.poner(1, 0, "( Km+m )");
  int c = 1;
  for (const Real Q : caudales) {
    const std::string rotulo = "Q=" + texto(Round(Q, 3)) + "(M³/S)";
    t.poner(0, c, rotulo);
    t.poner(0, c + 1, rotulo);
    t.poner(0, c + 2, "TIPO DE");
    t.poner(1, c, "Nv");
    t.poner(1, c + 1, "M");
    t.poner(1, c + 2, "REGIMEN");
    c += columnasPorCaudal;
  }
  t.poner(filaInicio, 0, textoEstacion(Round(e.progresivaInicio, 2)));
}

/// The flow of one discharge down the chute.
class Ondas {
 public:
  Ondas(const DesignState& estado, Real Q) : e_(estado), canal_{estado.bRapida, estado.zRapida}, Q_(Q) {
    y_ = YCRITICO(Q, canal_.b, canal_.z);
    const Real v = Q / canal_.area(y_);
    H0_ = e_.sobreelevacion + e_.cotaInicio + y_ + v * v / dosG;
    for (const TramoRapida& t : tramosRapida(e_)) recorrer(t);
  }
  const std::vector<EstacionOndas>& estaciones() const { return estaciones_; }

  NumerosOndas alFinal() const {
    const Real A = canal_.area(y_);
    const Real v = Q_ / A;
    const Real E = e_.cotaFin + y_ + v * v / dosG;
    return numerosOndas(canal_, {y_, v, A, canal_.espejo(y_), e_.longRapida, H0_ - E});
  }

 private:
  void recorrer(const TramoRapida& t) {
    Real cota = t.cotaA;
    y_ = marchar({Q_, canal_.b, canal_.z, e_.nRapida, t.S, t.cotaA, t.cotaB, 0.9}, y_, [&](const EstacionMarcha& s) {
      X_ = X_ + s.dx;
      cota = cota - s.dz;
      const Real E = cota + s.y + s.v * s.v / dosG;
      const NumerosOndas n = numerosOndas(canal_, {s.y, s.v, s.A, s.T, X_, H0_ - E});
      estaciones_.push_back({X_, n.Nv, n.M});
    });
  }

  const DesignState& e_;
  Seccion canal_;
  Real Q_, H0_, X_ = 0;
  Single y_;
  std::vector<EstacionOndas> estaciones_;
};

}  // namespace

NumerosOndas numerosOndas(const Seccion& canal, const FlujoEstacion& f) {
  const Real angulo = Atn(f.perdida / f.X);
  const Real hf = f.X * Tan(angulo);
  const Real coseno = Cos(angulo);
  const Real z = canal.z;
  const Real r = f.y / canal.b;
  const Real S = Sqr(z * z + 1);
  const Real forma = (2.0 / 3) * ((1 + 2 * z * r + 2 * z * r * r * S) / (1 + 2 * r * S)) * (1 + 2 * z * r);
  const Real F = f.v / Sqr(gravedad * (f.A / f.T) * coseno);
  return {forma * F, f.v * f.v / (gravedad * hf * coseno)};
}

const char* claseFlujo(const NumerosOndas& n) {
  return n.Nv < 9.201 * n.M + 1.106 ? "Flujo Estable" : "Flujo Inestable y Pulsátil";
}

void tablaEstabilidad(Rejilla& t, const DesignState& e) {
  const std::array<Real, 3> caudales = {e.Q, e.Q * 0.5, e.Q * 0.2};
  prepararTabla(t, e, caudales);
  int c = 1;
  for (const Real Q : caudales) {
    int fila = filaInicio;
    const auto anadir = [&](Real estacion, auto Nv, auto M) {
      if (++fila >= t.filas()) t.dimensionar(fila + 1, t.columnas());
      // the station column is written by each discharge and keeps the last one's
      t.poner(fila, 0, textoEstacion(estacion));
      t.poner(fila, c, texto(Round(Nv, 4)));
      t.poner(fila, c + 1, texto(Round(M, 4)));
      t.poner(fila, c + 2, claseFlujo({Nv, M}));
    };
    const Ondas ondas(e, Q);
    for (const std::size_t i : estacionesDeTabla(ondas.estaciones().size())) {
      const EstacionOndas& s = ondas.estaciones()[i];
      anadir(Round(e.progresivaInicio + s.X, 2), s.Nv, s.M);
    }
    const NumerosOndas fin = ondas.alFinal();
    anadir(Round(e.longRapida + e.progresivaInicio, 2), fin.Nv, fin.M);
    c += columnasPorCaudal;
  }
}

}  // namespace calvento
