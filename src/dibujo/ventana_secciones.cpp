#include "dibujo/ventana_secciones.h"

#include <utility>

#include "dibujo/figura_seccion.h"
#include "plataforma/barra_informe.h"

namespace calvento {

VentanaSecciones::VentanaSecciones(std::string_view nombre, const DesignState& estado, Navegador& navegador,
                                   std::vector<SeccionNombrada> secciones)
    : Ventana(nombre, "Secciones Transversales"), estado_(estado), secciones_(std::move(secciones)) {
  imprimirYCopiarCon(Toolbar1, *this, navegador);
  Combo1.Click = [this] { DIBUJASECCION(); };
  Command1.Click = [this] { pasar(1); };
  Command2.Click = [this] { pasar(-1); };
  for (PictureBox* caja : {&P, &Picture1, &Picture2})
    caja->Resize = [this, caja](int ancho, int alto) {
      caja->lienzo.redimensionarSinCrecer(ancho, alto);
      pasandoFallos([this] { DIBUJASECCION(); });
    };

  std::vector<std::string> nombres;
  for (const SeccionNombrada& s : secciones_) nombres.push_back(s.nombre);
  Combo1.List = nombres;
  if (!nombres.empty()) pasandoFallos([this] { Combo1.ListIndex = 0; });
}

void VentanaSecciones::DIBUJASECCION() {
  if (Combo1.ListIndex < 0) return;
  const DatosSeccion datos = secciones_.at(static_cast<std::size_t>(Combo1.ListIndex)).datos();
  SECCION(P.lienzo, Picture1.lienzo, Picture2.lienzo, datos, estado_.Q);
}

void VentanaSecciones::pasar(int paso) {
  const int n = static_cast<int>(secciones_.size());
  if (n > 0) Combo1.ListIndex = (Combo1.ListIndex + paso + n) % n;
}

Form19::Form19(const DesignState& estado, Navegador& navegador)
    : VentanaSecciones("Form19", estado, navegador, seccionesRapida(estado)) {}

Form20::Form20(const DesignState& estado, Navegador& navegador)
    : VentanaSecciones("Form20", estado, navegador, seccionesInclinada(estado)) {}

Form24::Form24(const DesignState& estado, Navegador& navegador)
    : VentanaSecciones("Form24", estado, navegador, seccionesVertical(estado)) {}

}  // namespace calvento
