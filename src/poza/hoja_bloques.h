#pragma once

#include "comun/numeros.h"
#include "plataforma/control.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana.h"
#include "poza/form2.h"
#include "poza/reglas_bloques.h"

namespace calvento {

/// What the dimension sheets of the standard basins have in common: a picture of the basin with numbers at its
/// dimensions, computed once when the sheet opens. A depth or width of 0 fails in the constructor.
class HojaBloques : public Ventana {
 public:
  Toolbar Toolbar1{*this, "Toolbar1", {"botonimprimir", "botoncopiar"}};

 protected:
  HojaBloques(const char* nombre, const char* titulo, Navegador& navegador);
  /// The blocks of a design: both structures with a sheet read the basin width from the same field.
  static DatosBloques datos(const DesignState& estado, const Form2& parametros);
  static void poner(Label& rotulo, Real longitud) { rotulo.Caption = texto(Round(longitud, 3)); }
  static void poner(Label& rotulo, Single longitud) { rotulo.Caption = texto(Round(longitud, 3)); }
  static void ponerNumero(Label& rotulo, const HileraBloques& h) { rotulo.Caption = texto(h.numero); }
};

}  // namespace calvento
