#pragma once

#include "cad/marco_exportar.h"
#include "poza/form2.h"

namespace calvento {

/// Sends a chute to a CAD drawing.
class Form12 : public MarcoExportar {
 public:
  Form12(DesignState& estado, const Form2& parametros, Dialogos& dialogos, Navegador& navegador,
         const DestinosCad& destinos)
      : MarcoExportar("Form12", estado, dialogos, navegador, destinos), parametros_(parametros) {}

 private:
  Cuadricula cuadricula() const override;
  HojaCad hoja() const override;

  const Form2& parametros_;
};

}  // namespace calvento
