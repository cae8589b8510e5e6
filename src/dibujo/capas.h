#pragma once

#include <functional>
#include <initializer_list>
#include <string_view>
#include <utility>
#include <vector>

#include "dibujo/marco_dibujo.h"

namespace calvento {

/// One layer of a figure: what paints it.
template <class Figura>
struct Capa {
  std::string_view nombre;
  std::function<void(const Figura&, Lienzo&)> pintar;
};

/// The layers as the frame wants them. `figura` makes the figure for each redrawing.
template <class Figura>
std::vector<MarcoDibujo::Rutina> rutinas(const std::function<Figura()>& figura,
                                         std::initializer_list<Capa<Figura>> capas) {
  std::vector<MarcoDibujo::Rutina> r;
  for (const Capa<Figura>& c : capas)
    r.push_back({c.nombre, [figura, pintar = c.pintar](Lienzo& lienzo) { pintar(figura(), lienzo); }});
  return r;
}

}  // namespace calvento
