#pragma once

#include <string>
#include <variant>
#include <vector>

#include "apoyo/mesa.h"
#include "cad/cad_grabado.h"
#include "plataforma/lienzo.h"

namespace calvento {

/// An export window with a CAD application that writes everything down. `avances` are the values that its progress bar
/// has shown, one behind the other.
template <class Formulario, class Parametros>
struct MesaExportar {
  explicit MesaExportar(DesignState registro) : estado(std::move(registro)) {
    cad.avance = [this] { return f.osProgress1.Value.valor(); };
    f.osProgress1.alCambiar = [this] {
      if (f.osProgress1.Visible && (avances.empty() || avances.back() != f.osProgress1.Value.valor()))
        avances.push_back(f.osProgress1.Value);
    };
  }
  void exportar() { disparar(f.Command3.Click); }

  DialogosGuion dialogos;
  NavegadorMudo navegador;
  DesignState estado;
  Parametros parametros = nuevosParametros<Parametros>(estado, navegador);
  CadGrabado cad;
  Formulario f{estado, parametros, dialogos, navegador, cad};
  std::vector<double> avances;
};

}  // namespace calvento
