#include "dibujo/figura_seccion.h"

#include <algorithm>
#include <array>

#include "comun/numeros.h"
#include "dibujo/cotas.h"
#include "dibujo/reglas.h"
#include "dibujo/rotulos.h"
#include "hidraulica/solvers.h"

namespace calvento {

namespace {

constexpr double e = 0.1;                 ///< thickness of the lining, m
constexpr double mediaMarca = 0.01;       ///< half the side of a corner mark, m
constexpr double flecha = 0.025;          ///< length of an arrow head, m
constexpr double mediaRaya = 0.05;        ///< half the length of the tick at the end of a dimension, m
constexpr const char* muestra = "0.000";  ///< the gap of a dimension line is as wide as this text

/// Prints a text about its centre, by its true size on the canvas; beside the left edge it moves in as a whole.
void rotuloCentrado(Lienzo& l, double x, double y, const std::string& texto) {
  const double metrosPorTwip = -l.ScaleHeight() / (l.altoReferencia() * twipsPorPixel);
  const double izquierda = std::max(x - anchoTexto(texto) * metrosPorTwip / 2, l.ScaleLeft());
  rotulo(l, izquierda, y + altoTexto() * metrosPorTwip / 2, texto);
}

/// The section's outline about the centre line, in world metres.
struct Contorno {
  explicit Contorno(const DatosSeccion& s) : c(s.c.valor()), H(s.H.valor()), b(s.b.valor()), z(s.z.valor()) {
    const Real angulo = s.z == 0 ? Real(piCorto / 2) : Atn(1 / s.z);
    corona = (e / Sin(angulo)).valor();
    esquina = (e * Tan(angulo / 2)).valor();
  }
  double c, H, b, z;
  double corona;   ///< width of the lining at its top
  double esquina;  ///< what its outer bottom corner stands out

  /// Half the width of the water at a depth.
  double medio(double y) const { return b / 2 + z * y; }
};

/// Sets the scale of the canvas and draws both rulers.
void escalar(Lienzo& P, Lienzo& reglaX, Lienzo& reglaY, const Contorno& s) {
  const double r = static_cast<double>(P.altoPixeles()) / P.anchoPixeles();
  double X = s.medio(s.H) + s.corona + e + ancho(muestra, 2000);
  if (r * X < s.H / 2 + e + 0.1) X = (s.H / 2 + e + 0.1) / r;
  const double centro = s.c + s.H / 2;
  P.Scale(-X, centro + r * X, X, centro - r * X);
  EJEX(-X, X, reglaX, reglaXSeccion);
  EJEY(centro - r * X, centro + r * X, reglaY, reglaYSeccion);
}

void agua(Lienzo& P, const Contorno& s, double y) {
  P.ForeColor = color::azulClaro;
  P.FillColor = color::cianClaro;
  P.FillStyle = EstiloRelleno::solido;
  const double m = s.medio(y);
  P.Polygon({{-s.b / 2, s.c}, {-m, s.c + y}, {m, s.c + y}, {s.b / 2, s.c}, {-s.b / 2, s.c}});
}

void revestimiento(Lienzo& P, const Contorno& s) {
  P.ForeColor = color::negro;
  P.FillColor = color::grisClaro;
  P.FillStyle = EstiloRelleno::cruzadoDiagonal;
  const double fondo = s.b / 2;
  const double arriba = s.medio(s.H);
  const double nivel = s.c + s.H;
  P.Polygon({{-fondo, s.c},
             {-arriba, nivel},
             {-arriba - s.corona, nivel},
             {-fondo - s.esquina, s.c - e},
             {fondo + s.esquina, s.c - e},
             {arriba + s.corona, nivel},
             {arriba, nivel},
             {fondo, s.c},
             {-fondo, s.c}});
  P.FillColor = color::negro;
  P.FillStyle = EstiloRelleno::solido;
  for (const Punto p : std::array<Punto, 4>{{{-fondo, s.c}, {-arriba, nivel}, {arriba, nivel}, {fondo, s.c}}})
    P.LineCaja({p.x - mediaMarca, p.y - mediaMarca}, {p.x + mediaMarca, p.y + mediaMarca}, color::negro);
}

void nivelCritico(Lienzo& P, const Contorno& s, double yc) {
  P.DrawStyle = EstiloLinea::guionPunto;
  P.Line({-s.medio(yc), s.c + yc}, {s.medio(yc), s.c + yc}, color::rojo);
  P.DrawStyle = EstiloLinea::solida;
}

void cotaAncho(Lienzo& P, const Contorno& s) {
  const double y = s.c + s.H + e;
  const double hueco = ancho(muestra, 2000);
  for (const int lado : {-1, 1}) {
    const double x = lado * s.medio(s.H);
    flechaHorizontal(P, {x, y}, -lado, flecha);
    P.Line({x, y - mediaRaya}, {x, y + mediaRaya});
    P.Line({x, y}, {lado * hueco, y});
  }
  rotuloCentrado(P, 0, y, formato(2 * s.medio(s.H), "0.000"));
}

void cotaAltura(Lienzo& P, const Contorno& s) {
  const double x = -s.medio(s.H) - s.corona - e;
  cotaVertical(P, x, s.c, s.c + s.H, flecha);
  for (const double y : {s.c, s.c + s.H}) P.Line({x - mediaRaya, y}, {x + mediaRaya, y});
  rotuloCentrado(P, x, s.c + s.H / 2, formato(s.H, "0.000"));
}

}  // namespace

void SECCION(Lienzo& P, Lienzo& reglaX, Lienzo& reglaY, const DatosSeccion& datos, Real Q) {
  P.Cls();
  const Contorno s(datos);
  escalar(P, reglaX, reglaY, s);
  P.Font = {"Arial", 8};
  agua(P, s, datos.y.valor());
  const Real yc = YCRITICO(Q, datos.b, datos.z);
  revestimiento(P, s);
  nivelCritico(P, s, yc.valor());
  cotaAncho(P, s);
  cotaAltura(P, s);
}

}  // namespace calvento
