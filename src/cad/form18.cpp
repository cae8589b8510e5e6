#include "cad/form18.h"

#include "dibujo/planta.h"
#include "dibujo/rotulos_poza.h"
#include "dibujo/rotulos_vertical.h"

namespace calvento {

HojaCad Form18::hoja() const {
  const GeometriaVertical g(estado());
  const double eje = Real(plantaVertical(estado()).eje).valor();
  const std::vector<ParEstacion> pares = paresEstacion(g);

  HojaCad h = hojaDe(g);
  // neither reaches nor a ramp into the basin
  h.textos = {
      {{{pares[0]}, {pendienteArriba(g)}}, {}, {}, {}, {{pares[1]}, {pendienteAbajo(g.valores(), g.estaciones())}}}};
  h.bordesFondo = g.bordesFondo(eje);
  h.lineasPlanta = lineasTransversales(g.anchosTransversales(), eje);
  const auto rayado = g.rayado(eje);
  h.lineasPlanta.insert(h.lineasPlanta.end(), rayado.begin(), rayado.end());
  h.superficie = g.superficie(estado());
  h.muroBajo = muroPlanta(g.anchosPlanta(), g.anchosMuro(), eje, -1);
  h.muroAlto = muroPlanta(g.anchosPlanta(), g.anchosMuro(), eje, 1);
  h.eje = eje;
  const MinimoBloques minimo = minimoBloques(parametros_.Check1, parametros_.Text11);
  h.bloques = bloquesDeCaida(g.valores(), eje, minimo);
  if (!h.bloques.empty()) h.distancias = {distanciaObstaculos(g, obstaculosCaida(estado(), minimo), eje)};
  return h;
}

}  // namespace calvento
