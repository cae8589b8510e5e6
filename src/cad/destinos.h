#pragma once

#include "cad/aplicacion_cad.h"

namespace calvento {

/// A CAD application beside the program.
class ConexionAplicacion : public ConexionCad {
 public:
  enum class Presencia { ninguna, instalada, abierta };
  virtual Presencia presencia() = 0;
};

/// Where an export can go: into a file always, into an application where the system has one.
struct DestinosCad {
  DestinosCad(ConexionCad& unArchivo, ConexionAplicacion* unaAplicacion = nullptr)
      : archivo(unArchivo), aplicacion(unaAplicacion) {}
  ConexionCad& archivo;
  ConexionAplicacion* aplicacion;
};

}  // namespace calvento
