#include "aplicacion/form_manual.h"

#include <algorithm>
#include <array>
#include <utility>

namespace calvento {

std::string_view capituloDe(std::string_view ventana) {
  static constexpr std::string_view principal = "1. La ventana principal", resultados = "Ventanas de resultados",
                                    secciones = "Secciones transversales",
                                    verificacion = "14. Cuando la verificación no acepta la poza",
                                    cad = "11. Exportar a un programa de CAD", memoria = "Memoria de cálculo",
                                    estudio = "18. El estudio de alternativas";
  static constexpr std::array<std::pair<std::string_view, std::string_view>, 35> capitulos = {{
      {"frmMain", principal},
      {"frmAbout", principal},
      {"FormManual", "16. Teclas"},
      {"Form14", "3. Calculadora de canales"},
      {"Form15", "4. Calculadora de tirantes conjugados"},
      {"Form10", "5. Rápida"},
      {"Form1", "6. Caída inclinada"},
      {"Form16", "7. Caída vertical"},
      {"Form2", "8. Parámetros: bordo libre, transición y tanque"},
      {"Form25", "Aireación"},
      {"Form3", resultados},
      {"Form4", resultados},
      {"Form17", resultados},
      {"Form22", resultados},
      {"Form5", resultados},
      {"Form21", resultados},
      {"Form23", resultados},
      {"Form11", resultados},
      {"Form6", resultados},
      {"Form8", resultados},
      {"Form19", secciones},
      {"Form20", secciones},
      {"Form24", secciones},
      {"Form13", verificacion},
      {"Form7", verificacion},
      {"Form26", verificacion},
      {"Form12", cad},
      {"Form9", cad},
      {"Form18", cad},
      {"MemoriaForm10", memoria},
      {"MemoriaForm1", memoria},
      {"MemoriaForm16", memoria},
      {"EstudioForm10", estudio},
      {"EstudioForm1", estudio},
      {"EstudioForm16", estudio},
  }};
  const auto* it = std::find_if(capitulos.begin(), capitulos.end(), [&](const auto& c) { return c.first == ventana; });
  return it == capitulos.end() ? principal : it->second;
}

}  // namespace calvento
