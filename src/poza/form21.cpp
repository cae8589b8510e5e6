#include "poza/form21.h"

namespace calvento {

Form21::Form21(const DesignState& e, const Form2& parametros, Navegador& navegador)
    : HojaBloques("Form21", "Dimensiones del Tanque USBR - III", navegador) {
  const DatosBloques d = datos(e, parametros);
  const HileraBloques rampa = bloquesDeRampa(Tanque::usbr3, d);
  const HileraBloques dientes = *bloquesDePiso(Tanque::usbr3, d);
  ponerNumero(Label3, rampa);
  ponerNumero(Label4, dientes);
  poner(Label14, e.longPoza);
  poner(Label5, rampa.alto);
  poner(Label9, rampa.ancho);
  poner(Label8, rampa.hueco);
  poner(Label7, rampa.orilla);
  poner(Label6, largoBloqueRampa(e.zRampaEntrada, rampa.alto));
  poner(Label13, dientes.alto);
  poner(Label11, dientes.ancho);
  poner(Label12, dientes.hueco);
  poner(Label10, 0.02 * Real(e.y2));
}

}  // namespace calvento
