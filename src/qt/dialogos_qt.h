#pragma once

#include <QString>

#include "plataforma/dialogos.h"

namespace calvento {

/// Message boxes, questions and file dialogs on the desktop, over the window that is active.
class DialogosQt : public Dialogos {
 public:
  void aviso(const std::string& texto) override;
  void fallo(const std::string& texto) override;
  bool pregunta(const std::string& texto) override;
  std::optional<std::string> abrirArchivo(const OpcionesArchivo& opciones) override;
  std::optional<std::string> guardarArchivo(const OpcionesArchivo& opciones) override;
};

/// "Description(*.EXT)|*.ext" in the form Qt wants, the pattern in both cases of letters since file systems differ in
/// whether they tell them apart.
QString filtroQt(const std::string& filtro);

}  // namespace calvento
