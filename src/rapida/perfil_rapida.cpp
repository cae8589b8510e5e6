#include <array>
#include <span>

#include "hidraulica/marcha.h"
#include "rapida/calculo_rapida.h"

namespace calvento {

namespace {

struct Tramo {
  Single DesignState::*longitud;
  Real cotaA, cotaB, S;
  Single DesignState::*yAlFinal;  ///< where the depth at its end is kept; none for the last reach
};

/// Depth at the end of the last reach; the rows of the table and the distance run on from reach to reach.
Single marcharTramos(DesignState& e, Single y0, std::span<const Tramo> tramos) {
  e.perfil.assign(tramos.size() * pasosPorTramo, FilaPerfil{});
  for (const Tramo& t : tramos) e.*t.longitud = (t.cotaA - t.cotaB) / t.S;
  Real suma = 0;
  for (const Tramo& t : tramos) suma += e.*t.longitud;
  e.longRapida = suma;
  e.sUltimoTramo = tramos.back().S;

  Single xPerfil = 0;
  auto fila = e.perfil.begin();
  for (const Tramo& t : tramos) {
    Real c = t.cotaA;
    // the start of each station at nine tenths of the last depth keeps Newton on the supercritical branch
    const TramoMarcha marcha{e.Q, e.bRapida, e.zRapida, e.nRapida, t.S, t.cotaA, t.cotaB, 0.9};
    y0 = marchar(marcha, y0, [&](const EstacionMarcha& s) {
      xPerfil = xPerfil + s.dx;
      c = c - s.dz;
      *fila++ = FilaPerfil{xPerfil, s.y, c, s.v, s.v * s.v / dosG + s.y + c};
    });
    if (t.yAlFinal != nullptr) e.*t.yAlFinal = y0;
  }
  return y0;
}

}  // namespace

Single perfilRapida(DesignState& e, Single y0, PantallaRapida& pantalla, bool& completo) {
  completo = true;
  using D = DesignState;
  const auto faltan = [&](const char* mensaje) {
    pantalla.dialogos().aviso(mensaje);
    completo = false;
    return y0;
  };
  switch (e.numTramos) {
    case 1:
      return marcharTramos(e, y0, std::array{Tramo{&D::longTramo1, e.cotaInicio, e.cotaFin, e.sTramo1, nullptr}});
    case 2:
      if (!pantalla.tieneDatosTramo2()) return faltan("Ingrese datos 2do tramo canal de la rápida");
      return marcharTramos(e, y0,
                           std::array{Tramo{&D::longTramo1, e.cotaInicio, e.cotaTramo2, e.sTramo1, &D::yTramo1},
                                      Tramo{&D::longTramo2, e.cotaTramo2, e.cotaFin, e.sTramo2, nullptr}});
    case 3:
      if (!pantalla.tieneDatosTramo3())
        return faltan("Ingrese cotas y pendientes de los tramos del canal de la rápida");
      return marcharTramos(e, y0,
                           std::array{Tramo{&D::longTramo1, e.cotaInicio, e.cotaTramo2, e.sTramo1, &D::yTramo1},
                                      Tramo{&D::longTramo2, e.cotaTramo2, e.cotaTramo3, e.sTramo2, &D::yTramo2},
                                      Tramo{&D::longTramo3, e.cotaTramo3, e.cotaFin, e.sTramo3, nullptr}});
    default:
      // no reach at all: the table stays, and the depth at the control section stands for the one at the end
      return y0;
  }
}

}  // namespace calvento
