#include "hidraulica/form15.h"

#include "comun/numeros.h"
#include "hidraulica/calculadora.h"
#include "hidraulica/salto.h"
#include "plataforma/barra_informe.h"
#include "plataforma/campos.h"

namespace calvento {

Form15::Form15(DesignState& estado, Dialogos& dialogos, Navegador& navegador)
    : Ventana("Form15", "Tirantes Conjugados"), estado_(estado), dialogos_(dialogos) {
  seleccionarAlEnfocar(*this);
  imprimirYCopiarCon(Toolbar1, *this, navegador);
  Text2.Change = [this] { Text2_Change(); };
  Command1.Click = [this] { Command1_Click(); };
  Text2_Change();
}

void Form15::Text2_Change() {
  pasandoFallos([this] {
    const bool rectangular = Val(Text2.Text) == 0;
    P11.Visible = !rectangular;
    P22.Visible = rectangular;
  });
}

void Form15::Command1_Click() {
  calcularAvisando(dialogos_, [this] {
    estado_.Q = Val(Text1.Text);
    const Real z = Val(Text2.Text);
    const Real b = Val(Text3.Text);
    estado_.y1 = Val(Text4.Text);
    const Salto s = calcularSalto(estado_, z, b);
    Text6.Text = texto(Round(estado_.y2, 3));
    Text7.Text = texto(Round(estado_.y2 / estado_.y1, 3));
    Text8.Text = texto(Round(estado_.longRapida, 3));
    Text9.Text = texto(Round(s.E1 - s.E2, 3));
    Text10.Text = texto(Round(s.F1, 3));
    Text11.Text = texto(Round(s.F2, 3));
    Text12.Text = texto(Round(100 * s.E2 / s.E1, 3));
    Text13.Text = texto(Round(estado_.v1, 3));
    Text14.Text = texto(Round(estado_.v2, 3));
  });
}

}  // namespace calvento
