#include <algorithm>
#include <gtest/gtest.h>

#include "aplicacion/aplicacion.h"
#include "apoyo/mesa.h"
#include "apoyo/tablas.h"
#include "comun/numeros.h"
#include "dibujo/puntos.h"
#include "estudio/buscar.h"
#include "estudio/csv.h"
#include "estudio/curva.h"
#include "estudio/estudio.h"
#include "plataforma/medidas.h"
#include "plataforma/sin_pantalla.h"

namespace calvento {
namespace {

/// A program with an example open; whatever it says is written down.
struct Abierto {
  explicit Abierto(const std::string& ejemplo) {
    a.abrirProyecto(RAIZ_PROYECTO "/ejemplos/" + ejemplo);
    const std::string ventanaDatos = ejemplo.ends_with("cvr")   ? "Form10"
                                     : ejemplo.ends_with("cvi") ? "Form1"
                                                                : "Form16";
    ficha = fichaDe(ventanaDatos);
    datos = a.cargar<VentanaDatos>(ventanaDatos);
    parametros = a.cargar(ficha->parametros);
  }
  Diseno base() const { return {*ficha, *datos, *parametros, a.estado, {}}; }
  const Entrada& entrada(std::string_view nombre) const { return *entradaDe(*ficha, nombre); }
  double registro(std::string_view nombre) const {
    for (const CampoSingle& c : camposSingle())
      if (c.nombre == nombre) return double{(a.estado.*c.campo).valor()};
    return std::nan("");
  }
  std::vector<double> registroEntero() const {
    std::vector<double> todo;
    for (const CampoSingle& c : camposSingle()) todo.push_back(double{(a.estado.*c.campo).valor()});
    return todo;
  }

  DialogosLibres dialogos;
  SinPantalla pantalla;
  Aplicacion a{dialogos, pantalla};
  const Ficha* ficha;
  VentanaDatos* datos;
  Ventana* parametros;
};

struct Barrido {
  const char* ejemplo;
  std::vector<std::pair<const char*, std::vector<std::string>>> varia;
  std::size_t calculados;  ///< of all combinations
};

class EstudioDe : public testing::TestWithParam<Barrido> {};

// every row is the design that a program just started gives with these values, and the user's own has not moved
TEST_P(EstudioDe, EachRowIsTheDesignAlone) {
  const Barrido& b = GetParam();
  Abierto usuario(b.ejemplo);
  const std::vector<double> antes = usuario.registroEntero();
  const std::size_t cajas = usuario.dialogos.dichas.size();
  const TextosVentana textos = textosDe(*usuario.datos);
  std::vector<Variacion> variaciones;
  for (const auto& [nombre, valores] : b.varia) variaciones.push_back({&usuario.entrada(nombre), valores});
  Estudio estudio(usuario.base(), variaciones);
  estudio.completar();
  std::size_t calculados = 0;
  for (std::size_t f = 0; f < estudio.total(); ++f) {
    const Fila& fila = estudio.filas()[f];
    Abierto solo(b.ejemplo);
    usarDiseno(*solo.datos, *solo.parametros, estudio.puestos(f));
    ASSERT_EQ(fila.calculado, solo.datos->calculado()) << f << fila.motivo;
    EXPECT_EQ(fila.motivo.empty(), fila.calculado);
    calculados += fila.calculado;
    if (!fila.calculado) continue;
    const auto& lista = columnas(*solo.ficha);
    for (std::size_t c = 0; c < lista.size(); ++c)
      if (const double v = solo.registro(lista[c].clave); !std::isnan(v) && !lista[c].principal) {
        EXPECT_EQ(fila.celdas[c].numero, v) << f << lista[c].clave;
      }
    const Diseno d = solo.base();
    const TablasInforme t = tablasInforme(d);
    const CuentaComprobaciones cuenta = contar(comprobar(d, t.verificacion, t.estabilidad));
    EXPECT_EQ(fila.celdas[columnaDe(*solo.ficha, "noCumplidas")].numero, cuenta.total - cuenta.cumplen);
  }
  EXPECT_EQ(calculados, b.calculados);
  EXPECT_EQ(usuario.registroEntero(), antes);
  EXPECT_EQ(textosDe(*usuario.datos), textos);
  EXPECT_EQ(usuario.dialogos.dichas.size(), cajas);
}

INSTANTIATE_TEST_SUITE_P(
    Ejemplos, EstudioDe,
    testing::Values(Barrido{"04-tres-tramos.cvr", {{"bRapida", {"1.8", "0", "2.4"}}, {"Q", {"9", "12"}}}, 4},
                    Barrido{"01-rapida-un-tramo.cvr", {{"tipoTanque", {"1", "2", "3", "4", "5", "6"}}}, 6},
                    Barrido{"11-inclinada-rectangular.cvi", {{"tipoTanque", {"1", "3"}}, {"Q", {"1", "1.5"}}}, 4},
                    Barrido{"21-vertical-sin-obstaculos.cvv",
                            {{"tipoTanque", {"1", "0"}}, {"anguloTransicion", {"10", "25"}}},
                            4}));

TEST(Busqueda, FindsWhatTheDesignThenHas) {
  porCadaFila("estudio.txt", "busquedas", [](const FilaTabla& f) {
    const auto serie = partido(f[1], ' '), que = partido(f[2], ' ');
    Abierto p(f[0]);
    const Entrada& x = p.entrada(serie[0]);
    const Busqueda r = buscar(p.base(), x, {serie[1], serie[2], serie[3]}, columnaDe(*p.ficha, que[0]), que[1]);
    const auto dice = partido(f[3], '~');
    EXPECT_TRUE(r.frase.starts_with(dice[0]) && r.frase.ends_with(dice[1]) && !r.detenida) << r.frase;
    EXPECT_EQ(std::to_string(r.soluciones.size()), f[4]);
    for (const Hallado& h : r.soluciones.empty() ? std::vector{r.cercano} : r.soluciones) {
      Abierto otro(f[0]);
      usarDiseno(*otro.datos, *otro.parametros, std::vector{Puesto{&x, h.texto}});
      EXPECT_TRUE(otro.registro(que[0]) == h.resultado && h.texto.size() < 7) << h.texto << " needs no more figures";
    }
  });
}

TEST(Busqueda, StopsWhenToldAndSearchesNumbersOnly) {
  Abierto p("01-rapida-un-tramo.cvr");
  int veces = 0;
  const auto busca = [&](const char* clave, const char* meta) {
    return buscar(p.base(), p.entrada("bRapida"), {"1", "2", "0.1"}, columnaDe(*p.ficha, clave), meta,
                  [&] { return ++veces < 3; });
  };
  const Busqueda media = busca("fr1", "8.3");
  EXPECT_TRUE(veces == 3 && media.detenida && media.frase.find("no toma") == std::string::npos) << "others have it";
  for (const auto& [clave, meta] : {std::pair{"y1", ""}, {"y1", "abc"}, {"y1", "1e999"}, {"tiposFactibles", "1"}})
    EXPECT_THROW(busca(clave, meta), FalloEstudio) << meta;
}

TEST(Serie, LimitsAndSteps) {
  const Ficha& f = *fichaDe("Form10");
  const Entrada &b = *entradaDe(f, "bRapida"), &Q = *entradaDe(f, "Q");
  EXPECT_EQ(valores(b, {"1", "1,4", "0.1"}), (std::vector<std::string>{"1", "1.1", "1.2", "1.3", "1.4"}));
  EXPECT_EQ(valores(b, {"1", "1.35", "0.1"}).back(), "1.3");
  EXPECT_EQ(valores(b, {"2", "2", ""}), std::vector<std::string>{"2"});
  EXPECT_EQ(valores(b, {"0", "999.9", "0.1"}).size(), maximoDisenos);
  struct Caso {
    const Entrada& entrada;
    Serie serie;
    const char* dicho;
  };
  for (const Caso& c : {Caso{b, {"1", "2", "0"}, "paso debe ser mayor"},
                        {b, {"1", "2", "-1"}, "paso debe ser mayor"},
                        {b, {"2", "1", "0.1"}, "es menor"},
                        {b, {"", "2", "1"}, "Falta el valor «desde»"},
                        {b, {"1", " ", "1"}, "Falta el valor «hasta»"},
                        {b, {"1", "2", ""}, "Falta el valor «paso»"},
                        {b, {"uno", "2", "1"}, "no es un número: uno"},
                        {b, {"1", "1e300", "1"}, "no es un número"},
                        {b, {"0", "1000", "0.1"}, "más de 10000"},
                        {b, {"1", "2", "1e-300"}, "más de 10000"},
                        {b, {"1e20", "1.0000000000000001e20", "0.001"}, ""},
                        {Q, {"0", "2", "1"}, "mayor que 0"},
                        {b, {"-1", "2", "1"}, "no puede ser negativo"}}) {
    try {
      EXPECT_LE(valores(c.entrada, c.serie).size(), *c.dicho == 0 ? 1u : 0u) << c.serie.desde << " " << c.dicho;
    } catch (const FalloEstudio& fallo) {
      EXPECT_NE(std::string(fallo.what()).find(c.dicho), std::string::npos) << fallo.what();
    }
  }
  for (const Entrada& e : entradas(f)) {
    if (!e.esNumero()) continue;
    for (const char* t : {"2.13", "0.00055", "0", "", "abc", "-3", "2500", "10"}) {
      const std::vector<std::string> v = valores(e, serieAlrededor(e, t));
      EXPECT_TRUE(v.size() >= 3 && v.size() <= 30) << e.nombre << t;
      if (Val(t) > 0 && e.nombre != "numTramos") {
        EXPECT_NE(std::ranges::find(v, texto(Val(t))), v.end()) << e.nombre << t;
      }
    }
  }
}

TEST(Estudio, RefusesWhatIsNoStudySortsAndIsReadBack) {
  Abierto p("04-tres-tramos.cvr");
  const Variacion ancho{&p.entrada("bRapida"), {"2.1", "0", "1.5"}};
  const std::vector<std::string> muchos(101, "1");
  EXPECT_THROW(Estudio(p.base(), {}), FalloEstudio);
  EXPECT_THROW(Estudio(p.base(), {ancho, ancho}), FalloEstudio);
  EXPECT_THROW(Estudio(p.base(), {{ancho.entrada, {}}}), FalloEstudio);
  EXPECT_THROW(Estudio(p.base(), {{ancho.entrada, muchos}, {&p.entrada("Q"), muchos}}), FalloEstudio);
  Estudio e(p.base(), {ancho}, false);
  EXPECT_TRUE(e.avanzar(std::chrono::milliseconds(0)));
  EXPECT_EQ(e.filas().size(), 1u);
  e.completar();
  using Orden = std::vector<std::size_t>;
  EXPECT_EQ(ordenadas(e, 0, true), (Orden{1, 2, 0}));
  const std::size_t vFin = 1 + columnaDe(*p.ficha, "yFin");  // a narrower chute is deeper
  EXPECT_EQ(ordenadas(e, vFin, true), (Orden{0, 2, 1}));
  EXPECT_EQ(ordenadas(e, vFin, false), (Orden{2, 0, 1}));
  for (const bool coma : {false, true}) {
    const std::string csv = comoCsv(e, coma);
    ASSERT_TRUE(csv.starts_with("\xEF\xBB\xBF"));
    std::vector<std::vector<std::string>> tabla(1, std::vector<std::string>(1));
    bool citado = false;
    for (const char c : csv.substr(3)) {
      if (c == '"')
        citado = !citado;
      else if (!citado && c == (coma ? ';' : ','))
        tabla.back().emplace_back();
      else if (!citado && c == '\n')
        tabla.emplace_back(1);
      else if (c != '\r')
        tabla.back().back() += c;
    }
    ASSERT_EQ(tabla.size(), 5u);
    const std::size_t y = 1 + vFin;
    EXPECT_EQ(tabla[0][0], "Canal de la rápida: Ancho de base(b) (m)");
    for (std::size_t f = 0; f < 3; ++f) {
      ASSERT_EQ(tabla[f + 1].size(), tabla[0].size());
      EXPECT_EQ(conPuntoDecimal(tabla[f + 1][0]), ancho.valores[f]);
      EXPECT_EQ(tabla[f + 1][1], f == 1 ? "no" : "sí");
      if (f == 1) {
        EXPECT_FALSE(tabla[f + 1].back().empty());
      }
      if (f != 1) {
        EXPECT_FLOAT_EQ(float(Val(conPuntoDecimal(tabla[f + 1][y])).valor()),
                        float(e.filas()[f].celdas[vFin - 1].numero));
      }
      EXPECT_EQ(tabla[f + 1][y].find(coma ? '.' : ','), std::string::npos);
    }
  }
  TextoCsv t(false);
  t.texto("=1+1").texto("a \"b\"\n").valor("-2.5").texto("-x").finDeLinea();
  EXPECT_EQ(t.contenido(), "'=1+1,\"a \"\"b\"\"\n\",-2.5,'-x\r\n");
}

/// What stands beside the marks of an axis gives the value of a pixel: the first and the last mark.
struct Eje {
  double p1 = 0, v1 = 0, p2 = 0, v2 = 0;
  double valor(double p) const { return v1 + (p - p1) * (v2 - v1) / (p2 - p1); }
};
Eje eje(const std::vector<PrimTexto>& textos, const std::vector<PrimLinea>& lineas, bool horizontal) {
  std::vector<std::pair<double, double>> marcas;
  for (const PrimLinea& l : lineas) {
    const Punto a = l.a, b = l.b;
    const double largo = horizontal ? b.y - a.y : b.x - a.x;
    if (l.pluma.color != color::negro || largo < 2 || largo > 10) continue;
    for (const PrimTexto& t : textos) {
      const Punto medio{t.en.x + anchoTexto(t.texto) / 30.0, t.en.y + 6};
      const bool suya = horizontal ? t.en.y > b.y && std::abs(medio.x - a.x) < 9
                                   : medio.x < a.x && a.x - medio.x < 40 && std::abs(medio.y - a.y) < 3;
      if (suya) marcas.emplace_back(horizontal ? a.x : a.y, std::stod(t.texto));
    }
  }
  EXPECT_GE(marcas.size(), 4U);
  return {marcas.front().first, marcas.front().second, marcas.back().first, marcas.back().second};
}

TEST(Curva, IsReadOffItsAxesAsTheTableTells) {
  Abierto p("04-tres-tramos.cvr");
  Estudio e(p.base(), {{&p.entrada("bRapida"), {"1.8", "2", "0", "2.2", "2.4"}}, {&p.entrada("Q"), {"9", "12"}}});
  e.completar();
  const std::size_t columna = columnaDe(*p.ficha, "yFin");
  const GraficoEstudio g = graficoDe(e, p.base(), columna);
  Lienzo l(640, 400);
  g.dibujar(l);
  const auto textos = pintadas<PrimTexto>(l);
  const auto lineas = pintadas<PrimLinea>(l);
  const auto puntos = pintadas<PrimCirculo>(l);
  const auto tramos = pintadas<PrimPolilinea>(l);
  const Eje x = eje(textos, lineas, true), y = eje(textos, lineas, false);
  ASSERT_EQ(puntos.size(), 8U);
  ASSERT_EQ(tramos.size(), 4U) << "without the width of 0 each curve is broken";
  for (std::size_t f = 0, n = 0; f < e.total(); ++f) {
    if (!e.filas()[f].calculado) continue;
    const double b = std::stod(e.puestos(f)[0].texto), Q = std::stod(e.puestos(f)[1].texto);
    const auto suyo = std::ranges::find_if(puntos, [&](const PrimCirculo& c) {
      return std::abs(x.valor(c.centro.x) - b) < 1e-6 &&
             std::abs(y.valor(c.centro.y) - e.filas()[f].celdas[columna].numero) < 1e-6;
    });
    ASSERT_TRUE(suyo != puntos.end()) << f;
    const auto leido = g.leer(l, {suyo->centro.x + 1, suyo->centro.y - 2});
    EXPECT_EQ(leido->fila, f);
    EXPECT_NE(leido->texto.find("= " + texto(Real(b)) + ", " + texto(Real(Q))), std::string::npos) << leido->texto;
    const std::string nombre = texto(Real(Q)) + " m³/s";
    const auto leyenda = std::ranges::find(textos, nombre, &PrimTexto::texto);
    ASSERT_TRUE(leyenda != textos.end()) << nombre;
    EXPECT_EQ(leyenda->color, suyo->pluma.color);
    EXPECT_EQ(leyenda->color, tramos[n++ % 2 * 2].pluma.color);
  }
  for (const char* t : {"Canal de la rápida: Ancho de base(b) (m)", "tecleado: 2.4"})
    EXPECT_NE(std::ranges::find(textos, t, &PrimTexto::texto), textos.end()) << t;
  const auto tecleado =
      std::ranges::find(lineas, EstiloLinea::guiones, [](const PrimLinea& r) { return r.pluma.estilo; });
  ASSERT_TRUE(tecleado != lineas.end());
  EXPECT_NEAR(x.valor(tecleado->a.x), 2.4, 1e-6);
  for (const PrimTexto& t : textos) EXPECT_TRUE(t.en.x >= 0 && t.en.x + anchoTexto(t.texto) / 15.0 <= 640) << t.texto;
}

}  // namespace
}  // namespace calvento
