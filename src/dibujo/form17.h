#pragma once

#include "dibujo/marco_caida.h"
#include "poza/form25.h"

namespace calvento {

/// The drawing of the vertical drop.
class Form17 : public MarcoCaida {
 public:
  Form17(DesignState& estado, const Form25& parametros, Navegador& navegador);

 private:
  void Form_Load();

  const Form25& parametros_;
};

}  // namespace calvento
