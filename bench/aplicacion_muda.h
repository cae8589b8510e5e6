#pragma once

#include <stdexcept>
#include <string>

#include "aplicacion/aplicacion.h"
#include "plataforma/sin_pantalla.h"

namespace calvento {

/// Boxes that nobody sees; a failure that is told ends the benchmark.
class SinCajas : public Dialogos {
 public:
  void aviso(const std::string&) override {}
  void fallo(const std::string& texto) override { throw std::runtime_error(texto); }
  bool pregunta(const std::string&) override { return true; }
  std::optional<std::string> abrirArchivo(const OpcionesArchivo&) override { return {}; }
  std::optional<std::string> guardarArchivo(const OpcionesArchivo&) override { return {}; }
};

/// The program without boxes and windows.
struct AplicacionMuda {
  SinCajas dialogos;
  SinPantalla pantalla;
  Aplicacion aplicacion{dialogos, pantalla};
};

}  // namespace calvento
