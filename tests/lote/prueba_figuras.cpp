// The drawing of each worked design against points and labels that were worked out apart from the program.
#include <algorithm>

#include "dibujo/marco_dibujo.h"
#include "lote/figura.h"

namespace calvento::lote {
namespace {

/// What was painted, by its kind. A dimension line may be painted as one stroke or as several.
struct Pintado {
  std::vector<std::vector<Punto>> poligonos, polilineas, lineas, cajas;
  std::vector<PrimTexto> textos;

  explicit Pintado(const Lienzo& lienzo) {
    for (const Primitiva& p : lienzo.primitivas()) {
      if (const auto* l = std::get_if<PrimLinea>(&p)) lineas.push_back({l->a, l->b});
      if (const auto* c = std::get_if<PrimCaja>(&p)) cajas.push_back({c->a, c->b});
      if (const auto* g = std::get_if<PrimPoligono>(&p)) poligonos.push_back(g->puntos);
      if (const auto* t = std::get_if<PrimTexto>(&p)) textos.push_back(*t);
      if (const auto* l = std::get_if<PrimPolilinea>(&p)) {
        polilineas.push_back(l->puntos);
        for (std::size_t i = 1; i < l->puntos.size(); ++i) lineas.push_back({l->puntos[i - 1], l->puntos[i]});
      }
    }
  }
  std::vector<std::vector<Punto>>& deClase(const std::string& clase) {
    return clase == "poligono" ? poligonos : clase == "polilinea" ? polilineas : clase == "linea" ? lineas : cajas;
  }
};

bool esElTexto(const PrimTexto& t, const Json& debe) {
  return mismoTexto(t.texto, debe[2].get<std::string>()) && (debe.size() < 4 || cerca(t.en, debe[3])) &&
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
    const std::string rutina = debe[0], clase = debe[1];
    if (clase == "texto") {
      const auto t = std::find_if(pintado.textos.begin(), pintado.textos.end(),
                                  [&](const PrimTexto& p) { return esElTexto(p, debe); });
      EXPECT_TRUE(t != pintado.textos.end()) << "expected " << debe << ", found" << dondeEsta(pintado.textos, debe[2]);
      if (t != pintado.textos.end()) pintado.textos.erase(t);
      continue;
    }
    quitar(pintado.deClase(clase), debe, debe[2], 0, clase != "linea");
  }
  // whatever fills an area was expected
  EXPECT_TRUE(pintado.poligonos.empty()) << pintado.poligonos.size() << " outlines more than expected";
  EXPECT_TRUE(pintado.cajas.size() <= 4) << pintado.cajas.size() << " boxes left, four of them the legend's";
}

INSTANTIATE_TEST_SUITE_P(Casos, Figura, testing::ValuesIn(casosCon("figura")), nombreDeCaso);

}  // namespace
}  // namespace calvento::lote
