#include "reportes/estabilidad.h"

#include <array>
#include <span>

#include "comun/numeros.h"
#include "hidraulica/marchas_a_la_vez.h"
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

/// The flow of one discharge down the chute, or what stopped it.
class Ondas {
 public:
  Ondas(const DesignState& estado, Real Q) : e_(&estado), canal_{estado.bRapida, estado.zRapida}, camino_{Q, 0, {}} {
    try {
      camino_.y = YCRITICO(Q, canal_.b, canal_.z);
      const Real v = Q / canal_.area(camino_.y);
      H0_ = estado.sobreelevacion + estado.cotaInicio + camino_.y + v * v / dosG;
    } catch (const FalloAritmetico& fallo) {
      camino_.fallo = fallo;
    }
  }

  Descenso& camino() { return camino_; }
  void empezarTramo(const TramoRapida& t) { cota_ = t.cotaA; }
  void anotar(const EstacionMarcha& s) {
    X_ = X_ + s.dx;
    cota_ = cota_ - s.dz;
    const Real E = cota_ + s.y + s.v * s.v / dosG;
    const NumerosOndas n = numerosOndas(canal_, {s.y, s.v, s.A, s.T, X_, H0_ - E});
    estaciones_.push_back({X_, n.Nv, n.M});
  }

  /// Throws what stopped the flow.
  const std::vector<EstacionOndas>& estaciones() const {
    if (camino_.fallo) throw FalloAritmetico(*camino_.fallo);
    return estaciones_;
  }
  NumerosOndas alFinal() const {
    const Real y = camino_.y;
    const Real A = canal_.area(y);
    const Real v = camino_.Q / A;
    const Real E = e_->cotaFin + y + v * v / dosG;
    return numerosOndas(canal_, {y, v, A, canal_.espejo(y), e_->longRapida, H0_ - E});
  }

 private:
  const DesignState* e_;
  Seccion canal_;
  Descenso camino_;
  Real H0_, X_ = 0, cota_ = 0;
  std::vector<EstacionOndas> estaciones_;
};

std::vector<Ondas> ondasDe(const DesignState& e, std::span<const Real> caudales) {
  std::vector<Ondas> todas;
  for (const Real Q : caudales) todas.emplace_back(e, Q);
  for (const TramoRapida& t : tramosRapida(e)) {
    std::vector<Descenso> caminos;
    for (Ondas& o : todas) {
      o.empezarTramo(t);
      caminos.push_back(o.camino());
    }
    const TramoMarcha tramo{0, e.bRapida, e.zRapida, e.nRapida, t.S, t.cotaA, t.cotaB, 0.9};
    marcharALaVez(tramo, caminos, [&](std::size_t i, const EstacionMarcha& s) { todas[i].anotar(s); });
    for (std::size_t i = 0; i < todas.size(); ++i) todas[i].camino() = caminos[i];
  }
  return todas;
}

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
  for (const Ondas& ondas : ondasDe(e, caudales)) {
    int fila = filaInicio;
    const auto anadir = [&](Real estacion, auto Nv, auto M) {
      if (++fila >= t.filas()) t.dimensionar(fila + 1, t.columnas());
      // the station column is written by each discharge and keeps the last one's
      t.poner(fila, 0, textoEstacion(estacion));
      t.poner(fila, c, texto(Round(Nv, 4)));
      t.poner(fila, c + 1, texto(Round(M, 4)));
      t.poner(fila, c + 2, claseFlujo({Nv, M}));
    };
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
