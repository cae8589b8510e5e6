#include "hidraulica/form14.h"

#include "comun/numeros.h"
#include "hidraulica/calculadora.h"
#include "hidraulica/flujo.h"
#include "hidraulica/secanal.h"
#include "plataforma/barra_informe.h"
#include "plataforma/campos.h"

namespace calvento {

Form14::Form14(DesignState& estado, Dialogos& dialogos, Navegador& navegador)
    : Ventana("Form14", "Hidráulica de Canales"), estado_(estado), dialogos_(dialogos) {
  seleccionarAlEnfocar(*this);
  imprimirYCopiarCon(Toolbar1, *this, navegador);
  Option1.Click = [this] { ponerModo(Modo::parametros); };
  Option2.Click = [this] { ponerModo(Modo::critico); };
  Option3.Click = [this] { ponerModo(Modo::normal); };
  Command1.Click = [this] { Command1_Click(); };
  ponerModo(Modo::normal);
}

void Form14::ponerModo(Modo modo) {
  // the caption of each field by mode; a field without one is hidden and keeps its text
  const struct {
    Label& etiqueta;
    TextBox& campo;
    const char* titulo[3];
  } filas[] = {
      {Label1, Text1, {"Tirante (m):", "Caudal (m³/s):", "Caudal (m³/s):"}},
      {Label4, Text4, {nullptr, nullptr, "n de Manning:"}},
      {Label5, Text5, {nullptr, nullptr, "Pendiente (m/m):"}},
      {Label6, Text6, {"Radio hidráulico (m):", "Tirante Crítico (m):", "Tirante Crítico (m):"}},
      {Label7, Text7, {"Perímetro Mojado (m):", "Altura de velocidad (m):", "Altura de velocidad (m):"}},
      {Label8, Text8, {nullptr, "Perímetro Mojado(m):", "Número de Froude:"}},
      {Label10, Text10, {nullptr, "Radio hidráulico (m):", "Radio hidráulico (m):"}},
      {Label11, Text11, {nullptr, nullptr, "Tirante Normal(m):"}},
      {Label13, Text13, {nullptr, "Velocidad (m/s):", "Velocidad (m/s):"}},
      {Label14, Text14, {nullptr, nullptr, "Pendiente Crítica(m/m):"}},
  };
  for (const auto& f : filas) {
    const char* titulo = f.titulo[static_cast<int>(modo)];
    if (titulo != nullptr) f.etiqueta.Caption = titulo;
    f.etiqueta.Visible = titulo != nullptr;
    f.campo.Visible = titulo != nullptr;
  }
}

void Form14::Command1_Click() {
  calcularAvisando(dialogos_, [this] {
    if (Option1.Value)
      calcularParametros();
    else if (Option2.Value)
      calcularCritico();
    else
      calcularNormal();
  });
}

void Form14::calcularParametros() {
  const Real y = Val(Text1.Text);
  const Real z = Val(Text2.Text);
  const Real b = Val(Text3.Text);
  SECANAL(P1.lienzo, y, 0, b, z);  // there is no second level in this mode
  const Seccion seccion{b, z};
  const Real R = seccion.radio(y);
  Text6.Text = texto(Round(R, 3));
  Text7.Text = texto(Round(seccion.perimetro(y), 3));
  Text9.Text = texto(Round(seccion.espejo(y), 3));
  Text12.Text = texto(Round(seccion.area(y), 3));
}

void Form14::calcularCritico() {
  estado_.Q = Val(Text1.Text);
  const Real z = Val(Text2.Text);
  const Real b = Val(Text3.Text);
  const Real yc = YCRITICO(estado_.Q, b, z);
  SECANAL(P1.lienzo, yc, yc, b, z);
  const Seccion seccion{b, z};
  const Flujo f = flujoEn(seccion, estado_.Q, yc);
  // meant so: this mode shows the depth of the first mode, which it leaves at 0, and the top width there; the critical
  // depth itself is read in the third mode
  const Real w = 0;
  Text6.Text = texto(Round(w, 3));
  Text7.Text = texto(Round(f.alturaVelocidad, 3));
  Text8.Text = texto(Round(f.perimetro, 3));
  Text9.Text = texto(Round(seccion.espejo(w), 3));
  Text10.Text = texto(Round(f.radio, 3));
  Text12.Text = texto(Round(f.area, 3));
  Text13.Text = texto(Round(f.velocidad, 3));
}

void Form14::calcularNormal() {
  estado_.Q = Val(Text1.Text);
  const Real Q = estado_.Q;
  const Real z = Val(Text2.Text);
  const Real b = Val(Text3.Text);
  const Real n = Val(Text4.Text);
  const Real S = Val(Text5.Text);
  const Seccion seccion{b, z};

  const Real yn = YNORMAL(Q, b, z, n, S);
  const Flujo f = flujoEn(seccion, Q, yn);
  const Real F = seccion.froude(Q, yn);
  Text7.Text = texto(Round(f.alturaVelocidad, 3));
  Text8.Text = texto(Round(F, 3));
  Text9.Text = texto(Round(f.espejo, 3));
  Text10.Text = texto(Round(f.radio, 3));
  Text11.Text = texto(Round(yn, 3));
  Text12.Text = texto(Round(f.area, 3));
  Text13.Text = texto(Round(f.velocidad, 3));

  const Real yc = YCRITICO(Q, b, z);
  const Flujo critico = flujoEn(seccion, Q, yc);
  const Real Sc = pendienteFriccion(n, critico.velocidad, critico.radio);
  Text6.Text = texto(Round(yc, 3));
  Text14.Text = texto(Round(Sc, 5));
  SECANAL(P1.lienzo, yn, yc, b, z);
}

}  // namespace calvento
