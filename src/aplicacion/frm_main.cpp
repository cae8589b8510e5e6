#include "aplicacion/frm_main.h"

#include <array>
#include <utility>

namespace calvento {

frmMain::frmMain(Navegador& navegador, Dialogos& dialogos)
    : Ventana("frmMain", "Diseño Hidráulico de Estructuras de Disipación de Energía en Canales -") {
  const auto abre = [&navegador](const char* ventana) { return [&navegador, ventana] { navegador.mostrar(ventana); }; };
  mnrapida.Click = abre("Form10");
  mncaidainclinada.Click = abre("Form1");
  mncaidavertical.Click = abre("Form16");
  mnnormal.Click = abre("Form14");
  mnconjugados.Click = abre("Form15");
  mnacerca.Click = abre("frmAbout");
  mndocumento.Click = [&dialogos] {
    dialogos.aviso("El Manual del Usuario se adjunta al Software: Ver Manual del Usuario de CALVENTO.pdf");
  };
  mnsalir.Click = [&navegador] { navegador.terminar(); };
  Toolbar1.ButtonClick = [&navegador](const std::string& clave) {
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 4> ventanas = {
        {{"rapida", "Form10"}, {"caidainclinada", "Form1"}, {"caidavertical", "Form16"}, {"canal", "Form14"}}};
    for (const auto& [tecla, ventana] : ventanas)
      if (tecla == clave) navegador.mostrar(ventana);
  };
}

}  // namespace calvento
