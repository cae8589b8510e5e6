#pragma once

#include <string>
#include <utility>
#include <vector>

#include "plataforma/dialogos.h"

namespace calvento {

/// A box that appeared, and of a question its answer.
struct Mensaje {
  enum class Tipo { aviso, pregunta, fallo };
  Tipo tipo;
  std::string texto;
  bool respuesta = false;  ///< of a question: yes
};

/// Passes every box on and writes the messages and questions down.
class DialogosAnotados : public Dialogos {
 public:
  explicit DialogosAnotados(Dialogos& otros) : otros_(otros) {}
  void aviso(const std::string& texto) override {
    mensajes.push_back({Mensaje::Tipo::aviso, texto});
    otros_.aviso(texto);
  }
  void fallo(const std::string& texto) override {
    mensajes.push_back({Mensaje::Tipo::fallo, texto});
    otros_.fallo(texto);
  }
  bool pregunta(const std::string& texto) override {
    const bool si = otros_.pregunta(texto);
    mensajes.push_back({Mensaje::Tipo::pregunta, texto, si});
    return si;
  }
  std::optional<std::string> abrirArchivo(const OpcionesArchivo& opciones) override {
    return otros_.abrirArchivo(opciones);
  }
  std::optional<std::string> guardarArchivo(const OpcionesArchivo& opciones) override {
    return otros_.guardarArchivo(opciones);
  }

  std::vector<Mensaje> mensajes;

 private:
  Dialogos& otros_;
};

}  // namespace calvento
