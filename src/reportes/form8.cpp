#include "reportes/form8.h"

#include "dibujo/reglas.h"
#include "plataforma/barra_informe.h"

namespace calvento {

Form8::Form8(const DesignState& estado, Navegador& navegador)
    : Ventana("Form8", "Trayectoria de la Rápida"), cotaFin_(estado.cotaFin), limites_(limitesTrayectoria(estado)) {
  imprimirYCopiarCon(Toolbar1, *this, navegador);
  Command1.Click = [this, &navegador] { navegador.descargar(*this); };
  tablaTrayectoria(Grid1.tabla, estado);
  ejes();
  DIBUJATRAYECTORIA(P.lienzo, estado);

  for (PictureBox* caja : {&P, &Picture1, &Picture2})
    caja->Resize = [this, caja](int ancho, int alto) {
      caja->lienzo.redimensionarSinCrecer(ancho, alto);
      ejes();
    };
}

void Form8::ejes() {
  EJEX(0, limites_.x2, Picture1.lienzo, reglaXTrayectoria);
  EJEY(limites_.y1 + cotaFin_, limites_.y2 + cotaFin_, Picture2.lienzo, reglaYTrayectoria);
}

}  // namespace calvento
