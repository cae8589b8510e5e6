#pragma once

#include "cad/marco_exportar.h"
#include "poza/form2.h"

namespace calvento {

/// Sends an inclined drop to a CAD drawing.
class Form9 : public MarcoExportar {
 public:
  Form9(DesignState& estado, const Form2& parametros, Dialogos& dialogos, Navegador& navegador,
        const DestinosCad& destinos)
      : MarcoExportar("Form9", estado, dialogos, navegador, destinos), parametros_(parametros) {}

 private:
  Cuadricula cuadricula() const override { return cuadriculaCaida(); }
  HojaCad hoja() const override;

  const Form2& parametros_;
};

}  // namespace calvento
