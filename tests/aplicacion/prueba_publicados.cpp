// Published figures, tests/tablas/publicados.txt, against the program's; docs/validacion.md shows both.
#include <cmath>
#include <map>

#include "apoyo/mesas.h"
#include "apoyo/tablas.h"
#include "hidraulica/flujo.h"
#include "hidraulica/salto.h"

namespace calvento {
namespace {

/// "Q=126 b=6.1" as numbers by their names.
using Entrada = std::map<std::string, double>;
/// All figures that an input gives, by their names.
using Cifras = std::map<std::string, Real>;

Cifras canal(const Entrada& d) {
  const Real Q = d.at("Q");
  const Seccion seccion{d.at("b"), d.at("z")};
  const Real yc = YCRITICO(Q, seccion.b, seccion.z);
  Cifras c{{"yc", yc}};
  if (!d.contains("n")) return c;
  const Flujo critico = flujoEn(seccion, Q, yc);
  c["Sc"] = pendienteFriccion(d.at("n"), critico.velocidad, critico.radio);
  if (!d.contains("S")) return c;
  const Real yn = c["yn"] = YNORMAL(Q, seccion.b, seccion.z, d.at("n"), d.at("S"));
  c["v"] = flujoEn(seccion, Q, yn).velocidad;
  c["F"] = seccion.froude(Q, yn);
  return c;
}

Cifras salto(const Entrada& d) {
  DesignState estado;
  estado.Q = d.at("Q");
  estado.y1 = d.at("y1");
  const Salto s = calcularSalto(estado, d.at("z"), d.at("b"));
  return {{"y2", estado.y2}, {"F1", s.F1}, {"F2", s.F2}, {"E1", s.E1}, {"E2", s.E2}};
}

/// Fields of a window from those of an input.
template <class M>
void ponerDatos(M& m, const Entrada& d, std::initializer_list<std::pair<const char*, const char*>> cuales) {
  for (const auto& [campo, dato] : cuales)
    if (d.contains(dato)) m.poner({{campo, texto(Real(d.at(dato)))}});
}

Cifras control(const Entrada& d) {
  MesaRapida m;
  ponerDatos(m, d, {{"Text5", "Q"}, {"Text6", "bArriba"}, {"Text7", "zArriba"}, {"Text8", "nArriba"}});
  ponerDatos(m, d, {{"Text9", "sArriba"}, {"Text10", "bRapida"}, {"Text11", "zRapida"}});
  const DesignState& e = m.estado;
  const Real vc = e.Q / Seccion{d.at("bRapida"), d.at("zRapida")}.area(e.ycControl);
  return {{"yn", e.ynArriba},
          {"E", e.ynArriba + e.vArriba * e.vArriba / dosG},
          {"yc", e.ycControl},
          {"Ec", e.ycControl + vc * vc / dosG},
          {"sobreelevación", e.sobreelevacion}};
}

Cifras inclinada(const Entrada& d) {
  MesaInclinadaDe<DialogosLibres> m;
  m.poner(datosDe("inclinada"));
  ponerDatos(m, d, {{"Text5", "Q"}, {"Text6", "b"}, {"Text7", "z"}, {"Text8", "n"}, {"Text9", "S"}});
  m.f.Command6.Click();
  const Real ancho = Val(m.f.Text23.Text);
  ponerDatos(m, d, {{"Text23", "B"}});
  if (d.contains("bordo")) m.parametros.Text5.Text = texto(Real(d.at("bordo")));
  m.f.Command3.Click();
  return {{"ancho", ancho}, {"muro", m.estado.hArriba}, {"yc", m.estado.ycControl}};
}

Cifras vertical(const Entrada& d) {
  MesaVerticalDe<DialogosLibres> m;
  m.poner(datosDe("vertical"));
  ponerDatos(m, d, {{"Text5", "Q"}, {"Text23", "B"}, {"Text2", "h"}});
  m.f.Text4.Text = "0";
  m.f.Command3.Click();
  const DesignState& e = m.estado;
  return {{"D", caidaLibre(d.at("h"), e.Q / e.bPozaCaida).D},
          {"Ld", e.longRapida - e.longPoza},
          {"ypared", e.yVert94},
          {"y1", e.y1},
          {"y2", e.y2},
          {"yc", e.ycControl}};
}

TEST(Publicados, AgreeAndStandInTheManual) {
  std::ifstream archivo(RAIZ_PROYECTO "/docs/validacion.md");
  const std::string pagina{std::istreambuf_iterator<char>(archivo), {}};
  const std::pair<const char*, Cifras (*)(const Entrada&)> temas[] = {
      {"canal", canal}, {"salto", salto}, {"control", control}, {"inclinada", inclinada}, {"vertical", vertical}};
  for (const auto& [tema, programa] : temas)
    porCadaFila("publicados.txt", tema, [&, calcular = programa](const FilaTabla& f) {
      Entrada entrada;
      for (const std::string& par : partido(f[1], ' '))
        entrada[par.substr(0, par.find('='))] = std::stod(par.substr(par.find('=') + 1));
      const std::string &publicado = f[3], &tolerancia = f[4];
      const std::size_t punto = publicado.find('.'),
                        decimales = punto == std::string::npos ? 0 : publicado.size() - punto - 1;
      const double admite = tolerancia.empty()          ? 0.5 * std::pow(10, -static_cast<double>(decimales))
                            : tolerancia.ends_with('%') ? std::stod(tolerancia) / 100 * std::fabs(f.num(3))
                                                        : std::stod(tolerancia);
      const Real nuestro = calcular(entrada).at(f[2]);
      EXPECT_NEAR(nuestro.valor(), f.num(3), admite);
      // the page for the reader shows what the program gives today
      const std::string renglon = "| " + f[0] + " | " + f[1] + " | " + f[2] + " | " + publicado + " | " +
                                  formato(nuestro, "0." + std::string(decimales + 1, '0')) + " |";
      EXPECT_NE(pagina.find(renglon), std::string::npos) << "docs/validacion.md lacks the row\n" << renglon;
    });
}

}  // namespace
}  // namespace calvento
