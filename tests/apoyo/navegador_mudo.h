#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "plataforma/navegador.h"

namespace calvento {

/// A navigator that shows nothing and records what it was asked: "mostrar Form3", "imprimir Form14", "terminar".
class NavegadorMudo : public Navegador {
 public:
  std::vector<std::string> llamadas;

  void mostrar(std::string_view ventana) override { llamadas.push_back("mostrar " + std::string(ventana)); }
  void ocultar(Ventana& v) override { llamadas.push_back("ocultar " + v.nombre()); }
  void descargar(Ventana& v) override { llamadas.push_back("descargar " + v.nombre()); }
  void imprimir(Ventana& v) override { llamadas.push_back("imprimir " + v.nombre()); }
  void copiar(Ventana& v) override { llamadas.push_back("copiar " + v.nombre()); }
  void terminar() override { llamadas.emplace_back("terminar"); }
};

}  // namespace calvento
