#include "memoria/diseno.h"

#include <algorithm>

#include "memoria/mesa.h"
#include "reportes/estabilidad.h"
#include "reportes/verificacion.h"

namespace calvento {

namespace {

std::string marca(bool puesta) { return puesta ? "1" : "0"; }

}  // namespace

TextosVentana textosDe(const Ventana& ventana) {
  TextosVentana textos;
  textos.reserve(ventana.controles().size());
  for (const Control* c : ventana.controles()) {
    if (const auto* campo = dynamic_cast<const TextBox*>(c))
      textos.emplace_back(c->nombre(), campo->Text.valor());
    else if (const auto* casilla = dynamic_cast<const CheckBox*>(c))
      textos.emplace_back(c->nombre(), marca(casilla->Value));
    else if (const auto* opcion = dynamic_cast<const OptionButton*>(c))
      textos.emplace_back(c->nombre(), marca(opcion->Value));
    else if (const auto* lista = dynamic_cast<const ComboBox*>(c))
      textos.emplace_back(c->nombre(), lista->Text());
    else if (const auto* menu = dynamic_cast<const Menu*>(c); menu != nullptr && menu->conMarca)
      textos.emplace_back(c->nombre(), marca(menu->Checked));
  }
  return textos;
}

void ponerTextos(Ventana& ventana, const TextosVentana& textos) {
  for (const auto& [nombre, texto] : textos) {
    Control* const c = ventana.buscar(nombre);
    if (auto* campo = dynamic_cast<TextBox*>(c)) {
      campo->Text = texto;
    } else if (auto* casilla = dynamic_cast<CheckBox*>(c)) {
      casilla->Value = texto == "1";
    } else if (auto* opcion = dynamic_cast<OptionButton*>(c)) {
      opcion->Value = texto == "1";
    } else if (auto* lista = dynamic_cast<ComboBox*>(c)) {
      const std::vector<std::string>& entradas = lista->List;
      const auto it = std::find(entradas.begin(), entradas.end(), texto);
      lista->ListIndex = it == entradas.end() ? -1 : static_cast<int>(it - entradas.begin());
    } else if (auto* menu = dynamic_cast<Menu*>(c); menu != nullptr && menu->conMarca) {
      if (menu->Checked != (texto == "1")) disparar(menu->Click);
    }
  }
}

Diseno::Diseno(const Ficha& f, const Ventana& datos, const Ventana& parametrosDe, const DesignState& estado,
               std::vector<Mensaje> dichos)
    : ficha(&f), e(estado), campos(textosDe(datos)), parametros(textosDe(parametrosDe)), mensajes(std::move(dichos)) {
  if (const auto* tabla = datos.buscar<Grid>("Grid1")) tanques = tabla->tabla;
}

const std::string& Diseno::buscar(const TextosVentana& textos, std::string_view control) {
  static const std::string ninguno;
  const auto it = std::find_if(textos.begin(), textos.end(), [&](const auto& par) { return par.first == control; });
  return it == textos.end() ? ninguno : it->second;
}

TablasInforme tablasInforme(const Diseno& d) {
  TablasInforme t;
  MesaInforme mesa(d);
  pasandoFallos([&] {
    if (d.rapida())
      verificarRapida(t.verificacion, mesa.estado, mesa.form2, mesa.dialogos);
    else if (d.inclinada())
      verificarInclinada(t.verificacion, mesa.estado, mesa.form2, mesa.dialogos);
    else
      verificarVertical(t.verificacion, mesa.estado);
  });
  if (d.rapida()) try {
      tablaEstabilidad(t.estabilidad, mesa.estado);
    } catch (const FalloAritmetico&) {
      t.estabilidad = {};
    }
  return t;
}

}  // namespace calvento
