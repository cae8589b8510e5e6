#include "lote/dibujo.h"

#include <stdexcept>

#include "cad/marco_exportar.h"
#include "dibujo/marco_dibujo.h"
#include "qt/exportar_dibujo.h"

namespace calvento::lote {

void exportarDibujoDe(Sesion& sesion, const Opciones& opciones) {
  auto* ventana = sesion.aplicacion().cargar<MarcoDibujo>(sesion.estructura()->ventanaDibujo);
  if (ventana == nullptr) throw std::runtime_error("el dibujo no se pudo hacer");
  if (!ventana->ver(opciones.vista)) {
    std::string vistas;
    for (const std::string_view v : ventana->vistas()) vistas += (vistas.empty() ? "" : ", ") + std::string(v);
    throw OpcionErronea("--vista " + opciones.vista + ": el dibujo tiene las vistas " + vistas);
  }
  exportarDibujo(ventana->GRAF.lienzo, archivoDeSalida(opciones.dibujo, sesion.archivo()));
}

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
