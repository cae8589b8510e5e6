#include "dibujo/reglas.h"

#include "comun/numeros.h"
#include "modelo/design_state.h"
#include "plataforma/medidas.h"

namespace calvento {

namespace {

std::string progresiva(Single v) { return formato(v, "0+000.00"); }
std::string digitos(Single v) { return texto(v); }
std::string dosDecimales(Single v) { return formato(v, "0.00"); }
std::string tresDecimalesALoSumo(Single v) { return texto(Round(v, 3)); }

/// Long ticks of a span of a million kilometres at the largest step; who zooms out further sees an empty ruler.
constexpr double masMarcas = 1000;

/// Calls largas and cortas with the value of each tick. Tick values are 4-byte numbers, so that their texts are plain:
/// 91.2 and not 91.2000013589859.
template <class Largas, class Cortas>
void marcas(Single Pc, Single P10, Largas largas, Cortas cortas) {
  const Real paso = pasoDeRegla(P10 - Pc);
  const Real primera = Fix(Pc / paso);
  const Real ultima = Fix(P10 / paso) + 1;
  if (ultima - primera > masMarcas) fallar(Motivo::sinConvergencia);
  if (ultima < primera) return;  // a view turned round has no ticks, however far apart its edges
  // counted in whole numbers: far from 0 a tick more or less is lost in the rounding of its value
  const int cuantas = static_cast<int>((ultima - primera).valor());
  for (int n = 0; n <= cuantas; ++n) largas(Single(paso * (primera + n)));
  for (int n = 0; n <= cuantas * 5; ++n) cortas(Single(primera * paso + paso * n / 5));
}

void prepararLetra(Lienzo& franja) {
  franja.ForeColor = color::negro;
  franja.Font = {"Arial", 8};
}

void imprimir(Lienzo& franja, Real x, Real y, std::string texto) {
  franja.CurrentX = x.valor();
  franja.CurrentY = y.valor();
  franja.Print(std::move(texto));
}

}  // namespace

const EstiloRegla reglaProgresivas{{1.98, 1.65}, {1.97, 1.8}, progresiva, 960};
const EstiloRegla reglaElevaciones{{2, 1.75}, {2, 1.88}, digitos};
const EstiloRegla reglaXTrayectoria{{1.98, 1.75}, {2, 1.9}, digitos, 720};
const EstiloRegla reglaYTrayectoria{{2, 1.8}, {2, 1.9}, tresDecimalesALoSumo};
const EstiloRegla reglaXSeccion{{1.98, 1.65}, {1.97, 1.8}, dosDecimales, 960};
const EstiloRegla reglaYSeccion{{2, 1.75}, {2, 1.88}, tresDecimalesALoSumo};

Single pasoDeRegla(Real tramo) {
  Real menor = 1e11;
  Single elegido;
  for (int partes = 4; partes <= 8; ++partes) {
    const Real candidato = tramo / partes;
    for (const float paso : pasosEje()) {
      const Real distancia = Abs(candidato - paso);
      if (!(distancia < menor)) continue;  // of equal distances the first wins
      menor = distancia;
      elegido = Single::deFloat(paso);
    }
  }
  return elegido;
}

void EJEX(Single Pc, Single P10, Lienzo& franja, const EstiloRegla& estilo) {
  franja.Cls();
  const Real tramo = P10 - Pc;
  const Real ancho = franja.anchoPixeles() * twipsPorPixel - estilo.margen;  // the drawing's, in twips
  franja.Scale((Pc - tramo * estilo.margen / ancho).valor(), 2, Real(P10).valor(), 0);
  prepararLetra(franja);
  marcas(
      Pc, P10,
      [&](Single t) {
        if (!(t < Pc)) franja.Line({Real(t).valor(), estilo.larga.borde}, {Real(t).valor(), estilo.larga.punta});
        const Real w = anchoTexto(texto(t));
        const Real x = t - w * tramo / (2 * ancho);
        if (x < Pc - w * tramo / (1.5 * ancho) || t + w * tramo / (2 * ancho) > P10) return;
        imprimir(franja, x, 1.6, estilo.rotulo(t));
      },
      [&](Single t) {
        if (!(t < Pc)) franja.Line({Real(t).valor(), estilo.corta.borde}, {Real(t).valor(), estilo.corta.punta});
      });
}

void EJEY(Single Pc, Single P10, Lienzo& franja, const EstiloRegla& estilo) {
  franja.Cls();
  const Real tramo = P10 - Pc;
  const Real ancho = franja.anchoPixeles() * twipsPorPixel;
  const Real alto = franja.altoPixeles() * twipsPorPixel;
  franja.Scale(0, Real(P10).valor(), 2, Real(Pc).valor());
  prepararLetra(franja);
  marcas(
      Pc, P10,
      [&](Single t) {
        if (!(t < Pc)) franja.Line({estilo.larga.punta, Real(t).valor()}, {estilo.larga.borde, Real(t).valor()});
        const Real w = anchoTexto(texto(t));
        const Real mediaLinea = altoTexto() * tramo / (2 * alto);
        if (t + mediaLinea > P10 || t - mediaLinea < Pc) return;
        imprimir(franja, 1.5 - 2 * w / ancho, t + mediaLinea, estilo.rotulo(t));
      },
      [&](Single t) {
        if (!(t < Pc)) franja.Line({estilo.corta.punta, Real(t).valor()}, {estilo.corta.borde, Real(t).valor()});
      });
}

}  // namespace calvento
