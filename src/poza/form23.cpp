#include "poza/form23.h"

namespace calvento {

Form23::Form23(const DesignState& e, const Form2& parametros, Navegador& navegador)
    : HojaBloques("Form23", "Dimensiones del Tanque SAF", navegador) {
  const DatosBloques d = datos(e, parametros);
  const HileraBloques rampa = bloquesDeRampa(Tanque::saf, d);
  const HileraBloques piso = *bloquesDePiso(Tanque::saf, d);
  ponerNumero(Label3, rampa);
  ponerNumero(Label4, piso);
  poner(Label14, rampa.alto);
  poner(Label8, largoBloqueRampa(e.zRampaEntrada, rampa.alto));
  poner(Label17, rampa.ancho);
  poner(Label16, rampa.hueco);
  poner(Label15, rampa.orilla);
  poner(Label13, piso.alto);
  poner(Label9, coronaBloquePiso * piso.alto);
  poner(Label12, piso.ancho);
  poner(Label11, piso.hueco);
  poner(Label10, piso.orilla);
  poner(Label6, e.longPoza);
  poner(Label7, distanciaBloquesDePiso(Tanque::saf, d));
  poner(Label5, 0.07 * Real(e.y2));
}

}  // namespace calvento
