#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "plataforma/navegador.h"

namespace calvento {

/// A window system without a screen.
class SinPantalla : public SistemaVentanas {
 public:
  void presentar(Ventana&) override {}
  void ocultar(Ventana&) override {}
  void cerrar(Ventana&) override {}
  void imprimir(Ventana&) override {}
  void copiar(Ventana&) override {}
  void terminar() override {}
  bool conPantalla() const override { return false; }
  void despues(std::function<void()> accion) override { pendientes_.push_back(std::move(accion)); }
  /// Runs what waits for the end of the running event.
  void atender() {
    for (const auto& accion : std::exchange(pendientes_, {})) accion();
  }

 private:
  std::vector<std::function<void()>> pendientes_;
};

}  // namespace calvento
