#include "cad/form12.h"

#include "comun/numeros.h"
#include "dibujo/planta.h"
#include "dibujo/rotulos_poza.h"
#include "dibujo/rotulos_rapida.h"

namespace calvento {

MarcoExportar::Cuadricula Form12::cuadricula() const {
  const DesignState& e = estado();
  return {metroEntero(e.progresivaInicio - e.longTransEntrada - 5),
          metroEntero(e.progresivaFinPoza + e.longTransSalida + 5), metroEntero(e.cotaPoza), metroEntero(e.cotaInicio)};
}

void Form12::enviarFigura(Envio& envio) {
  const GeometriaRapida g(estado());
  const double eje = Real(plantaRapida(estado()).eje).valor();
  const std::vector<ParEstacion> pares = paresEstacion(g);
  const std::size_t tramos = g.tramos().size();

  envio.parEstacion(pares[0]);
  envio.pendiente(pendienteArriba(g));
  avance(75);
  for (std::size_t i = 0; i < tramos; ++i) envio.parEstacion(pares[1 + i]);
  for (const RotuloPendiente& r : pendientesTramos(g)) envio.pendiente(r);
  avance(80);
  envio.parEstacion(pares[1 + tramos]);
  avance(85);
  envio.parEstacion(pares[2 + tramos]);
  avance(90);
  envio.parEstacion(pares[3 + tramos]);
  envio.pendiente(pendienteAbajo(g.valores(), g.estaciones()));
  avance(95);

  envio.polilinea(g.concreto(), capas::estructura);
  envio.polilinea(g.corona(), capas::canal);
  const PlantaPoza planta = g.planta();
  for (const auto& borde : planta.bordesFondo(eje)) envio.polilinea(borde, capas::canal);
  envio.lineas(lineasTransversales(planta.transversales(), eje), capas::canal);
  envio.lineas(planta.rayado(eje), capas::canal);
  envio.polilinea(g.superficie(), capas::agua);
  avance(97);
  envio.polilinea(g.canal(), capas::estructura);
  envio.polilinea(g.canalAbajo(), capas::estructura);
  const auto anchos = planta.anchos();
  for (const int lado : {-1, 1})
    envio.polilinea(muroPlanta(anchos, caraExterior(anchos), eje, lado), capas::estructura);
  avance(100);
}

void Form12::DIBUJAGRADIENTE(Envio& envio) { envio.polilinea(GeometriaRapida(estado()).energia(), capas::energia); }

void Form12::ACOTAR(Envio& envio) {
  const GeometriaRapida g(estado());
  const Planta planta = plantaRapida(estado());
  const double eje = Real(planta.eje).valor();
  for (const Punto& p : g.puntosControl()) envio.circulo(p, medioPuntoControl, capas::estructura);
  envio.cadena(cadenaEntrada(g));
  envio.cadena(cadenaSeccion(g));
  envio.cadena(cadenaPlanta(g, (planta.eje - planta.anchoMaximo / 2).valor()));
  for (const CotaAltura& c : alturasAcotadas(g)) envio.altura(c);
  for (const AnchoEn& a : anchosAcotados(g)) envio.ancho(a, eje);
}

void Form12::DIBUBABLOCKS(Envio& envio) {
  const GeometriaRapida g(estado());
  const double eje = Real(plantaRapida(estado()).eje).valor();
  envio.bloques(bloquesDePoza(g.valores(), g.estaciones(), estado().bPoza, eje,
                              minimoBloques(parametros_.Check1, parametros_.Text11)));
}

}  // namespace calvento
