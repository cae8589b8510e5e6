#include "estructura/ventana_tanques.h"

#include <array>

#include "plataforma/campos.h"

namespace calvento {

VentanaTanques::VentanaTanques(const FormatoProyecto& formato, DesignState& estado, Form2& parametros,
                               Dialogos& dialogos, Navegador& navegador, const char* rotuloRampa,
                               bool longitudEnRejilla)
    : VentanaEstructura(formato, estado, parametros, dialogos, navegador),
      parametros_(parametros),
      longitudEnRejilla_(longitudEnRejilla) {
  prepararTablaTanques(Grid1.tabla);
  parametros_.nombrarRampa(rotuloRampa);
  mnparam.Click = abre("Form2");
  // the tooltip and the status bar differ on purpose, and neither limits the entry
  pistaTalud(Text21, "1.5 < Z1 < 2", "1.5 <= Z1 <= 2");
  pistaTalud(Text22, "0 < Z2 < 2", "0 < Z2 < 2");
  Grid1.Click = [this] {
    const MenuBloques bloques = pulsarTabla(Grid1.tabla, Grid1.MouseRow, estado_, parametros_, longitudEnRejilla_);
    if (bloques != MenuBloques::igual) mntabla.Enabled = bloques == MenuBloques::activo;
    sbStatusBar.Nota = "";
    if (calculado()) navegador_.calculoTerminado(*this);
  };
  Grid1.DblClick = [this] { estado_.tipoTanque = Grid1.MouseRow; };
  static constexpr std::array hojas = {"Form22", "Form5", "Form21", "Form23"};
  mntabla.Click = [this] {
    antesDeBloques();
    if (tieneBloques(estado_)) navegador_.mostrar(hojas[static_cast<std::size_t>(estado_.tipoTanque.valor()) - 2]);
  };
  for (const char* hoja : hojas) anotarResultado(mntabla, hoja, mntabla.Click);
  Command2.Click = [this] {
    dejarContenido();
    estado_.tipoTanque = 0;
    navegador_.descargar(*this);
  };
}

void VentanaTanques::tomarTanqueLeido(bool calcula) {
  const int fila = filaElegida(estado_);
  pintarTabla(Grid1.tabla, fila);
  pasandoFallos([&] { longitudPoza(estado_, parametros_); });
  // the calculation has just asked for a type in a box; why the project has none is said beside
  sbStatusBar.Nota = fila == 0 && calcula ? "El proyecto no indica un tipo de tanque de la tabla (1 a 6)" : "";
}

void VentanaTanques::vaciarTabla() {
  limpiarTabla(Grid1.tabla);
  sbStatusBar.Nota = "";
}

}  // namespace calvento
