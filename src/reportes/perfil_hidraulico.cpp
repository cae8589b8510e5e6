#include "reportes/perfil_hidraulico.h"

#include <array>

#include "comun/numeros.h"
#include "hidraulica/solvers.h"
#include "reportes/estaciones.h"

namespace calvento {

namespace {

constexpr const char* columnas =
    "^  ESTACION  |^ELEVACION|^VELOCIDAD|^ELEVACION ENERGIA|^  TIRANTE  |^  TIRANTE* |^DESCRIPCION           ";

/// A numeric cell; a value of the record keeps the digits of its 4 bytes.
template <class Numero>
std::string celda(Numero x) {
  return texto(Round(x, 4));
}

/// Appends rows to the table.
class Filas {
 public:
  explicit Filas(Rejilla& tabla) : tabla_(tabla) {}
  void anadir(const std::array<std::string, 7>& celdas) {
    const int fila = tabla_.filas();
    tabla_.dimensionar(fila + 1, tabla_.columnas());
    for (int c = 0; c < tabla_.columnas(); ++c) tabla_.poner(fila, c, celdas[static_cast<std::size_t>(c)]);
  }
  template <class Velocidad, class Aire>
  void seccion(Real estacion, Single cota, Velocidad v, Single tirante, Aire conAire, const char* lugar) {
    const Real energia = v * v / dosG + tirante + cota;
    anadir({textoEstacion(estacion), celda(cota), celda(v), celda(energia), celda(tirante), celda(conAire), lugar});
  }

 private:
  Rejilla& tabla_;
};

void filasDelPerfil(Filas& filas, const DesignState& e) {
  for (const std::size_t i : estacionesDeTabla(e.perfil.size())) {
    const FilaPerfil& p = e.perfil[i];
    const Real conAire = YA(p.tirante, p.velocidad, e.bRapida, e.zRapida);
    filas.anadir({textoEstacion(Round(e.progresivaInicio + p.x, 2)), celda(p.cota), celda(p.velocidad),
                  celda(p.energia), celda(p.tirante), celda(conAire), ""});
  }
}

}  // namespace

Real YA(Real y, Real V, Real b, Real z) {
  constexpr double e = 2.718282;
  const Seccion seccion{b, z};
  const Real F = V / Sqr(gravedad * seccion.area(y) / seccion.espejo(y));
  if (F < 1.6) return y;
  if (F > 1.6 && F < 8.2) return y * 0.906 * potencia(e, 0.061 * F);
  if (F > 8.2) return y * 0.62 * potencia(e, 0.1051 * F);
  return 0;
}

void tablaPerfil(Rejilla& tabla, const DesignState& e) {
  tabla = Rejilla();
  tabla.formatoColumnas(columnas);
  tabla.ponerTitulos(2);
  Filas filas(tabla);
  filas.anadir({"( Km+m )", "( msnm )", "( m/seg )", "( msnm )", "( m )", "( m )", ""});
  filas.anadir({"", "", celda(e.vArriba), "", celda(e.ynArriba), celda(YA(e.ynArriba, e.vArriba, e.bArriba, e.zArriba)),
                "Canal Aguas Arriba"});
  const Real Vc = e.Q / Seccion{e.bRapida, e.zRapida}.area(e.ycControl);
  filas.seccion(Round(e.progresivaInicio, 2), e.cotaInicio, Vc, e.ycControl, YA(e.ycControl, Vc, e.bRapida, e.zRapida),
                "Inicio de la Rápida");
  filasDelPerfil(filas, e);
  filas.seccion(Round(e.longRapida, 2) + e.progresivaInicio, e.cotaFin, e.vFin, e.yFin,
                YA(e.yFin, e.vFin, e.bRapida, e.zRapida), "Inicio de la Trayectoria");
  const Real X1 = (e.cotaTrayectoria - e.cotaPoza) * e.zRampaEntrada + (e.xTrayectoria + e.longRapida);
  const Real X2 = X1 + e.longPoza;
  // the jump brings its own air: its depths stand as they are
  filas.seccion(Round(X1, 2) + e.progresivaInicio, e.cotaPoza, e.v1, e.y1, e.y1, "Inicio del Resalto");
  filas.seccion(Round(X2, 2) + e.progresivaInicio, e.cotaPoza, e.v2, e.y2, e.y2, "Final del Resalto");
  filas.seccion(Round(X2, 2) + (e.cotaAbajo - e.cotaPoza) * e.zRampaSalida + e.progresivaInicio, e.cotaAbajo, e.vAbajo,
                e.ynAbajo, YA(e.ynAbajo, e.vAbajo, e.bAbajo, e.zAbajo), "Canal Aguas Abajo");
}

}  // namespace calvento
