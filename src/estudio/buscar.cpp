#include "estudio/buscar.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "comun/numeros.h"
#include "comun/unidades.h"

namespace calvento {

namespace {

class Buscador {
 public:
  Buscador(const Diseno& base, const Entrada& entrada, std::size_t columna, double buscado,
           const std::function<bool()>& sigue)
      : entrada_(entrada),
        columna_(columna),
        buscado_(buscado),
        tolerancia_(0.5 * std::pow(10, -columnas(*base.ficha)[columna].decimales) * (1 + 1e-9)),
        sigue_(sigue),
        banco_(base, columnas(*base.ficha)[columna].conInformes) {}

  void recorrer(const std::vector<std::string>& textos) {
    double xAntes = 0, fAntes = std::nan("");
    for (const std::string& t : textos) {
      if (parado_) return;
      const double x = Val(t).valor(), f = diferencia(t);
      if (cerca(f))
        anotar({t, f + buscado_}, cerca(fAntes));
      else if (!cerca(fAntes) && fAntes * f < 0)
        partir(xAntes, x, fAntes);
      xAntes = x;
      fAntes = f;
    }
  }

  /// Between the neighbours of the nearest design, where the result may turn before it takes the value.
  void afinar(const std::vector<std::string>& textos) {
    const auto it = std::ranges::find(textos, cercano_.texto);
    if (it == textos.end() || textos.size() < 2) return;
    const double a = Val(it == textos.begin() ? *it : *(it - 1)).valor();
    const double b = Val(it + 1 == textos.end() ? *it : *(it + 1)).valor();
    constexpr int partes = 20;
    std::vector<std::string> finos;
    for (int i = 0; i <= partes; ++i) finos.push_back(texto(Real(a + (b - a) * i / partes)));
    recorrer(finos);
  }

  std::vector<Hallado> soluciones;
  const Hallado& cercano() const { return cercano_; }
  bool parado() const { return parado_; }

 private:
  bool cerca(double f) const { return std::fabs(f) <= tolerancia_; }

  /// The result less the wanted value; no number where the design has none.
  double diferencia(const std::string& t) {
    const auto [it, nuevo] = hechos_.try_emplace(t, std::nan(""));
    if (!nuevo) return it->second;
    const Puesto puesto{&entrada_, t};
    const double f = banco_.calcular({&puesto, 1}).celdas[columna_].numero - buscado_;
    it->second = f;
    if (!std::isnan(f) && !(std::fabs(cercano_.resultado - buscado_) <= std::fabs(f))) cercano_ = {t, f + buscado_};
    parado_ = parado_ || (sigue_ && !sigue_());
    return f;
  }

  /// Neighbouring designs that all have the value are one solution: that which comes nearest to it.
  void anotar(Hallado h, bool sigueAlAnterior) {
    if (!sigueAlAnterior || soluciones.empty()) return soluciones.push_back(std::move(h));
    if (std::fabs(h.resultado - buscado_) < std::fabs(soluciones.back().resultado - buscado_))
      soluciones.back() = std::move(h);
  }

  void partir(double a, double b, double fa) {
    for (int i = 0; i < 50 && !parado_; ++i) {
      const std::string t = texto(Real((a + b) / 2));
      const double x = Val(t).valor(), f = diferencia(t);
      if (std::isnan(f) || !(x > a && x < b)) return;  // it passes the value in a leap, or has no design there
      if (cerca(f)) return redondear(x, f);
      (f * fa > 0 ? a : b) = x;
    }
  }

  /// The fewest decimals with which the design still has the value.
  void redondear(double x, double f) {
    for (int decimales = 0; decimales < 8 && !parado_; ++decimales) {
      const std::string t = texto(Round(Real(x), decimales));
      if (std::fabs(Val(t).valor() - x) > 0.01 * std::fabs(x)) continue;
      if (const double g = diferencia(t); cerca(g)) return soluciones.push_back({t, g + buscado_});
    }
    soluciones.push_back({texto(Real(x)), f + buscado_});
  }

  const Entrada& entrada_;
  std::size_t columna_;
  double buscado_, tolerancia_;
  const std::function<bool()>& sigue_;
  Banco banco_;
  std::map<std::string, double> hechos_;
  Hallado cercano_{{}, std::nan("")};
  bool parado_ = false;
};

std::string frase(const Columna& c, const Entrada& e, const Busqueda& b, const std::string& buscado) {
  const auto con = [&](const Hallado& h) { return "con " + e.rotulo + " = " + conUnidad(h.texto, e.unidad); };
  const auto toma = [&](const Hallado& h) { return conUnidad(textoDe(c, {h.resultado, {}}), c.unidad); };
  if (!b.soluciones.empty()) return c.nombre + " = " + toma(b.soluciones.front()) + " " + con(b.soluciones.front());
  const std::string no = b.detenida
                             ? "La búsqueda de " + c.nombre + " = " + conUnidad(buscado, c.unidad) +
                                   " se detuvo antes de recorrer esos límites: pruebe con un paso mayor. "
                             : c.nombre + " no toma el valor " + conUnidad(buscado, c.unidad) + " entre esos límites. ";
  if (b.cercano.texto.empty())
    return no + (b.detenida ? "Ningún diseño recorrido tiene ese resultado" : "Ningún diseño tiene ese resultado");
  return no + (b.detenida ? "De lo recorrido, lo más cercano es " : "Lo más cercano es ") + toma(b.cercano) + ", " +
         con(b.cercano);
}

}  // namespace

Busqueda buscar(const Diseno& base, const Entrada& entrada, const Serie& serie, std::size_t columna,
                const std::string& buscado, const std::function<bool()>& sigue) {
  const Columna& c = columnas(*base.ficha).at(columna);
  const std::string pedido = conPuntoDecimal(buscado);
  if (!c.numerica || !entrada.esNumero()) throw FalloEstudio("Solo se buscan números");
  if (!esNumero(pedido)) throw FalloEstudio("El valor buscado no es un número: " + buscado);
  double meta = std::nan("");
  pasandoFallos([&] { meta = Val(pedido).valor(); });
  if (std::isnan(meta)) throw FalloEstudio("El valor buscado es demasiado grande: " + buscado);
  const std::vector<std::string> textos = valores(entrada, serie);
  Buscador b(base, entrada, columna, meta, sigue);
  b.recorrer(textos);
  if (b.soluciones.empty() && !b.parado()) b.afinar(textos);
  Busqueda r{std::move(b.soluciones), b.cercano(), b.parado(), {}};
  r.frase = frase(c, entrada, r, pedido);
  return r;
}

}  // namespace calvento
