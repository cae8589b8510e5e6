#include "lote/memoria.h"

#include "lote/salidas.h"
#include "memoria/documento.h"
#include "qt/escribir_memoria.h"

namespace calvento::lote {

void escribirMemoriaDe(const Sesion& sesion, const Opciones& opciones) {
  const Diseno d = sesion.diseno();
  const TablasInforme tablas = tablasInforme(d);
  Portada portada;
  portada.fecha = fechaDeHoy();
  escribirMemoria(redactar(d, comprobar(d, tablas.verificacion, tablas.estabilidad), tablas, portada),
                  archivoDeSalida(opciones.memoria, sesion.archivo()));
}

}  // namespace calvento::lote
