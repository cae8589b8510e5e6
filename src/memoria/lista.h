#pragma once

#include <cmath>
#include <string>
#include <string_view>
#include <utility>

#include "comun/numeros.h"
#include "memoria/comprobaciones.h"
#include "memoria/ecuaciones.h"

// What the files of the checks share.

namespace calvento::lista {

using ecuaciones::Canal;
using Estado = Comprobacion::Estado;

inline double d(Single s) { return static_cast<double>(s.valor()); }
/// A number in a sentence.
inline std::string n(double x, int decimales = 3) {
  static constexpr std::string_view patron = "0.00000";
  return std::isfinite(x) && std::fabs(x) < 1e15
             ? formato(Real(x), patron.substr(0, static_cast<std::size_t>(decimales == 0 ? 1 : decimales + 2)))
             : "sin valor";
}

/// The sentences of a check, for when it holds and for when it does not.
struct Frases {
  std::string si, no;
};

class Lista {
 public:
  explicit Lista(Comprobaciones& todas) : todas_(todas) {}
  /// `fallo`: what it is when it does not hold, a failure or a remark.
  void anadir(std::string_view nombre, bool cumple, double valor, double limite, std::string_view unidad, Frases frases,
              std::string_view fuente = {}, Estado fallo = Estado::noCumple) {
    todas_.push_back({nombre, cumple ? Estado::cumple : fallo, valor, limite, unidad,
                      cumple ? std::move(frases.si) : std::move(frases.no), fuente});
  }
  void observar(std::string_view nombre, bool cumple, double valor, double limite, std::string_view unidad,
                Frases frases, std::string_view fuente = {}) {
    anadir(nombre, cumple, valor, limite, unidad, std::move(frases), fuente, Estado::observacion);
  }
  void noAplica(std::string_view nombre, std::string detalle) {
    todas_.push_back({nombre, Estado::noAplica, std::nan(""), std::nan(""), {}, std::move(detalle), {}});
  }

 private:
  Comprobaciones& todas_;
};

inline Canal canalArriba(const DesignState& e) { return {d(e.bArriba), d(e.zArriba), d(e.nArriba), d(e.sArriba)}; }
inline Canal canalAbajo(const DesignState& e) { return {d(e.bAbajo), d(e.zAbajo), d(e.nAbajo), d(e.sAbajo)}; }
/// The section in which the control section stands.
inline Canal control(const Diseno& x) {
  if (x.rapida()) return {d(x.e.bRapida), d(x.e.zRapida)};
  return {d(x.e.bPozaCaida), x.vertical() ? 0 : d(x.e.zPozaCaida)};
}
/// The basin between its walls: that of a vertical drop has the contraction on both sides too.
inline Canal poza(const Diseno& x) {
  if (x.rapida()) return {d(x.e.bPoza), d(x.e.zPoza)};
  if (x.vertical()) return {d(x.e.bPozaCaida) + 2 * d(x.e.longTransVert), 0};
  return {d(x.e.bPozaCaida), d(x.e.zPozaCaida)};
}
/// Both depths of the jump are the same one: the iteration ended on the root that is no jump.
inline bool degenerado(const DesignState& e) { return std::fabs(d(e.y2) - d(e.y1)) < 0.01 * std::fabs(d(e.y2)); }

inline bool haySaltoEn(const DesignState& e) { return d(e.y1) > 0 && d(e.y2) > d(e.y1) && !degenerado(e); }

inline constexpr std::string_view chow = "Chow, V. T. (1959), Open-Channel Hydraulics, McGraw-Hill";
inline constexpr std::string_view peterka =
    "Peterka, A. J. (1958), Hydraulic Design of Stilling Basins and Energy Dissipators, USBR, Eng. Monograph 25";
inline constexpr std::string_view canalesPequenos =
    "Aisenbrey, A. J. y otros (1978), Design of Small Canal Structures, USBR";
inline constexpr std::string_view rand =
    "Rand, W. (1955), Flow Geometry at Straight Drop Spillways, Proc. ASCE, vol. 81";

void deDatos(Lista& lista, const Diseno& diseno);
void deCanales(Lista& lista, const Diseno& diseno);
void deRapida(Lista& lista, const Diseno& diseno, const Rejilla& estabilidad);
void deResalto(Lista& lista, const Diseno& diseno);
void dePoza(Lista& lista, const Diseno& diseno, const Rejilla& verificacion);
void deCaidas(Lista& lista, const Diseno& diseno);

}  // namespace calvento::lista
