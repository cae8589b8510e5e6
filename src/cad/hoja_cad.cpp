#include "cad/hoja_cad.h"

namespace calvento {

void ponerPlanta(HojaCad& hoja, const PlantaPoza& planta, double eje) {
  const auto anchos = planta.anchos();
  const auto fuera = caraExterior(anchos);
  hoja.eje = eje;
  hoja.bordesFondo = planta.bordesFondo(eje);
  hoja.lineasPlanta = lineasTransversales(planta.transversales(), eje);
  const auto rayado = planta.rayado(eje);
  hoja.lineasPlanta.insert(hoja.lineasPlanta.end(), rayado.begin(), rayado.end());
  hoja.muroBajo = muroPlanta(anchos, fuera, eje, -1);
  hoja.muroAlto = muroPlanta(anchos, fuera, eje, 1);
}

}  // namespace calvento
