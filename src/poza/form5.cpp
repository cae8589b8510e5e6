#include "poza/form5.h"

namespace calvento {

Form5::Form5(const DesignState& e, const Form2& parametros, Navegador& navegador)
    : HojaBloques("Form5", "Dimensiones del Tanque USBR - II", navegador) {
  const DatosBloques d = datos(e, parametros);
  const HileraBloques rampa = bloquesDeRampa(Tanque::usbr2, d);
  const HileraBloques piso = *bloquesDePiso(Tanque::usbr2, d);
  ponerNumero(Label14, rampa);
  ponerNumero(Label15, piso);
  poner(Label3, e.longPoza);
  poner(Label17, e.profPoza);
  poner(Label9, distanciaBloquesDePiso(Tanque::usbr2, d));
  poner(Label10, rampa.alto);
  poner(Label13, rampa.ancho);
  poner(Label12, rampa.hueco);
  poner(Label11, rampa.orilla);
  poner(Label4, largoBloqueRampa(e.zRampaEntrada, rampa.alto));
  // by the height of the ramp blocks, not of their own: meant so
  poner(Label5, coronaBloquePiso * rampa.alto);
  poner(Label16, piso.alto);
  poner(Label6, 0.375 * piso.alto);
  poner(Label7, piso.ancho);
  poner(Label8, piso.hueco);
}

}  // namespace calvento
