#pragma once

#include <functional>
#include <memory>

#include "memoria/documento.h"
#include "plataforma/control.h"
#include "plataforma/ventana.h"

namespace calvento {

/// The control that shows a report on its pages.
class VisorMemoria : public Control {
 public:
  using Control::Control;
  /// Writes the report with what stands on its cover; empty before a design is shown.
  std::function<Documento(const Portada&)> redactar;
  std::string sugerido;  ///< name of its file, without extension
  /// Begins at this chapter when it is shown.
  std::string capitulo;
  void cambiado() { disparar(alCambiar); }
  std::weak_ptr<VisorMemoria> vinculo() const { return propio_; }

 private:
  std::shared_ptr<VisorMemoria> propio_{this, [](VisorMemoria*) {}};
};

/// A calculated design with its checks.
struct DisenoComprobado {
  explicit DisenoComprobado(Diseno d);
  Diseno diseno;
  TablasInforme tablas;
  Comprobaciones comprobaciones;
};

/// The report of a design, one window for each kind of structure. It shows the design as its last calculation left it.
class FormMemoria : public Ventana {
 public:
  FormMemoria(std::string_view nombre, std::shared_ptr<const DisenoComprobado> diseno);
  VisorMemoria Visor1{*this, "Visor1"};

  void mostrar(std::shared_ptr<const DisenoComprobado> diseno);
};

}  // namespace calvento
