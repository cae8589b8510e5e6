#include "memoria/form_memoria.h"

#include <utility>

namespace calvento {

DisenoComprobado::DisenoComprobado(Diseno d)
    : diseno(std::move(d)),
      tablas(tablasInforme(diseno)),
      comprobaciones(comprobar(diseno, tablas.verificacion, tablas.estabilidad)) {}

FormMemoria::FormMemoria(std::string_view nombre, std::shared_ptr<const DisenoComprobado> diseno)
    : Ventana(nombre, "Memoria de Cálculo") {
  mostrar(std::move(diseno));
}

void FormMemoria::mostrar(std::shared_ptr<const DisenoComprobado> diseno) {
  if (diseno == nullptr) return;
  const std::string& ruta = diseno->diseno.e.rutaArchivo;
  const auto barra = ruta.find_last_of("/\\");
  std::string archivo = barra == std::string::npos ? ruta : ruta.substr(barra + 1);
  if (const auto punto = archivo.rfind('.'); punto != std::string::npos) archivo.resize(punto);
  Visor1.sugerido = archivo.empty() || diseno->diseno.e.esNuevo ? "memoria" : archivo + "-memoria";
  Visor1.redactar = [d = std::move(diseno)](const Portada& portada) {
    return redactar(d->diseno, d->comprobaciones, d->tablas, portada);
  };
  Visor1.cambiado();
}

}  // namespace calvento
