#include <stdexcept>

#include "cad/marco_exportar.h"
#include "lote/dibujo.h"
#include "lote/salidas.h"

namespace calvento::lote {

void exportarDxfDe(Sesion& sesion, const Opciones& opciones) {
  // as on the desktop, where the export is opened from the drawing, which computes the end of the structure
  Aplicacion& programa = sesion.aplicacion();
  programa.cargar(sesion.estructura()->ventanaDibujo);
  auto* ventana = programa.cargar<MarcoExportar>(sesion.estructura()->ventanaExportar);
  if (ventana == nullptr) throw std::runtime_error("el dibujo DXF no se pudo hacer");
  const std::string archivo = archivoDeSalida(opciones.dxf, sesion.archivo());
  sesion.nombrarArchivo(archivo);
  ventana->Command3_Click();
  sesion.nombrarArchivo({});
  if (!ventana->motivo().empty()) throw std::runtime_error("--dxf " + archivo + ": " + ventana->motivo());
}

}  // namespace calvento::lote
