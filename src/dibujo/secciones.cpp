#include "dibujo/secciones.h"

#include "hidraulica/solvers.h"

namespace calvento {

namespace {

using Datos = std::function<DatosSeccion()>;

SeccionNombrada canalArriba(const DesignState& e, Single DesignState::*cota) {
  return {"Canal aguas arriba", [&e, cota] {
            return DatosSeccion{e.*cota, e.hArriba, e.ynArriba, e.bArriba, e.zArriba};
          }};
}

SeccionNombrada canalAbajo(const DesignState& e) {
  return {"Canal aguas abajo", [&e] { return DatosSeccion{e.cotaAbajo, e.hAbajo, e.ynAbajo, e.bAbajo, e.zAbajo}; }};
}

/// The control section stands in critical flow.
SeccionNombrada control(const DesignState& e, Single DesignState::*cota, Real b, Real z) {
  return {"Sección de control", [&e, cota, b, z] {
            return DatosSeccion{e.*cota, e.hArriba, YCRITICO(e.Q, b, z), b, z};
          }};
}

Datos tramo(const DesignState& e, Single DesignState::*cota, Single DesignState::*pendiente) {
  return [&e, cota, pendiente] {
    const Real y = YNORMAL(e.Q, e.bRapida, e.zRapida, e.nRapida, e.*pendiente);
    return DatosSeccion{e.*cota, e.hRapida, y, e.bRapida, e.zRapida};
  };
}

std::vector<SeccionNombrada> tramos(const DesignState& e) {
  using D = DesignState;
  // of three reaches each is shown at the elevation of its end; with two, the second one too at that of a third
  const SeccionNombrada primero{"Canal rápida tramo 1", tramo(e, &D::cotaTramo2, &D::sTramo1)};
  const SeccionNombrada segundo{"Canal rápida tramo 2", tramo(e, &D::cotaTramo3, &D::sTramo2)};
  switch (e.numTramos) {
    case 1:
      return {{"Canal rápida", tramo(e, &D::cotaFin, &D::sTramo1)}};
    case 2:
      return {primero, segundo};
    case 3:
      return {primero, segundo, {"Canal rápida tramo 3", tramo(e, &D::cotaFin, &D::sTramo3)}};
    default:
      return {};
  }
}

}  // namespace

std::vector<SeccionNombrada> seccionesRapida(const DesignState& e) {
  std::vector<SeccionNombrada> todas = tramos(e);
  if (todas.empty()) return todas;
  using D = DesignState;
  todas.insert(todas.begin(), {canalArriba(e, &D::cotaInicio), control(e, &D::cotaInicio, e.bRapida, e.zRapida)});
  todas.push_back({"Poza", [&e] { return DatosSeccion{e.cotaPoza, e.hPoza, e.y2, e.bPoza, e.zPoza}; }});
  todas.push_back(canalAbajo(e));
  return todas;
}

std::vector<SeccionNombrada> seccionesInclinada(const DesignState& e) {
  using D = DesignState;
  if (!(e.frArriba < 1 || e.frArriba > 1)) return {};
  std::vector<SeccionNombrada> todas = {canalArriba(e, &D::cotaFin)};
  if (e.frArriba < 1) todas.push_back(control(e, &D::cotaFin, e.bEntradaCaida, e.zPozaCaida));
  todas.push_back({"Canal tramo inclinado", [&e] {
                     return DatosSeccion{(e.cotaPoza + e.cotaFin) / 2, e.hRapida, (e.yFin + e.y1) / 2,
                                         (e.bEntradaCaida + e.bPozaCaida) / 2, e.zPozaCaida};
                   }});
  todas.push_back({"Poza", [&e] { return DatosSeccion{e.cotaPoza, e.hPoza, e.y2, e.bPozaCaida, e.zPozaCaida}; }});
  todas.push_back(canalAbajo(e));
  return todas;
}

std::vector<SeccionNombrada> seccionesVertical(const DesignState& e) {
  using D = DesignState;
  return {canalArriba(e, &D::cotaFin),
          control(e, &D::cotaFin, e.bEntradaCaida, 0),
          {"Poza",
           [&e] {
             return DatosSeccion{e.cotaPoza, (e.cotaFin - e.cotaPoza) + e.hArriba, e.y2,
                                 2 * e.longTransVert + e.bPozaCaida, 0};
           }},
          canalAbajo(e)};
}

}  // namespace calvento
