// The drawing of each worked design against points and labels that were worked out apart from the program.
#include <algorithm>

#include "apoyo/tablas.h"
#include "dibujo/marco_dibujo.h"
#include "lote/figura.h"

namespace calvento::lote {
namespace {

/// What was painted: its kind, points, pen and filling. A dimension line may be painted as one stroke or as several.
struct Trazado {
  std::string clase, pluma;
  std::vector<Punto> puntos;
  bool hallado = false;
};

std::string pluma(const Pluma& p) { return std::to_string(p.color.valor) + " " + std::to_string(int(p.estilo)); }
std::string pluma(const Pluma& p, const Relleno& r) {
  return pluma(p) + " " + std::to_string(r.color.valor) + " " + std::to_string(int(r.estilo));
}

struct Pintado {
  std::vector<Trazado> trazados;
  std::vector<PrimTexto> textos;

  explicit Pintado(const Lienzo& lienzo) {
    for (const Primitiva& p : lienzo.primitivas()) {
      if (const auto* l = std::get_if<PrimLinea>(&p)) trazados.push_back({"linea", pluma(l->pluma), {l->a, l->b}});
      if (const auto* c = std::get_if<PrimCaja>(&p))
        trazados.push_back({"caja", pluma(c->pluma, c->relleno), {c->a, c->b}});
      if (const auto* g = std::get_if<PrimPoligono>(&p))
        trazados.push_back({"poligono", pluma(g->pluma, g->relleno), g->puntos});
      if (const auto* t = std::get_if<PrimTexto>(&p)) textos.push_back(*t);
      if (const auto* l = std::get_if<PrimPolilinea>(&p)) {
        trazados.push_back({"polilinea", pluma(l->pluma), l->puntos});
        for (std::size_t i = 1; i < l->puntos.size(); ++i)
          trazados.push_back({"linea", pluma(l->pluma), {l->puntos[i - 1], l->puntos[i]}, true});
      }
    }
  }
  /// Marks what was painted so, with one of the pens of the routine; a failure where there is none.
  void marcar(const Json& debe) {
    std::string vistas;
    for (Trazado& t : trazados) {
      if (t.clase != debe[1] || (t.hallado && t.clase != "linea") || !sonLosPuntos(t.puntos, debe[2])) continue;
      for (const FilaTabla& f : plumas)
        if (f[0] == debe[0] && f[1] == t.clase && f[2] == t.pluma) return void(t.hallado = true);
      vistas += " with the pen " + t.pluma;
    }
    ADD_FAILURE() << "expected " << debe << ", found" << (vistas.empty() ? " nothing like it" : vistas);
  }
  /// Of a kind, those that were not expected, nor stand where one was.
  std::ptrdiff_t sobran(const std::string& clase) const {
    return std::ranges::count_if(trazados, [&](const Trazado& t) {
      return t.clase == clase && std::ranges::none_of(trazados, [&](const Trazado& otro) {
               return otro.hallado && otro.clase == clase && otro.puntos == t.puntos;
             });
    });
  }
  const std::vector<FilaTabla> plumas = tabla("plumas.txt", "plumas");
};

bool esElTexto(const PrimTexto& t, const Json& debe) {
  return mismoTexto(t.texto, debe[2].get<std::string>()) && t.color == color::azulClaro && t.letra.familia == "Arial" &&
         (debe.size() < 4 || cerca(t.en, debe[3])) &&
         (debe.size() < 5 || std::fabs(t.letra.angulo - debe[4].get<double>()) < 0.06);
}

std::string dondeEsta(const std::vector<PrimTexto>& textos, const std::string& texto) {
  std::string s;
  for (const PrimTexto& t : textos)
    if (mismoTexto(t.texto, texto))
      s +=
          " at " + std::to_string(t.en.x) + ", " + std::to_string(t.en.y) + " turned " + std::to_string(t.letra.angulo);
  return s.empty() ? " nothing" : s;
}

class Figura : public testing::TestWithParam<std::string> {};

TEST_P(Figura, ShowsWhatWasWorkedOut) {
  Caso caso(GetParam());
  auto* ventana = caso.sesion().aplicacion().cargar<MarcoDibujo>(caso.sesion().estructura()->ventanaDibujo);
  ASSERT_NE(ventana, nullptr);
  ASSERT_TRUE(ventana->ver("vistaTodo"));
  Pintado pintado(ventana->GRAF.lienzo);
  for (const Json& debe : caso.deben["figura"]) {
    if (debe[1] == "texto") {
      const auto t = std::find_if(pintado.textos.begin(), pintado.textos.end(),
                                  [&](const PrimTexto& p) { return esElTexto(p, debe); });
      EXPECT_TRUE(t != pintado.textos.end()) << "expected " << debe << ", found" << dondeEsta(pintado.textos, debe[2]);
      if (t != pintado.textos.end()) pintado.textos.erase(t);
      continue;
    }
    pintado.marcar(debe);
  }
  EXPECT_EQ(pintado.sobran("poligono"), 0) << "whatever fills an area was expected";
  EXPECT_LE(pintado.sobran("caja"), 4) << "the legend's";
  // the line under the legend's title; the distance of obstacles
  EXPECT_LE(pintado.sobran("linea"), caso.deben["estado"].value("tipoTanque", 0.0) == 0 ? 6 : 1);
}

INSTANTIATE_TEST_SUITE_P(Casos, Figura, testing::ValuesIn(casosCon("figura")), nombreDeCaso);

}  // namespace
}  // namespace calvento::lote
