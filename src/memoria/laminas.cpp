#include "memoria/laminas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

#include "dibujo/form17.h"
#include "dibujo/form3.h"
#include "dibujo/form4.h"
#include "dibujo/ventana_secciones.h"
#include "plataforma/medidas.h"

namespace calvento {

namespace {

constexpr double mmPorPixel = 0.25;  ///< of the drawings on their sheets

/// The rectangle that a text covers on paper, in mm from the upper left corner.
struct Marco {
  std::array<Punto, 4> esquinas;

  /// Whether the two have a common point: no side of either one separates them.
  bool toca(const Marco& otro) const { return !separa(*this, otro) && !separa(otro, *this); }

 private:
  static bool separa(const Marco& a, const Marco& b) {
    for (std::size_t i = 0; i < 2; ++i) {
      const double nx = a.esquinas[i + 1].x - a.esquinas[i].x, ny = a.esquinas[i + 1].y - a.esquinas[i].y;
      const auto extremos = [&](const Marco& m) {
        std::pair<double, double> e{1e300, -1e300};
        for (const Punto& p : m.esquinas) {
          const double t = p.x * nx + p.y * ny;
          e = {std::min(e.first, t), std::max(e.second, t)};
        }
        return e;
      };
      const auto [a1, a2] = extremos(a);
      const auto [b1, b2] = extremos(b);
      if (a2 <= b1 || b2 <= a1) return true;
    }
    return false;
  }
};

/// A text on its way to paper.
class Rotulo {
 public:
  Rotulo(const Lienzo& l, const PrimTexto& t, double altoMm)
      : escala_(l.escala()),
        altoMm_(altoMm),
        anchoMm_(altoMm * l.anchoPixeles() / l.altoPixeles()),
        cuerpo_(cuerpoEnPapel(l, t, altoMm)),
        giro_(t.letra.angulo * std::acos(-1.0) / 180) {
    // the table of widths is of letters of 8 points
    constexpr double cuerpoDeTabla = 8.0 * twipsPorPunto;
    largo_ = anchoTexto(t.texto) / cuerpoDeTabla;
    en_ = {(t.en.x - escala_.izquierda) / escala_.ancho * anchoMm_, (t.en.y - escala_.arriba) / escala_.alto * altoMm_};
  }
  double cuerpo() const { return cuerpo_; }
  /// Grows about the middle of its rectangle.
  void crecer(double cuerpo) {
    const double d = (cuerpo_ - cuerpo) / 2;
    mover(d * largo_, d * celdaLetra);
    cuerpo_ = cuerpo;
  }
  /// Along its line and across it, downward.
  void mover(double a, double b) {
    en_.x += a * std::cos(giro_) + b * std::sin(giro_);
    en_.y += -a * std::sin(giro_) + b * std::cos(giro_);
  }
  Marco marco() const {
    // a little less than the whole cell: letters leave room above and below
    const double L = largo_ * cuerpo_, H = 0.8 * cuerpo_, sobra = 0.15 * cuerpo_;
    const auto punto = [&](double a, double b) {
      return Punto{en_.x + a * std::cos(giro_) + b * std::sin(giro_),
                   en_.y - a * std::sin(giro_) + b * std::cos(giro_)};
    };
    return {{punto(0, sobra), punto(L, sobra), punto(L, sobra + H), punto(0, sobra + H)}};
  }
  bool enPapel() const {
    const Marco m = marco();
    return std::ranges::all_of(m.esquinas, [this](const Punto& p) {
      return p.x >= -0.5 && p.x <= anchoMm_ + 0.5 && p.y >= -0.5 && p.y <= altoMm_ + 0.5;
    });
  }
  Punto enMundo() const {
    return {escala_.izquierda + en_.x / anchoMm_ * escala_.ancho, escala_.arriba + en_.y / altoMm_ * escala_.alto};
  }

 private:
  EscalaLienzo escala_;
  double altoMm_, anchoMm_, cuerpo_, giro_;
  double largo_ = 0;  ///< in parts of the size of the letters
  Punto en_;
};

Figura lamina(MarcoDibujo& dibujo, const char* vista, std::string titulo) {
  dibujo.GRAF_Resize(static_cast<int>(ladoLargoLamina / mmPorPixel), static_cast<int>(ladoCortoLamina / mmPorPixel));
  dibujo.ver(vista);
  Figura f{std::move(titulo), dibujo.GRAF.lienzo, ladoLargoLamina, ladoCortoLamina, true, true};
  hacerLegible(std::get<Lienzo>(f.dibujo), f.altoMm);
  return f;
}

std::unique_ptr<MarcoDibujo> dibujoDe(const Diseno& d, MesaInforme& m) {
  if (d.rapida()) return std::make_unique<Form3>(m.estado, m.form2, m.navegador);
  if (d.inclinada()) return std::make_unique<Form4>(m.estado, m.form2, m.navegador);
  return std::make_unique<Form17>(m.estado, m.form25, m.navegador);
}

}  // namespace

double cuerpoEnPapel(const Lienzo& l, const PrimTexto& t, double altoMm) {
  constexpr double pixelesPorPunto = static_cast<double>(twipsPorPunto) / twipsPorPixel;
  return t.letra.puntos * pixelesPorPunto * altoMm / l.altoReferencia();
}

int hacerLegible(Lienzo& lienzo, double altoMm) {
  std::vector<Marco> puestos;
  int sacados = 0;
  const auto poner = [&](PrimTexto& t) {
    Rotulo r(lienzo, t, altoMm);
    if (!r.enPapel()) return false;
    const double antes = r.cuerpo();
    if (antes < menorCuerpoMm) r.crecer(menorCuerpoMm);
    // where it stands, then off its line, then along it
    static constexpr std::array<std::array<double, 2>, 9> intentos = {
        {{0, 0}, {0, -0.5}, {0, 0.5}, {0, -1}, {0, 1}, {-1.5, 0}, {1.5, 0}, {0, -1.8}, {0, 1.8}}};
    for (const auto& [a, b] : intentos) {
      Rotulo movido = r;
      movido.mover(a * r.cuerpo(), b * r.cuerpo());
      const Marco m = movido.marco();
      if (!movido.enPapel() || std::ranges::any_of(puestos, [&](const Marco& otro) { return otro.toca(m); })) continue;
      puestos.push_back(m);
      t.en = movido.enMundo();
      t.letra.puntos *= r.cuerpo() / antes;
      return true;
    }
    ++sacados;
    return false;
  };
  // titles first: they must not fall out
  for (const bool titulos : {true, false}) {
    lienzo.cambiarTextos([&](PrimTexto& t) {
      const bool titulo = t.letra.negrita || t.letra.subrayada;
      return titulo != titulos || poner(t);
    });
  }
  return sacados;
}

std::vector<Figura> laminas(const Diseno& d, MesaInforme& m) {
  std::vector<Figura> todas;
  const auto dibujo = dibujoDe(d, m);
  static constexpr std::array<std::pair<const char*, const char*>, 4> vistas = {
      {{"vistaTodo", "Perfil longitudinal y planta"},
       {"vistaControl", "Entrada y sección de control"},
       {"vistaTanque", "Trayectoria y poza disipadora"},
       {"vistaPlanta", "Planta de la poza"}}};
  const auto las = dibujo->vistas();
  for (const auto& [vista, titulo] : vistas)
    if (std::ranges::find(las, vista) != las.end()) todas.push_back(lamina(*dibujo, vista, titulo));
  return todas;
}

std::vector<Figura> secciones(const Diseno& d, MesaInforme& m) {
  std::vector<Figura> todas;
  std::unique_ptr<VentanaSecciones> v;
  if (d.rapida())
    v = std::make_unique<Form19>(m.estado, m.navegador);
  else if (d.inclinada())
    v = std::make_unique<Form20>(m.estado, m.navegador);
  else
    v = std::make_unique<Form24>(m.estado, m.navegador);
  for (std::size_t i = 0; i < v->Combo1.List.valor().size(); ++i) {
    if (!pasandoFallos([&] {
          v->Combo1.ListIndex = static_cast<int>(i);
          v->DIBUJASECCION();
        }))
      continue;
    Figura f{"Sección transversal: " + v->Combo1.List.valor()[i], v->P.lienzo, 120, 0};
    f.altoMm = f.anchoMm * v->P.lienzo.altoPixeles() / v->P.lienzo.anchoPixeles();
    hacerLegible(std::get<Lienzo>(f.dibujo), f.altoMm);
    todas.push_back(std::move(f));
  }
  return todas;
}

}  // namespace calvento
