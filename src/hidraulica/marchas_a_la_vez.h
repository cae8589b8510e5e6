#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "hidraulica/marcha.h"

namespace calvento {

/// One of several discharges on their way down the same reach.
struct Descenso {
  Real Q;                                ///< m³/s
  Real y;                                ///< depth at the head, then at the end, m; the former where it failed
  std::optional<FalloAritmetico> fallo;  ///< why there is no depth at the end
};

namespace detalle {

/// Whether no check of a single round would have failed. Areas and perimeters within these bounds keep everything else
/// within the range of a number, unless an infinity comes out.
inline bool sanas(const Vuelta<Carriles>& v) {
  constexpr double poco = 1e-60, mucho = 1e60, todo = std::numeric_limits<double>::infinity();
  return v.A.entre(poco, mucho) && v.P.entre(poco, mucho) && v.dF.entre(-todo, todo) && v.y.entre(-todo, todo) &&
         v.raizSf.entre(-todo, todo);
}

}  // namespace detalle

/// Marches that do not depend on each other, four of them in the same operations, since a round is a long chain of
/// divisions that wait for each other. Each has the depths that it has alone; where one ends, the next takes its place.
template <class EnEstacion>
class MarchasALaVez {
 public:
  MarchasALaVez(const TramoMarcha& tramo, std::span<Descenso> descensos, EnEstacion& enEstacion)
      : descensos_(descensos), enEstacion_(enEstacion) {
    TramoMarcha t = tramo;
    for (std::size_t i = 0; i < descensos.size(); ++i) {
      t.Q = descensos[i].Q;
      if (!descensos[i].fallo) intentar(i, [&] { marchas_.push_back({i, Marcha(t, descensos[i].y)}); });
    }
    for (std::size_t c = 0; c < lugares; ++c) ocupar(c);
  }

  void hastaElFinal() {
    while (enCamino_ > 0)
      if (!rondaDeTodas()) [[unlikely]]
        for (std::size_t c = 0; c < lugares; ++c) una_[c] != nullptr ? rondaSuelta(c) : ocupar(c);
  }

 private:
  using Grupo = detalle::Carriles;
  static constexpr std::size_t lugares = Grupo::cuantos;
  struct Una {
    std::size_t indice;
    Marcha marcha;
  };

  template <class Accion>
  bool intentar(std::size_t indice, Accion&& accion) {
    try {
      accion();
      return true;
    } catch (const FalloAritmetico& fallo) {
      descensos_[indice].fallo = fallo;
      return false;
    }
  }

  /// Gives the place to the next march; one that stays empty repeats another.
  void ocupar(std::size_t c) {
    const bool quedan = siguiente_ < marchas_.size();
    una_[c] = quedan ? &marchas_[siguiente_++] : nullptr;
    enCamino_ += quedan ? 1 : 0;
    const auto alguna = std::find_if(una_.begin(), una_.end(), [](const Una* una) { return una != nullptr; });
    if (alguna != una_.end()) cargar(c, quedan ? una_[c]->marcha : (*alguna)->marcha);
  }
  void cargar(std::size_t c, const Marcha& m) {
    Q_.poner(c, m.t_.Q.valor());
    y_.poner(c, m.y_.valor());
    H_.poner(c, m.H_.valor());
  }

  /// Runs a part of the march in this place that tells whether it goes on.
  template <class Parte>
  void seguir(std::size_t c, Parte&& parte) {
    Una& una = *una_[c];
    bool sigue = false;
    if (intentar(una.indice,
                 [&] { sigue = parte(una.marcha, [&](const EstacionMarcha& s) { enEstacion_(una.indice, s); }); }) &&
        !sigue)
      descensos_[una.indice].y = una.marcha.final();
    if (sigue) return cargar(c, una.marcha);
    --enCamino_;
    ocupar(c);
  }

  /// One Newton round of all; false, and nothing done, where one of them has to go alone.
  bool rondaDeTodas() {
    constexpr double mayorCorto = std::numeric_limits<float>::max();
    const Grupo r = y_.enCuatroBytes();
    const auto v = marchas_.front().marcha.paso_.corregir(Q_, y_, H_);
    if (!detalle::sanas(v) || !r.entre(-mayorCorto, mayorCorto)) return false;
    const auto agotada = [](const Una* una) { return una != nullptr && una->marcha.vueltas_.agotadas(); };
    if (std::any_of(una_.begin(), una_.end(), agotada)) return false;
    for (Una* una : una_)
      if (una != nullptr) una->marcha.vueltas_.una();
    y_ = v.y;
    for (unsigned llegan = (v.y - r).casiCero(Marcha::tolerancia); llegan != 0; llegan &= llegan - 1) {
      const auto c = static_cast<std::size_t>(std::countr_zero(llegan));
      if (una_[c] == nullptr) continue;
      seguir(c, [&](Marcha& m, auto&& enEstacion) {
        m.r_ = r[c];
        m.y_ = v.y[c];
        return m.acabarEstacion({v.y[c], v.v[c], v.A[c], v.T[c], v.raizSf[c], v.P[c], v.dF[c]}, enEstacion);
      });
    }
    return true;
  }

  void rondaSuelta(std::size_t c) {
    seguir(c, [&](Marcha& m, auto&& enEstacion) {
      m.y_ = y_[c];
      return m.ronda(enEstacion);
    });
  }

  std::span<Descenso> descensos_;
  EnEstacion& enEstacion_;
  std::vector<Una> marchas_;
  std::size_t siguiente_ = 0;
  int enCamino_ = 0;
  std::array<Una*, lugares> una_{};
  Grupo Q_ = 0, y_ = 0, H_ = 0;  // of the march in each place
};

/// Takes all discharges down the reach, whose own discharge is not asked, and leaves their depths at its end. Those
/// that have failed before stay as they are. Calls `enEstacion(i, station)` after each step of the discharge i.
template <class EnEstacion>
void marcharALaVez(const TramoMarcha& tramo, std::span<Descenso> descensos, EnEstacion&& enEstacion) {
  MarchasALaVez(tramo, descensos, enEstacion).hastaElFinal();
}

}  // namespace calvento
