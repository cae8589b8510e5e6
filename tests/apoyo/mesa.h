#pragma once

#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "apoyo/dialogos_guion.h"
#include "apoyo/navegador_mudo.h"
#include "comun/numeros.h"
#include "modelo/design_state.h"
#include "plataforma/ventana.h"

namespace calvento {

using Datos = std::vector<std::pair<std::string, std::string>>;

/// Notes every message and answers every question with Yes.
class DialogosLibres : public Dialogos {
 public:
  std::vector<std::string> dichas;
  void aviso(const std::string& texto) override { dichas.push_back(texto); }
  void fallo(const std::string& texto) override { dichas.push_back("fallo: " + texto); }
  bool pregunta(const std::string& texto) override { return aviso(texto), true; }
  std::optional<std::string> abrirArchivo(const OpcionesArchivo&) override { return {}; }
  std::optional<std::string> guardarArchivo(const OpcionesArchivo&) override { return {}; }
};

/// A parameter window: one kind knows the record, the other does not.
template <class Parametros>
Parametros nuevosParametros([[maybe_unused]] DesignState& estado, Navegador& navegador) {
  if constexpr (std::is_constructible_v<Parametros, Navegador&>)
    return Parametros(navegador);
  else
    return Parametros(estado, navegador);
}

/// A data window with all that it needs; boxes from a script unless others are given.
template <class VentanaDeDatos, class Parametros, class Cajas = DialogosGuion>
struct MesaDe {
  Cajas dialogos;
  DesignState estado;
  NavegadorMudo navegador;
  Parametros parametros = nuevosParametros<Parametros>(estado, navegador);
  VentanaDeDatos f{estado, parametros, dialogos, navegador};

  void poner(const Datos& datos) { ponerEn(f, datos); }
  static void ponerEn(Ventana& ventana, const Datos& datos) {
    for (const auto& [campo, valor] : datos) {
      auto* c = ventana.buscar<TextBox>(campo);
      ASSERT_NE(c, nullptr) << campo;
      c->Text = valor;
    }
  }
  double valor(Single DesignState::*campo) const { return static_cast<double>((estado.*campo).valor()); }
};

/// Gives the upstream canal of a window such a width and slope that its Froude number is exactly one.
template <class Mesa>
void buscarFroudeUno(Mesa& m) {
  // searched by halving, down to neighbouring 4-byte slopes
  for (int b = 100; b < 200 && m.valor(&DesignState::frArriba) != 1; ++b) {
    m.f.Text6.Text = "1." + std::to_string(b);
    float lento = 0.001F, rapido = 0.2F;
    while (m.valor(&DesignState::frArriba) != 1 && std::nextafter(lento, 1.0F) < rapido) {
      const float S = (lento + rapido) / 2;
      m.f.Text9.Text = texto(Real(Single::deFloat(S)));
      (m.valor(&DesignState::frArriba) < 1 ? lento : rapido) = S;
    }
  }
}

/// Runs a calculation on a record full of a sentinel and returns which 4-byte fields were written, as words between
/// blanks in the order of the record.
template <class Accion>
std::string camposEscritos(DesignState& estado, Accion&& calcular) {
  for (const CampoSingle& c : camposSingle()) estado.*c.campo = -77;
  calcular();
  std::string s;
  for (const CampoSingle& c : camposSingle())
    if ((estado.*c.campo).valor() != -77) s.append(s.empty() ? "" : " ").append(c.nombre);
  return s;
}

/// The same words in the order of the record.
inline std::string enOrden(const std::string& palabras) {
  std::string s;
  for (const CampoSingle& c : camposSingle())
    if ((" " + palabras + " ").find(" " + std::string(c.nombre) + " ") != std::string::npos)
      s.append(s.empty() ? "" : " ").append(c.nombre);
  return s;
}

inline constexpr const char* avisoSinTanque = "Seleccione el Tipo de Tanque Amortiguador a utilizar";
inline constexpr const char* falloDivision = "División por cero: Ingresar datos correctamente, verificar";

}  // namespace calvento
