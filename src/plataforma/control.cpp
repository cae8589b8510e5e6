#include "plataforma/control.h"

#include <algorithm>

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

void TextBox::trasCambiar(const void* propiedad) {
  if (propiedad == &Text) disparar(Change);
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
