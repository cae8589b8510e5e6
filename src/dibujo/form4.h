#pragma once

#include "dibujo/marco_caida.h"
#include "poza/form2.h"

namespace calvento {

/// The drawing of the inclined drop.
class Form4 : public MarcoCaida {
 public:
  Form4(DesignState& estado, const Form2& parametros, Navegador& navegador);

 private:
  void Form_Load();
  /// Downstream end of the figure, m from the crest.
  Real finFigura() const;

  const Form2& parametros_;
};

}  // namespace calvento
