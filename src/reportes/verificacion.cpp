#include "reportes/verificacion.h"

#include <array>

#include "comun/numeros.h"
#include "hidraulica/resalto.h"
#include "hidraulica/salto.h"
#include "poza/tabla_tanques.h"

namespace calvento {

namespace {

constexpr int columnas = 10;
constexpr int filasTitulo = 3;
constexpr int caudales = 10;
constexpr int columnaCaudal = 1;
constexpr int columnaVeredicto = 9;

constexpr const char* masAhogamiento = "SE RECOMIENDA INCREMENTAR EL % DE AHOGAMIENTO DEL RESALTO";

}  // namespace

const EstiloVerificacion verificacionRapida{"DE RESALTO", masAhogamiento, true};
const EstiloVerificacion verificacionInclinada{"DE RESALTO", masAhogamiento, false};
const EstiloVerificacion verificacionVertical{"DE POZA", "SE RECOMIENDA INCREMENTAR LA PROFUNDIDAD DE LA POZA", false};

Real caudalVerificado(const DesignState& e, int n) { return (caudales + 1 - n) * e.Q / caudales; }

Real funcionMomento(Real Q, Real A, Real y, Real b, Real T) {
  return Q * Q / (gravedad * A) + A * y * ((2 * b + T) / (b + T)) / 3;
}

Single Yoo(Real Q, Real y, const Seccion& llegada, const Seccion& poza, Real cotaA, Real cotaB, Real subida,
           Dialogos& dialogos) {
  const Real V = Q / llegada.area(y);
  const Real E = (cotaA - cotaB) + y + V * V / dosG + subida;
  Real Y = Y1RESALTO(Q, y, V, cotaA, cotaB, poza.b, dialogos);
  Single r;
  Vueltas vueltas;
  do {
    vueltas.una();
    r = Y;
    const Real T = poza.espejo(Y);
    const Real A = poza.area(Y);
    const Real v = Q / A;
    const Real f = 1.1 * v * v / dosG + Y - E;
    const Real df = 1 - 1.1 * T * Q * Q / (gravedad * cubo(A));
    Y = Y - f / df;
  } while (!(Abs(Y - r) < 0.00001));
  return r;
}

Single YY(Real Q, Real y1, const Seccion& poza) {
  if (poza.z == 0) return conjugadoRectangular(y1, Q / poza.b);
  Real v1, v2, T;
  return conjugadoTrapezoidal(Q, y1, poza, v1, v2, T);
}

void LONGRESALTO(FilaVerificacion& fila, const DesignState& e, const Seccion& poza, const Form2& parametros,
                 std::optional<Real> kTrapezoidal) {
  const Real F = e.tipoTanque == 5 ? poza.froude(e.Q, fila.y1) : Real(0);
  Single K;
  longitudTanque({e.tipoTanque, fila.y1, fila.y2, F}, parametros, K, fila.longitud, kTrapezoidal);
}

void prepararVerificacion(Rejilla& t, const EstiloVerificacion& estilo) {
  struct Columna {
    int ancho;
    std::array<const char*, filasTitulo> titulo;
  };
  const std::array<Columna, columnas> todas = {{
      {250, {"", "N°", ""}},
      {950, {"", "CAUDAL", "(M3/S)"}},
      {800, {"TIRANTE", "Y1", "(M)"}},
      {1250, {"MOMEMTUM", "1", "Newton/þ(agua)"}},
      {800, {"TIRANTE", "Y2", "(M)"}},
      {1250, {"MOMEMTUM", "2", "Newton/þ(agua)"}},
      {1200, {"LONGITUD", estilo.rotuloLongitud, "(M)"}},
      {1300, {"NIVEL ENERGIA", "EN POZA", "(M)"}},
      {1300, {"NIVEL ENERGIA", "AGUAS ABAJO", "(M)"}},
      {1600, {"FUNCIONAMIENTO", "DE LA POZA", ""}},
  }};
  t = Rejilla(filasTitulo + caudales, columnas);
  t.ponerTitulos(filasTitulo);
  for (int c = 0; c < columnas; ++c) {
    const Columna& columna = todas[static_cast<std::size_t>(c)];
    t.ponerAncho(c, columna.ancho);
    t.alinear(c, Alineacion::centro);
    for (int f = 0; f < filasTitulo; ++f) t.poner(f, c, columna.titulo[static_cast<std::size_t>(f)]);
  }
  for (int n = 1; n <= caudales; ++n) t.poner(filasTitulo + n - 1, 0, texto(n));
}

void escribirVerificacion(Rejilla& t, int n, const FilaVerificacion& fila, const EstiloVerificacion& estilo) {
  const int f = filasTitulo + n - 1;
  const auto poner = [&](int c, Real x, const char* patron) { t.poner(f, c, formato(Round(x, 3), patron)); };
  poner(columnaCaudal, fila.Q, "0.000");
  if (estilo.y1Llano)
    t.poner(f, 2, texto(fila.y1));
  else
    poner(2, fila.y1, "0.000");
  // rounded to three decimals first, so that the fourth is always 0: meant
  poner(3, fila.M1, "0.0000");
  poner(4, fila.y2, "0.000");
  poner(5, fila.M2, "0.0000");
  poner(6, fila.longitud, "0.0000");
  poner(7, fila.Ep, "0.0000");
  poner(8, fila.Ea, "0.0000");
  t.poner(f, columnaVeredicto, fila.Ea > fila.Ep ? "OK" : "--");
}

int caudalesContenidos(const Rejilla& t) {
  int n = 0;
  for (int f = t.filasTitulo(); f < t.filas() && t.columnas() > columnaVeredicto; ++f)
    n += t.texto(f, columnaVeredicto) == "OK";
  return n;
}

std::string VEREDICTOPOZA(const Rejilla& t, const EstiloVerificacion& estilo) {
  std::string lista;
  for (int f = filasTitulo; f < t.filas(); ++f)
    if (t.texto(f, columnaVeredicto) == "--")
      lista += "Para Q=" + t.texto(f, columnaCaudal) +
               ", La energía al final del resalto es mayor que aguas abajo, resalto barrido!!\r\n";
  if (lista.empty()) return "EL DISEÑO ES ACEPTABLE,\r\nEL RESALTO HIDRAULICO ES CONTENIDO DENTRO DE LA POZA";
  return "EL DISEÑO NO ES ACEPTABLE.\r\n\r\n" + lista + "\r\n" + estilo.recomendacion;
}

}  // namespace calvento
