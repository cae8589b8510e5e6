#include "dibujo/marco_caida.h"

namespace calvento {

MarcoCaida::MarcoCaida(std::string_view nombre, DesignState& estado, Navegador& navegador)
    : MarcoDibujo(nombre, {"todo", "max", "min", "tanque", "seccion", "Imprimir", "Copiar", "Exportar"}, estado,
                  navegador) {}

std::vector<MarcoDibujo::VistaFija> MarcoCaida::vistasFijas(Real bajoPoza, std::function<Real()> finTodo,
                                                            std::function<Real()> finTanque) const {
  const auto vista = [this, bajoPoza](Real margen, const std::function<Real()>& fin, Real margenFin, Real sobrePlanta) {
    const DesignState& e = estado_;
    return Vista{-margen - e.longTransEntrada - e.longControl, fin() + margenFin, e.cotaPoza - bajoPoza,
                 planta_.anchoMaximo / 2 + planta_.eje + sobrePlanta};
  };
  return {{"vistaTodo", [vista, fin = std::move(finTodo)] { return vista(5, fin, 5, 0.15); }},
          {"vistaTanque", [vista, fin = std::move(finTanque)] { return vista(2, fin, 1.5, 0.2); }}};
}

}  // namespace calvento
