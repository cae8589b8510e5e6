#include "reportes/ventana_verificacion.h"

#include "plataforma/barra_informe.h"

namespace calvento {

VentanaVerificacion::VentanaVerificacion(std::string_view nombre, Navegador& navegador,
                                         const EstiloVerificacion& estilo,
                                         const std::function<void(Rejilla&)>& verificar)
    : Ventana(nombre, "Verificación del Funcionamiento de la Poza") {
  imprimirYCopiarCon(Toolbar1, *this, navegador);
  Command1.Click = [this, &navegador] { navegador.descargar(*this); };
  Text1.numerico = false;
  verificar(Grid1.tabla);
  Text1.Text = VEREDICTOPOZA(Grid1.tabla, estilo);
}

Form13::Form13(const DesignState& estado, const Form2& parametros, Dialogos& dialogos, Navegador& navegador)
    : VentanaVerificacion("Form13", navegador, verificacionRapida,
                          [&](Rejilla& tabla) { verificarRapida(tabla, estado, parametros, dialogos); }) {}

Form7::Form7(const DesignState& estado, const Form2& parametros, Dialogos& dialogos, Navegador& navegador)
    : VentanaVerificacion("Form7", navegador, verificacionInclinada,
                          [&](Rejilla& tabla) { verificarInclinada(tabla, estado, parametros, dialogos); }) {}

Form26::Form26(const DesignState& estado, Navegador& navegador)
    : VentanaVerificacion("Form26", navegador, verificacionVertical,
                          [&](Rejilla& tabla) { verificarVertical(tabla, estado); }) {}

}  // namespace calvento
