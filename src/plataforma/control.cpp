#include "plataforma/control.h"

#include <algorithm>

#include "comun/fallo.h"
#include "comun/numeros.h"
#include "plataforma/ventana.h"

namespace calvento {

Control::Control(Ventana& ventana, std::string_view nombre) : nombre_(nombre) { ventana.inscribir(*this); }

void Control::alCambiarPropiedad(const void* propiedad) {
  disparar(alCambiar);
  trasCambiar(propiedad);
}

void TextBox::seleccionarTodo() {
  SelStart = 0;
  SelLength = static_cast<int>(Text.valor().size());
  disparar(alCambiar);
}

void TextBox::escribir(const std::string& texto) { Text = numerico ? conPuntoDecimal(texto) : texto; }

std::string TextBox::lectura() const {
  if (!numerico || vacio(Text) || esNumero(Text)) return {};
  std::string s = "Número demasiado grande";
  pasandoFallos([&] { s = "Se lee " + texto(Val(Text)); });
  return s;
}

std::string TextBox::falta() const {
  if (vacio(Text)) return "Falta este dato";
  std::string s = "Número demasiado grande";
  pasandoFallos([&] {
    const Single v = Val(Text);
    s.clear();
    if (magnitud.dominio == Dominio::positivos && v <= 0) s = "Debe ser mayor que 0";
    if (magnitud.dominio == Dominio::noNegativos && v < 0) s = "No puede ser negativo";
    if (v == 0 && magnitud.sinCeroCon != nullptr && Val(magnitud.sinCeroCon->Text) == 0)
      s = "No puede ser 0 a la vez que " + std::string(magnitud.sinCeroCon->magnitud.nombre);
  });
  return s;
}

std::string TextBox::reparo() const {
  const std::string leido = lectura();
  return leido.empty() || leido == Senal.valor() ? Senal.valor() : vacio(Senal) ? leido : leido + ". " + Senal.valor();
}

void TextBox::trasCambiar(const void* propiedad) {
  if (propiedad != &Text) return;
  Senal = std::string();
  disparar(Change);
}

void OptionButton::trasCambiar(const void* propiedad) {
  if (propiedad != &Value || !Value) return;
  for (Control* c : ventana_.controles()) {
    auto* otra = dynamic_cast<OptionButton*>(c);
    if (otra != nullptr && otra != this && otra->grupo() == grupo_) otra->Value = false;
  }
  disparar(Click);
}

std::string ComboBox::Text() const {
  const auto i = static_cast<std::size_t>(ListIndex.valor());
  return ListIndex >= 0 && i < List.valor().size() ? List.valor()[i] : std::string();
}

void ComboBox::trasCambiar(const void* propiedad) {
  if (propiedad == &ListIndex) disparar(Click);
}

void UpDown::subir() {
  Value = std::min(Value + 1, maximo_);
  disparar(UpClick);
}

void UpDown::bajar() {
  Value = std::max(Value - 1, minimo_);
  disparar(DownClick);
}

}  // namespace calvento
