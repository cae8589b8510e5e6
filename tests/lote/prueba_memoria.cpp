// The design report as a document: what can be told without a page.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>

#include "corrida.h"
#include "lote/sesion.h"
#include "memoria/documento.h"
#include "memoria/hojas_bloques.h"
#include "memoria/laminas.h"

namespace calvento::lote {
namespace {

namespace fs = std::filesystem;

template <class Accion>
void porCadaEjemplo(Accion&& accion) {
  for (const auto& e : fs::directory_iterator(fs::path(RAIZ_PROYECTO) / "ejemplos")) {
    if (e.path().extension() == ".md") continue;
    SCOPED_TRACE(e.path());
    const Sesion sesion(Opciones{}, e.path().string());
    const Diseno d = sesion.diseno();
    const TablasInforme tablas = tablasInforme(d);
    accion(d, redactar(d, comprobar(d, tablas.verificacion, tablas.estabilidad), tablas, {}));
  }
}

TEST(Memoria, NoTextOfASheetIsTooSmallNorLeavesIt) {
  int laminasVistas = 0;
  porCadaEjemplo([&](const Diseno&, const Documento& doc) {
    for (const Capitulo& c : doc.capitulos)
      for (const Apartado& a : c.apartados)
        for (const Bloque& b : a.bloques) {
          const auto* f = std::get_if<Figura>(&b);
          if (f == nullptr || !std::holds_alternative<Lienzo>(f->dibujo)) continue;
          const auto& lienzo = std::get<Lienzo>(f->dibujo);
          int textos = 0;
          for (const Primitiva& p : lienzo.primitivas())
            if (const auto* t = std::get_if<PrimTexto>(&p)) {
              // capital letters are 0.716 of the letters' size
              EXPECT_GE(0.716 * cuerpoEnPapel(lienzo, *t, f->altoMm), menorLetraMm) << f->titulo << ": " << t->texto;
              ++textos;
            }
          laminasVistas += f->lamina;
          EXPECT_GE(textos, 2) << f->titulo;
        }
  });
  EXPECT_GE(laminasVistas, 8 * 4 + 8 * 2);
}

TEST(Memoria, TheProfileGoesFromCanalToCanalThroughTheBasin) {
  int graficos = 0;
  porCadaEjemplo([&](const Diseno& diseno, const Documento&) {
    const Figura figura = graficoPerfil(diseno);
    std::vector<std::vector<Punto>> lineas;  // energy, water, bed; then those of the legend
    for (const Primitiva& p : std::get<Lienzo>(figura.dibujo).primitivas())
      if (const auto* l = std::get_if<PrimPolilinea>(&p); l != nullptr && l->puntos.size() > 2)
        lineas.push_back(l->puntos);
    ASSERT_EQ(lineas.size(), 3U);
    const DesignState& e = diseno.e;
    const auto num = [](Single x) { return static_cast<double>(x.valor()); };
    // each line of the grid has its station or its elevation written at it
    const auto& todo = std::get<Lienzo>(figura.dibujo).primitivas();
    int rayas[2] = {};
    for (const Primitiva& p : todo)
      if (const auto* l = std::get_if<PrimLinea>(&p)) {
        ++rayas[l->a.x == l->b.x];
        const double cifra = l->a.x == l->b.x ? l->a.x + num(e.progresivaInicio) : l->a.y;
        EXPECT_TRUE(std::ranges::any_of(todo, [&](const Primitiva& q) {
          std::string t = std::holds_alternative<PrimTexto>(q) ? std::get<PrimTexto>(q).texto : "";
          std::erase(t, '+');
          return !t.empty() && std::fabs(std::atof(t.c_str()) - cifra) < 0.006;
        })) << cifra;
      }
    EXPECT_TRUE(rayas[0] > 2 && rayas[1] > 2);
    const double y = num(e.ynAbajo), abajo = num(e.cotaAbajo);
    const double v = num(e.Q) / (y * (num(e.bAbajo) + num(e.zAbajo) * y));
    EXPECT_NEAR(lineas[0].back().y, abajo + y + v * v / 19.62, 2e-3);
    EXPECT_NEAR(lineas[1].back().y, abajo + y, 1e-6);
    EXPECT_NEAR(lineas[2].back().y, abajo, 1e-6);
    const auto masBajo = std::ranges::min(lineas[2], {}, &Punto::y);
    EXPECT_NEAR(masBajo.y, num(e.cotaPoza), 1e-6);
    EXPECT_EQ(lineas[1].front().x, lineas[2].front().x);
    EXPECT_NEAR(lineas[1].front().y - lineas[2].front().y,
                num(diseno.vertical() ? e.perfilCaida.back().tirante : e.ynArriba), 1e-6);
    for (const auto& l : lineas) EXPECT_TRUE(std::ranges::is_sorted(l, {}, &Punto::x));
    for (const FilaPerfil& f : e.perfil)
      EXPECT_TRUE(!diseno.rapida() || std::ranges::any_of(lineas[1], [&](const Punto& p) {
        return std::hypot(p.x - num(f.x), p.y - num(f.cota) - num(f.tirante)) < 1e-6;
      }));
    const auto sobre = [&](double tirante) {  // the surface's point over the basin's floor
      return std::ranges::find_if(lineas[1],
                                  [&](const Punto& p) { return std::abs(p.y - num(e.cotaPoza) - tirante) < 1e-6; });
    };
    const auto a = sobre(num(e.y1)), b = sobre(num(e.y2));
    ASSERT_TRUE(a != lineas[1].end() && b != lineas[1].end());
    if (!diseno.vertical()) {
      EXPECT_NEAR(b->x - a->x, num(e.longPoza), 1e-4);
    }
    ++graficos;
  });
  EXPECT_GE(graficos, 17);
}

TEST(Memoria, EnlargedTextsDoNotLieOnEachOther) {
  Lienzo l(400, 200);
  l.Scale(0, 100, 200, 0);
  l.Font.puntos = 4;
  for (int i = 0; i < 12; ++i) {
    l.CurrentX = 50 + i;
    l.CurrentY = 50;
    l.Print("1234.567");
  }
  const int sacados = hacerLegible(l, 50);
  std::vector<Punto> quedan;
  for (const Primitiva& p : l.primitivas()) quedan.push_back(std::get<PrimTexto>(p).en);
  EXPECT_GE(quedan.size(), 3U);
  EXPECT_EQ(quedan.size() + static_cast<std::size_t>(sacados), 12U);
  // on a paper of 50 mm height: letters of 2.55 mm, eight of them about 11 mm long
  for (std::size_t i = 0; i < quedan.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_TRUE(std::abs(quedan[i].x - quedan[j].x) / 2 > 10 || std::abs(quedan[i].y - quedan[j].y) / 2 > 2);
}

TEST(Memoria, RepeatsTheDesignAndNotTheWindowsAsTheyStandNow) {
  CarpetaPrueba carpeta;
  const std::string archivo = carpeta.escribir("canal.cvr", ProyectoRapida().contenido());
  Sesion sesion(Opciones{}, archivo);
  const Diseno d = sesion.diseno();
  sesion.ventana()->buscar<TextBox>("Text5")->Text = "999";
  sesion.aplicacion().estado.y1 = 777;
  EXPECT_EQ(d.campo("Text5"), "1.5");
  const TablasInforme tablas = tablasInforme(d);
  EXPECT_EQ(contar(comprobar(d, tablas.verificacion, tablas.estabilidad)).cumplen,
            contar(sesion.comprobaciones()).cumplen);
}

TEST(Memoria, SheetsOfBlocksNameTheLabelsOfTheirWindows) {
  for (int tipo = 2; tipo <= 5; ++tipo) {
    const auto hoja = hojaDeBloques(tipo);
    ASSERT_TRUE(hoja);
    std::ifstream ui(fs::path(RAIZ_PROYECTO) / "src/poza" / (std::string(hoja->ventana) + ".ui"));
    const std::string diseno(std::istreambuf_iterator<char>(ui), {});
    EXPECT_NE(diseno.find(std::string(hoja->boceto) + ".pic"), std::string::npos);
    for (const RotuloHoja& r : hoja->rotulos) {
      if (r.control.empty()) continue;
      const auto en = diseno.find("name=\"" + std::string(r.control) + "\"");
      ASSERT_NE(en, std::string::npos) << r.control;
      const std::string widget = diseno.substr(en, diseno.find("</widget>", en) - en);
      EXPECT_NE(widget.find("<x>" + std::to_string(r.x) + "</x>"), std::string::npos) << r.control;
      EXPECT_NE(widget.find("<y>" + std::to_string(r.y) + "</y>"), std::string::npos) << r.control;
    }
  }
}

}  // namespace
}  // namespace calvento::lote
