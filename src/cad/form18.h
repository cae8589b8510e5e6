#pragma once

#include "cad/marco_exportar.h"
#include "poza/form25.h"

namespace calvento {

/// Sends a vertical drop to a CAD drawing.
class Form18 : public MarcoExportar {
 public:
  Form18(DesignState& estado, const Form25& parametros, Dialogos& dialogos, Navegador& navegador,
         const DestinosCad& destinos)
      : MarcoExportar("Form18", estado, dialogos, navegador, destinos), parametros_(parametros) {}

 private:
  Cuadricula cuadricula() const override { return cuadriculaCaida(); }
  HojaCad hoja() const override;

  const Form25& parametros_;
};

}  // namespace calvento
