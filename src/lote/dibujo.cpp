#include "lote/dibujo.h"

#include <stdexcept>

#include "comun/version.h"
#include "dibujo/marco_dibujo.h"
#include "dibujo/svg.h"
#include "lote/salidas.h"
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
  const std::string archivo = archivoDeSalida(opciones.dibujo, sesion.archivo());
  const HojaSvg hoja{ventana->Caption, opciones.vista + "; Calvento " + version()};
  if constexpr (conQt)
    exportarDibujo(ventana->GRAF.lienzo, archivo, hoja);
  else
    guardarSvg(ventana->GRAF.lienzo, hoja, archivo);
}

}  // namespace calvento::lote
