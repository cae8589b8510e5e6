#include "estudio/ventanas_propias.h"

#include "caida_inclinada/form1.h"
#include "caida_vertical/form16.h"
#include "rapida/form10.h"

namespace calvento {

VentanasPropias::VentanasPropias(const Ficha& ficha, bool respuesta) : dialogos_(respuesta) {
  if (ficha.tipo == TipoEstructura::vertical) {
    auto form25 = std::make_unique<Form25>(estado, navegador_);
    datos_ = std::make_unique<Form16>(estado, *form25, dialogos_, navegador_);
    parametros_ = std::move(form25);
    return;
  }
  auto form2 = std::make_unique<Form2>(navegador_);
  if (ficha.tipo == TipoEstructura::rapida)
    datos_ = std::make_unique<Form10>(estado, *form2, dialogos_, navegador_);
  else
    datos_ = std::make_unique<Form1>(estado, *form2, dialogos_, navegador_);
  parametros_ = std::move(form2);
}

}  // namespace calvento
