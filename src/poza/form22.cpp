#include "poza/form22.h"

namespace calvento {

Form22::Form22(const DesignState& e, const Form2& parametros, Navegador& navegador)
    : HojaBloques("Form22", "Dimensiones del Tanque USBR - I", navegador) {
  const HileraBloques b = bloquesDeRampa(Tanque::usbr1, datos(e, parametros));
  poner(Label13, e.longPoza);
  poner(Label5, e.profPoza);
  poner(Label8, b.alto);
  poner(Label11, b.ancho);
  poner(Label9, b.hueco);
  poner(Label10, b.orilla);
  poner(Label12, largoBloqueRampa(e.zRampaEntrada, b.alto));
  ponerNumero(Label4, b);
}

}  // namespace calvento
