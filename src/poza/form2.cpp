#include "poza/form2.h"

#include "comun/numeros.h"
#include "plataforma/campos.h"

namespace calvento {

Form2::Form2(Navegador& navegador) : Ventana("Form2", "Bordo Libre - Transición- Tanque Amortiguador") {
  seleccionarAlEnfocar(*this);
  // both buttons only hide the window: there is no undo, what was typed stays in force
  Command1.Click = Command2.Click = [this, &navegador] { navegador.ocultar(*this); };
  Command3.Click = [this] { Command3_Click(); };
}

void Form2::nombrarRampa(std::string_view bordoLibre) {
  Text6.magnitud.nombre = bordoLibre;
  Label30.Caption = std::string(bordoLibre.substr(bordoLibre.find(": ") + 2)) + ":";
}

void Form2::Command3_Click() {
  Text1.Text = texto(Real(5));
  Text2.Text = texto(Real(6.1));
  Text3.Text = texto(Real(2.8));
  Text4.Text = texto(Real(4.4));
  Text10.Text = texto(Real(6));
  Text11.Text = texto(Real(0.2));
}

}  // namespace calvento
