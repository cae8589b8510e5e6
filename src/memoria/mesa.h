#pragma once

#include <string>

#include "memoria/diseno.h"
#include "plataforma/navegador.h"
#include "poza/form2.h"
#include "poza/form25.h"

namespace calvento {

/// Windows opened for what they compute: nobody sees them, and they open no others.
class NavegadorNulo : public Navegador {
 public:
  void mostrar(std::string_view) override {}
  void ocultar(Ventana&) override {}
  void descargar(Ventana&) override {}
  void imprimir(Ventana&) override {}
  void copiar(Ventana&) override {}
  void terminar() override {}
};

class DialogosNulos : public Dialogos {
 public:
  /// `respuesta`: to every question, true for yes.
  explicit DialogosNulos(bool respuesta = true) : respuesta_(respuesta) {}
  void aviso(const std::string&) override {}
  void fallo(const std::string&) override {}
  bool pregunta(const std::string&) override { return respuesta_; }
  std::optional<std::string> abrirArchivo(const OpcionesArchivo&) override { return {}; }
  std::optional<std::string> guardarArchivo(const OpcionesArchivo&) override { return {}; }

 private:
  bool respuesta_;
};

/// A table on which the report windows of a design can be opened: a record and parameter windows of its own, which they
/// may write into.
struct MesaInforme {
  explicit MesaInforme(const Diseno& d) : estado(d.e) {
    if (d.vertical()) {
      const Single modo = estado.tipoTransVert;
      ponerTextos(form25, d.parametros);
      estado.tipoTransVert = modo;
    } else {
      ponerTextos(form2, d.parametros);
    }
    estado.bPozaCaida = d.rapida() ? d.e.bPoza : d.e.bPozaCaida;  // the sheets of blocks read one field for both
  }
  DesignState estado;
  NavegadorNulo navegador;
  DialogosNulos dialogos;
  Form2 form2{navegador};
  Form25 form25{estado, navegador};
};

}  // namespace calvento
