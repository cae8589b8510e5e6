#pragma once

#include "apoyo/mesa.h"
#include "apoyo/tablas.h"
#include "caida_inclinada/form1.h"
#include "caida_vertical/form16.h"
#include "rapida/form10.h"

namespace calvento {

/// What is typed for a design of tests/tablas/datos.txt.
inline Datos datosDe(const std::string& diseno) {
  Datos datos;
  for (const FilaTabla& f : tabla("datos.txt", diseno))
    for (const std::string& par : partido(f.escrita, ' '))
      datos.emplace_back(par.substr(0, par.find('=')), par.substr(par.find('=') + 1));
  return datos;
}

/// The data windows, each on its table.
template <class Cajas = DialogosGuion>
using MesaRapidaDe = MesaDe<Form10, Form2, Cajas>;
template <class Cajas = DialogosGuion>
using MesaInclinadaDe = MesaDe<Form1, Form2, Cajas>;
template <class Cajas = DialogosGuion>
using MesaVerticalDe = MesaDe<Form16, Form25, Cajas>;
using MesaRapida = MesaRapidaDe<>;
using MesaInclinada = MesaInclinadaDe<>;

}  // namespace calvento
