#include "memoria/boceto_rotulado.h"

namespace calvento {

std::vector<RotuloTrazo> rotulosSobre(const BocetoRotulado& boceto, const EscalaLienzo& caja) {
  constexpr double letra = 16, bajoElMedio = 0.35;  // pixels of the window; the base line, in parts of the letters
  std::vector<RotuloTrazo> r;
  if (boceto.ancho <= 0) return r;
  const double x = caja.ancho / boceto.ancho, y = caja.alto / boceto.alto;
  for (const BocetoRotulado::Rotulo& rotulo : boceto.rotulos) {
    RotuloTrazo t;
    const double parte = rotulo.alineacion == Alineacion::derecha  ? 1
                         : rotulo.alineacion == Alineacion::centro ? 0.5
                                                                   : 0;
    t.ancla = parte == 1   ? RotuloTrazo::Ancla::fin
              : parte == 0 ? RotuloTrazo::Ancla::inicio
                           : RotuloTrazo::Ancla::medio;
    t.en = {caja.izquierda + (rotulo.x + parte * rotulo.ancho) * x,
            caja.arriba + (rotulo.y + rotulo.alto / 2.0 + bajoElMedio * letra) * y};
    t.texto = rotulo.texto;
    t.familias = "Liberation Sans, Arial, sans-serif";
    t.brocha.clase = Brocha::Clase::color;
    t.brocha.color = {0x663d0b};
    t.tamano = letra * y;
    t.negrita = true;
    r.push_back(t);
  }
  return r;
}

}  // namespace calvento
