#pragma once

#include "estructura/ventana_estructura.h"
#include "plataforma/rejilla.h"
#include "poza/form2.h"
#include "poza/tabla_tanques.h"

namespace calvento {

/// What the data windows of the chute and of the inclined drop have beyond the common: the basin with its ramps, the
/// feasibility table and the parameter window they serve in turn.
class VentanaTanques : public VentanaEstructura {
 public:
  /// `rotuloRampa`: what the freeboard of this structure in the parameter window is called. `longitudEnRejilla`: a
  /// length that comes from a click on the table goes to the 0.05 grid.
  VentanaTanques(const FormatoProyecto& formato, DesignState& estado, Form2& parametros, Dialogos& dialogos,
                 Navegador& navegador, const char* rotuloRampa, bool longitudEnRejilla);

  TextBox Text24{
      *this, "Text24", "", {"Poza/Tanque: Talud(Z)", "", Dominio::noNegativos}};  ///< side slope of the basin
  TextBox Text21{*this, "Text21", "2", {"Rampa de ingreso: Talud", "", Dominio::positivos}};     ///< zRampaEntrada
  TextBox Text22{*this, "Text22", "1.5", {"Rampa de salida: Talud", "", Dominio::noNegativos}};  ///< zRampaSalida
  Label Label27{
      *this, "Label27", "", {"Sobre elevación en la sección de control", "m"}};  ///< rise of the control section
  Grid Grid1{*this, "Grid1"};
  Menu mnst{*this, "mnst"};
  Menu mntabla{*this, "mntabla"};

 protected:
  /// Before a sheet of block dimensions opens.
  virtual void antesDeBloques() {}
  /// Marks the row of the stored basin type and sets its length; where the calculation wanted one, a type that is none
  /// of the table's is told in the status bar until a row is chosen.
  void tomarTanqueLeido(bool calcula);
  void vaciarTabla();

  Form2& parametros_;

 private:
  bool longitudEnRejilla_;
};

}  // namespace calvento
