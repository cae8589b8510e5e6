#pragma once

#include "dibujo/figura_rapida.h"
#include "dibujo/marco_dibujo.h"
#include "dibujo/planta.h"
#include "poza/form2.h"

namespace calvento {

/// The drawing of the chute.
class Form3 : public MarcoDibujo {
 public:
  Form3(DesignState& estado, const Form2& parametros, Navegador& navegador);

 private:
  void Form_Load();
  /// Downstream end of the figure, m from the start of the chute.
  Real finFigura() const;
  std::vector<VistaFija> vistasFijas() const;
  Estructura estructura() const;

  const Form2& parametros_;
  Planta planta_;
};

}  // namespace calvento
